-- The inventory ledger: one row per posted line and opening line. Opening lines have the month 0,
-- movements the fiscal month of their posting date.
create table IA_Subsidiary (
    AutoID            int identity(1,1) not null,             -- ledger line
    bakID             int               null,                 -- order number in place of AutoID, where set
    ID                int               null,                 -- line of the source document
    iPZID             int               null,                 -- head of the source document
    cPZID             nvarchar(30)      null,                 -- link of the voucher; PU... from purchasing
    cPZdigest         nvarchar(255)     null,                 -- voucher summary
    iYear             smallint          not null,             -- accounting year
    iMonth            tinyint           not null,             -- fiscal month, 0 opening
    dVouDate          datetime          not null,             -- document date
    dKeepDate         datetime          not null,             -- posting date
    dtAudit           datetime          null,                 -- approval date
    cAccounter        nvarchar(20)      not null,             -- posted by
    cVouCode          nvarchar(30)      null,                 -- document number
    cVouType          nvarchar(4)       not null,             -- voucher type
    cSrcVouType       nvarchar(4)       null,                 -- voucher type of the document behind the line
    cBusType          nvarchar(60)      null,                 -- business type, Chinese text
    cBusCode          nvarchar(40)      null,                 -- business number
    bRdFlag           tinyint           not null,             -- 1 receipt, 0 issue
    bFlag             tinyint           not null default (0), -- 1 estimate, 2 settlement of one, else 0
    cWhCode           nvarchar(10)      null,                 -- warehouse
    cAccDep           nvarchar(20)      null,                 -- accounting department
    cDepCode          nvarchar(20)      null,                 -- department
    cRdCode           nvarchar(12)      null,                 -- receipt-issue class
    cCusCode          nvarchar(20)      null,                 -- customer
    cVenCode          nvarchar(20)      null,                 -- vendor
    cHandler          nvarchar(20)      null,                 -- handler
    strContractCode   nvarchar(80)      null,                 -- contract
    cProOrderCode     nvarchar(30)      null,                 -- production order
    iProOrderIDs      int               null,                 -- its line
    cWorkProCodeDis   nvarchar(60)      null,                 -- operation line
    cWorkCenterCode   nvarchar(20)      null,                 -- work centre code
    cWorkCenterName   nvarchar(20)      null,                 -- work centre
    cCostCenterCode   nvarchar(20)      null,                 -- cost centre code
    cProCode          nvarchar(80)      null,                 -- production batch
    cSaleOrderCode    nvarchar(30)      null,                 -- sales order
    iSaleOrderIDs     int               null,                 -- its line
    exoCode           nvarchar(50)      null,                 -- export order
    iExRowNo          int               null,                 -- its line
    cEntrustOrderCode nvarchar(30)      null,                 -- outsourcing order
    cPurOrderCode     nvarchar(60)      null,                 -- purchase order
    cImOrderCode      nvarchar(60)      null,                 -- import order
    cItem_class       nvarchar(10)      null,                 -- project class
    cItemCName        nvarchar(120)     null,                 -- its name
    cItemCode         nvarchar(60)      null,                 -- project
    cName             nvarchar(255)     null,                 -- its name
    cInvCode          nvarchar(60)      not null,             -- inventory
    cFree1            nvarchar(20)      null,
    cFree2            nvarchar(20)      null,
    cFree3            nvarchar(20)      null,
    cFree4            nvarchar(20)      null,
    cFree5            nvarchar(20)      null,
    cFree6            nvarchar(20)      null,
    cFree7            nvarchar(20)      null,
    cFree8            nvarchar(20)      null,
    cFree9            nvarchar(20)      null,
    cFree10           nvarchar(20)      null,
    cBatchIA          nvarchar(60)      null,                 -- batch
    iAInQuantity      float             null,                 -- received quantity
    iAOutQuantity     float             null,                 -- issued quantity
    iInCost           float             null,                 -- receipt unit cost
    iOutCost          float             null,                 -- issue unit cost
    iAInPrice         money             null,                 -- received amount
    iAOutPrice        money             null,                 -- issued amount
    iDebitDifCost     money             null,                 -- debit difference
    iCreditDifCost    money             null,                 -- credit difference
    iMaterialFee      money             null,                 -- material part of a subcontracted receipt
    iProcessFee       money             null,                 -- processing part
    costsource        nvarchar(60)      null,                 -- code of type IA.costsource
    psvsid            int               null,                 -- settlement row
    cDemandCode       nvarchar(30)      null,                 -- demand class
    cDemandMemo       nvarchar(300)     null,                 -- its text
    cDefine1          nvarchar(120)     null,
    cDefine2          nvarchar(120)     null,
    cDefine3          nvarchar(120)     null,
    cDefine4          datetime          null,
    cDefine5          int               null,
    cDefine6          datetime          null,
    cDefine7          float             null,
    cDefine8          nvarchar(120)     null,
    cDefine9          nvarchar(120)     null,
    cDefine10         nvarchar(120)     null,
    cDefine11         nvarchar(120)     null,
    cDefine12         nvarchar(120)     null,
    cDefine13         nvarchar(120)     null,
    cDefine14         nvarchar(120)     null,
    cDefine15         int               null,
    cDefine16         float             null,
    cDefine22         nvarchar(120)     null,
    cDefine23         nvarchar(120)     null,
    cDefine24         nvarchar(120)     null,
    cDefine25         nvarchar(120)     null,
    cDefine26         float             null,
    cDefine27         float             null,
    cDefine28         nvarchar(120)     null,
    cDefine29         nvarchar(120)     null,
    cDefine30         nvarchar(120)     null,
    cDefine31         nvarchar(120)     null,
    cDefine32         nvarchar(120)     null,
    cDefine33         nvarchar(120)     null,
    cDefine34         int               null,
    cDefine35         int               null,
    cDefine36         datetime          null,
    cDefine37         datetime          null,
    cMemo             nvarchar(255)     null,                 -- memo
    primary key (AutoID)
)

-- The goods-in-transit ledger.
create table IA_EnSubsidiary (
    AutoID        int identity(1,1) not null, -- ledger line
    inid          int               not null, -- line of the document of this row
    cVouType      nvarchar(4)       not null, -- 26, 27, 28, 29, 05, 5, 06, 6, 3201, 65, 66
    iSrcID        int               not null, -- the line that put the goods in transit
    cSrcVouType   nvarchar(4)       not null, -- its voucher type: 05, 5, 06, 6, 3201
    OutID         int               null,     -- invoice line, on rows 26 to 29
    iDLsID        int               null,     -- dispatch line, on rows 3201 and 05 to 6
    iPZID         int               null,     -- head of the document of this row
    cPZID         nvarchar(30)      null,     -- outside link of the accounting voucher
    cPZdigest     nvarchar(255)     null,     -- voucher summary
    iYear         smallint          not null, -- accounting year
    iMonth        tinyint           null,     -- fiscal month; 0 or NULL is brought forward
    dVouDate      datetime          not null, -- document date
    dKeepDate     datetime          null,     -- posting date
    dtAudit       datetime          null,     -- approval date
    cAccounter    nvarchar(20)      null,     -- posted by; NULL is not booked
    cVouCode      nvarchar(30)      null,     -- document number
    cBusType      nvarchar(60)      null,     -- business type; "委托" and "委托代销" are one
    cBusCode      nvarchar(40)      null,     -- business number
    bRdFlag       tinyint           not null, -- 1 into goods in transit, 0 out of it
    iAInQuantity  float             null,     -- quantity in
    iAInPrice     money             null,     -- amount in
    iAOutQuantity float             null,     -- quantity out
    iAOutPrice    money             null,     -- amount out
    iInCost       float             null,     -- unit cost
    cInvCode      nvarchar(60)      not null, -- inventory
    cFree1        nvarchar(20)      null,
    cFree2        nvarchar(20)      null,
    cFree3        nvarchar(20)      null,
    cFree4        nvarchar(20)      null,
    cFree5        nvarchar(20)      null,
    cFree6        nvarchar(20)      null,
    cFree7        nvarchar(20)      null,
    cFree8        nvarchar(20)      null,
    cFree9        nvarchar(20)      null,
    cFree10       nvarchar(20)      null,
    cBatchIA      nvarchar(60)      null,     -- batch
    cWhCode       nvarchar(10)      null,     -- warehouse
    cDepCode      nvarchar(20)      null,     -- department
    cAccDep       nvarchar(20)      null,     -- accounting department
    cCusCode      nvarchar(20)      null,     -- customer
    cPersonCode   nvarchar(20)      null,     -- person
    cRdCode       nvarchar(12)      null,     -- receipt-issue class
    cHandler      nvarchar(20)      null,     -- handler
    cItem_class   nvarchar(10)      null,     -- project class
    cItemCName    nvarchar(120)     null,     -- its name
    cItemCode     nvarchar(60)      null,     -- project
    cName         nvarchar(255)     null,     -- its name
    cDefine1      nvarchar(120)     null,
    cDefine2      nvarchar(120)     null,
    cDefine3      nvarchar(120)     null,
    cDefine4      datetime          null,
    cDefine5      int               null,
    cDefine6      datetime          null,
    cDefine7      float             null,
    cDefine8      nvarchar(120)     null,
    cDefine9      nvarchar(120)     null,
    cDefine10     nvarchar(120)     null,
    cDefine11     nvarchar(120)     null,
    cDefine12     nvarchar(120)     null,
    cDefine13     nvarchar(120)     null,
    cDefine14     nvarchar(120)     null,
    cDefine15     int               null,
    cDefine16     float             null,
    cDefine22     nvarchar(120)     null,
    cDefine23     nvarchar(120)     null,
    cDefine24     nvarchar(120)     null,
    cDefine25     nvarchar(120)     null,
    cDefine26     float             null,
    cDefine27     float             null,
    cDefine28     nvarchar(120)     null,
    cDefine29     nvarchar(120)     null,
    cDefine30     nvarchar(120)     null,
    cDefine31     nvarchar(120)     null,
    cDefine32     nvarchar(120)     null,
    cDefine33     nvarchar(120)     null,
    cDefine34     int               null,
    cDefine35     int               null,
    cDefine36     datetime          null,
    cDefine37     datetime          null,
    cMemo         nvarchar(255)     null,     -- memo
    primary key (AutoID)
)

-- Standard cost of a goods-in-transit row.
create table IA_EnSubsidiary_STSub (
    iIAEnSubID     int   not null, -- IA_EnSubsidiary.AutoID
    fInvStdPrice   money null,     -- material
    fLaborStdPrice money null,     -- labour
    fManuFixPrice  money null,     -- fixed manufacturing
    fManuVarPrice  money null,     -- variable manufacturing
    fOmPrice       money null,     -- outsourced processing
    primary key (iIAEnSubID)
)

-- Cost differences of a goods-in-transit row.
create table pl_co_EnSubsidiary (
    iIASubID         int          not null, -- IA_EnSubsidiary.AutoID
    cDifPZID         nvarchar(30) null,     -- outside link of the difference voucher
    fInvPriceDif     money        null,     -- material, price
    fInvQuanDif      money        null,     -- material, quantity
    fLbrPriceDif     money        null,     -- labour, price
    fLbrQuanDif      money        null,     -- labour, quantity
    fLbrSemiDif      money        null,     -- labour, semi-finished
    fManuFixPriceDif money        null,     -- fixed manufacturing, price
    fManuFixQuanDif  money        null,     -- the same, quantity
    fSemiManuFixDif  money        null,     -- the same, semi-finished
    fManuVarPriceDif money        null,     -- variable manufacturing, price
    fManuVarQuanDif  money        null,     -- the same, quantity
    fSemiManuVarDif  money        null,     -- the same, semi-finished
    fOmCostDif       money        null,     -- outsourced processing
    fSemiOmDif       money        null,     -- the same, semi-finished
    primary key (iIASubID)
)

-- Cost differences of a row of the inventory ledger.
create table pl_co_SubSidiary (
    ia_autoid        int          not null, -- IA_Subsidiary.AutoID
    cDifPZID         nvarchar(30) null,     -- outside link of the difference voucher
    fInvPriceDif     money        null,     -- material, price
    fInvQuanDif      money        null,     -- material, quantity
    fLbrPriceDif     money        null,     -- labour, price
    fLbrQuanDif      money        null,     -- labour, quantity
    fLbrSemiDif      money        null,     -- labour, semi-finished
    fManuFixPriceDif money        null,     -- fixed manufacturing, price
    fManuFixQuanDif  money        null,     -- the same, quantity
    fSemiManuFixDif  money        null,     -- the same, semi-finished
    fManuVarPriceDif money        null,     -- variable manufacturing, price
    fManuVarQuanDif  money        null,     -- the same, quantity
    fSemiManuVarDif  money        null,     -- the same, semi-finished
    fOmCostDif       money        null,     -- outsourced processing
    fSemiOmDif       money        null,     -- the same, semi-finished
    primary key (ia_autoid)
)

-- The monthly summary of the ledger: one row per costing key, year and month. A costing key is the item
-- with its warehouse or department (parameter cValueStyle), the free items that it keeps, and its batch
-- where the valuation needs it. A month without movement has its row too.
create table IA_Summary (
    AutoID   int identity(1,1) not null, -- row
    iYear    smallint          not null, -- accounting year
    iMonth   tinyint           not null, -- fiscal month, 0 opening of the year
    cInvCode nvarchar(60)      not null, -- inventory
    cWhCode  nvarchar(10)      null,     -- warehouse; filled when the account values by warehouse
    cDepCode nvarchar(20)      null,     -- department; filled when the account values by department
    cFree1   nvarchar(20)      null,
    cFree2   nvarchar(20)      null,
    cFree3   nvarchar(20)      null,
    cFree4   nvarchar(20)      null,
    cFree5   nvarchar(20)      null,
    cFree6   nvarchar(20)      null,
    cFree7   nvarchar(20)      null,
    cFree8   nvarchar(20)      null,
    cFree9   nvarchar(20)      null,
    cFree10  nvarchar(20)      null,
    cBatchIA nvarchar(60)      null,     -- batch; empty when not part of the key
    iDirect  tinyint           null,     -- direct-business row when not 0
    iPeriod  tinyint           null,     -- period row when not 0
    iINum    float             null,     -- received quantity of the month
    iIMoney  money             null,     -- received amount
    iONum    float             null,     -- issued quantity
    iOMoney  money             null,     -- issued amount
    iNum     float             null,     -- quantity at the end of the month
    iMoney   money             null,     -- amount at the end of the month
    iDif     money             null,     -- difference at the end of the month
    primary key (AutoID)
)

-- Ledger rows for the area table.
create table ia_data_subsidiary (
    AutoID    int          not null, -- row
    cInvCode  nvarchar(60) not null, -- inventory
    cFree1    nvarchar(20) null,
    cFree2    nvarchar(20) null,
    cFree3    nvarchar(20) null,
    cFree4    nvarchar(20) null,
    cFree5    nvarchar(20) null,
    cFree6    nvarchar(20) null,
    cFree7    nvarchar(20) null,
    cFree8    nvarchar(20) null,
    cFree9    nvarchar(20) null,
    cFree10   nvarchar(20) null,
    cBatchIA  nvarchar(60) null,     -- batch
    cWhCode   nvarchar(10) null,     -- warehouse
    bRdFlag   tinyint      not null, -- 1 receipt, 0 issue
    iQuantity float        null,     -- quantity
    iUnitCost float        null,     -- unit cost
    iPrice    money        null,     -- amount
    primary key (AutoID)
)

-- The rows of the area. No key: a row may be named twice.
create table ia_accountarea (
    AutoID int not null  -- row of ia_data_subsidiary; may stand here twice
)
