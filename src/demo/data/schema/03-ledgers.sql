-- The inventory ledger: one row per posted line and opening line. Opening lines stand in every year, with
-- the month 0; movements have the year and fiscal month of their posting date.
create table IA_Subsidiary (
    -- ledger line, and the order number that takes its place where there is one
    AutoID            int identity(1,1) not null,
    bakID             int           null,
    -- line and head of the source document
    ID                int           null,
    iPZID             int           null,
    -- outside link of the accounting voucher (PU... from purchasing) and its summary
    cPZID             nvarchar(30)  null,
    cPZdigest         nvarchar(255) null,
    -- accounting year, and fiscal month: 0 opening
    iYear             smallint      not null,
    iMonth            tinyint       not null,
    -- dates of the document, of posting and of approval
    dVouDate          datetime      not null,
    dKeepDate         datetime      not null,
    dtAudit           datetime      null,
    -- posted by
    cAccounter        nvarchar(20)  not null,
    -- document: number, voucher type, voucher type of the document that the line goes back to
    cVouCode          nvarchar(30)  null,
    cVouType          nvarchar(4)   not null,
    cSrcVouType       nvarchar(4)   null,
    -- business type, as Chinese text, and business number
    cBusType          nvarchar(60)  null,
    cBusCode          nvarchar(40)  null,
    -- 1 receipt, 0 issue
    bRdFlag           tinyint       not null,
    -- 1 estimate, 2 settlement of an earlier estimate, else 0
    bFlag             tinyint       not null default (0),
    -- warehouse, accounting department, department, receipt-issue class
    cWhCode           nvarchar(10)  null,
    cAccDep           nvarchar(20)  null,
    cDepCode          nvarchar(20)  null,
    cRdCode           nvarchar(12)  null,
    -- customer, vendor, handler, contract
    cCusCode          nvarchar(20)  null,
    cVenCode          nvarchar(20)  null,
    cHandler          nvarchar(20)  null,
    strContractCode   nvarchar(80)  null,
    -- production: order and its line, operation line, work centre, cost centre, batch
    cProOrderCode     nvarchar(30)  null,
    iProOrderIDs      int           null,
    cWorkProCodeDis   nvarchar(60)  null,
    cWorkCenterCode   nvarchar(20)  null,
    cWorkCenterName   nvarchar(20)  null,
    cCostCenterCode   nvarchar(20)  null,
    cProCode          nvarchar(80)  null,
    -- sales order, export order with their lines; orders of outsourcing, purchase and import
    cSaleOrderCode    nvarchar(30)  null,
    iSaleOrderIDs     int           null,
    exoCode           nvarchar(50)  null,
    iExRowNo          int           null,
    cEntrustOrderCode nvarchar(30)  null,
    cPurOrderCode     nvarchar(60)  null,
    cImOrderCode      nvarchar(60)  null,
    -- project class and project
    cItem_class       nvarchar(10)  null,
    cItemCName        nvarchar(120) null,
    cItemCode         nvarchar(60)  null,
    cName             nvarchar(255) null,
    -- item, its free items, batch
    cInvCode          nvarchar(60)  not null,
    cFree1 nvarchar(20) null, cFree2 nvarchar(20) null, cFree3 nvarchar(20) null,
    cFree4 nvarchar(20) null, cFree5 nvarchar(20) null, cFree6 nvarchar(20) null,
    cFree7 nvarchar(20) null, cFree8 nvarchar(20) null, cFree9 nvarchar(20) null,
    cFree10 nvarchar(20) null,
    cBatchIA          nvarchar(60)  null,
    -- quantities, unit costs, amounts and differences, received and issued
    iAInQuantity      float         null,
    iAOutQuantity     float         null,
    iInCost           float         null,
    iOutCost          float         null,
    iAInPrice         money         null,
    iAOutPrice        money         null,
    iDebitDifCost     money         null,
    iCreditDifCost    money         null,
    -- a subcontracted receipt: material and processing
    iMaterialFee      money         null,
    iProcessFee       money         null,
    -- code of type IA.costsource
    costsource        nvarchar(60)  null,
    -- settlement, Pursettlevouchs.ID
    psvsid            int           null,
    -- demand class and its text
    cDemandCode       nvarchar(30)  null,
    cDemandMemo       nvarchar(300) null,
    -- user fields
    cDefine1 nvarchar(120) null, cDefine2 nvarchar(120) null, cDefine3 nvarchar(120) null,
    cDefine4 datetime null, cDefine5 int null, cDefine6 datetime null, cDefine7 float null,
    cDefine8 nvarchar(120) null, cDefine9 nvarchar(120) null, cDefine10 nvarchar(120) null,
    cDefine11 nvarchar(120) null, cDefine12 nvarchar(120) null, cDefine13 nvarchar(120) null,
    cDefine14 nvarchar(120) null, cDefine15 int null, cDefine16 float null,
    cDefine22 nvarchar(120) null, cDefine23 nvarchar(120) null, cDefine24 nvarchar(120) null,
    cDefine25 nvarchar(120) null, cDefine26 float null, cDefine27 float null,
    cDefine28 nvarchar(120) null, cDefine29 nvarchar(120) null, cDefine30 nvarchar(120) null,
    cDefine31 nvarchar(120) null, cDefine32 nvarchar(120) null, cDefine33 nvarchar(120) null,
    cDefine34 int null, cDefine35 int null, cDefine36 datetime null, cDefine37 datetime null,
    cMemo             nvarchar(255) null,
    primary key (AutoID)
)

create index IX_IA_Subsidiary_Inventory on IA_Subsidiary (cInvCode, iYear, iMonth)
create index IX_IA_Subsidiary_Month on IA_Subsidiary (iYear, iMonth)
create index IX_IA_Subsidiary_KeepDate on IA_Subsidiary (dKeepDate)
create index IX_IA_Subsidiary_Document on IA_Subsidiary (ID, cVouType)
create index IX_IA_Subsidiary_Voucher on IA_Subsidiary (cPZID)

-- The ledger of goods in transit: what was dispatched and is not invoiced yet. A line goes in under the
-- voucher type of the dispatch or issue and out under that of the invoice, which names it in iSrcID and
-- cSrcVouType.
create table IA_EnSubsidiary (
    AutoID        int identity(1,1) not null,
    -- line of the document of this row, and the voucher type: 26, 27, 28, 29, 05, 5, 06, 6, 3201, 65, 66
    inid          int           not null,
    cVouType      nvarchar(4)   not null,
    -- the line that put the goods in transit, and its voucher type: 05, 5, 06, 6, 3201
    iSrcID        int           not null,
    cSrcVouType   nvarchar(4)   not null,
    -- invoice line, on rows 26 to 29
    OutID         int           null,
    -- dispatch line, on rows 3201 and 05 to 6
    iDLsID        int           null,
    -- head of the document of this row
    iPZID         int           null,
    -- outside link of the accounting voucher and its summary
    cPZID         nvarchar(30)  null,
    cPZdigest     nvarchar(255) null,
    -- accounting year, and fiscal month: 0 or NULL is brought forward
    iYear         smallint      not null,
    iMonth        tinyint       null,
    -- dates of the document, of posting and of approval
    dVouDate      datetime      not null,
    dKeepDate     datetime      null,
    dtAudit       datetime      null,
    -- posted by; NULL is not booked
    cAccounter    nvarchar(20)  null,
    -- document number
    cVouCode      nvarchar(30)  null,
    -- business type, as Chinese text ("委托" and "委托代销" are one), and business number
    cBusType      nvarchar(60)  null,
    cBusCode      nvarchar(40)  null,
    -- 1 into transit, 0 out of it
    bRdFlag       tinyint       not null,
    -- quantities and amounts in and out, unit cost
    iAInQuantity  float         null,
    iAInPrice     money         null,
    iAOutQuantity float         null,
    iAOutPrice    money         null,
    iInCost       float         null,
    -- item, its free items, batch
    cInvCode      nvarchar(60)  not null,
    cFree1 nvarchar(20) null, cFree2 nvarchar(20) null, cFree3 nvarchar(20) null,
    cFree4 nvarchar(20) null, cFree5 nvarchar(20) null, cFree6 nvarchar(20) null,
    cFree7 nvarchar(20) null, cFree8 nvarchar(20) null, cFree9 nvarchar(20) null,
    cFree10 nvarchar(20) null,
    cBatchIA      nvarchar(60)  null,
    -- warehouse, department, accounting department, customer, person, receipt-issue class, handler
    cWhCode       nvarchar(10)  null,
    cDepCode      nvarchar(20)  null,
    cAccDep       nvarchar(20)  null,
    cCusCode      nvarchar(20)  null,
    cPersonCode   nvarchar(20)  null,
    cRdCode       nvarchar(12)  null,
    cHandler      nvarchar(20)  null,
    -- project class and project
    cItem_class   nvarchar(10)  null,
    cItemCName    nvarchar(120) null,
    cItemCode     nvarchar(60)  null,
    cName         nvarchar(255) null,
    -- user fields
    cDefine1 nvarchar(120) null, cDefine2 nvarchar(120) null, cDefine3 nvarchar(120) null,
    cDefine4 datetime null, cDefine5 int null, cDefine6 datetime null, cDefine7 float null,
    cDefine8 nvarchar(120) null, cDefine9 nvarchar(120) null, cDefine10 nvarchar(120) null,
    cDefine11 nvarchar(120) null, cDefine12 nvarchar(120) null, cDefine13 nvarchar(120) null,
    cDefine14 nvarchar(120) null, cDefine15 int null, cDefine16 float null,
    cDefine22 nvarchar(120) null, cDefine23 nvarchar(120) null, cDefine24 nvarchar(120) null,
    cDefine25 nvarchar(120) null, cDefine26 float null, cDefine27 float null,
    cDefine28 nvarchar(120) null, cDefine29 nvarchar(120) null, cDefine30 nvarchar(120) null,
    cDefine31 nvarchar(120) null, cDefine32 nvarchar(120) null, cDefine33 nvarchar(120) null,
    cDefine34 int null, cDefine35 int null, cDefine36 datetime null, cDefine37 datetime null,
    cMemo         nvarchar(255) null,
    primary key (AutoID)
)

create index IX_IA_EnSubsidiary_Document on IA_EnSubsidiary (inid, cVouType, iYear)
create index IX_IA_EnSubsidiary_Source on IA_EnSubsidiary (iSrcID, cSrcVouType)
create index IX_IA_EnSubsidiary_Inventory on IA_EnSubsidiary (cInvCode, iYear, iMonth)
create index IX_IA_EnSubsidiary_Voucher on IA_EnSubsidiary (cPZID)

-- Standard cost of a line of goods in transit.
create table IA_EnSubsidiary_STSub (
    -- IA_EnSubsidiary.AutoID
    iIAEnSubID     int   not null,
    -- material, labour, manufacturing fixed and variable, outsourced processing
    fInvStdPrice   money null,
    fLaborStdPrice money null,
    fManuFixPrice  money null,
    fManuVarPrice  money null,
    fOmPrice       money null,
    primary key (iIAEnSubID)
)

-- Cost differences of a line of goods in transit.
create table pl_co_EnSubsidiary (
    -- IA_EnSubsidiary.AutoID
    iIASubID         int          not null,
    -- outside link of the difference voucher
    cDifPZID         nvarchar(30) null,
    -- material: price, quantity
    fInvPriceDif     money        null,
    fInvQuanDif      money        null,
    -- labour: price, quantity, semi-finished
    fLbrPriceDif     money        null,
    fLbrQuanDif      money        null,
    fLbrSemiDif      money        null,
    -- fixed manufacturing: price, quantity, semi-finished
    fManuFixPriceDif money        null,
    fManuFixQuanDif  money        null,
    fSemiManuFixDif  money        null,
    -- variable manufacturing: price, quantity, semi-finished
    fManuVarPriceDif money        null,
    fManuVarQuanDif  money        null,
    fSemiManuVarDif  money        null,
    -- outsourced processing: whole, semi-finished
    fOmCostDif       money        null,
    fSemiOmDif       money        null,
    primary key (iIASubID)
)

create index IX_pl_co_EnSubsidiary_Voucher on pl_co_EnSubsidiary (cDifPZID)

-- Cost differences of a line of the inventory ledger.
create table pl_co_SubSidiary (
    -- IA_Subsidiary.AutoID
    ia_autoid        int          not null,
    -- outside link of the difference voucher
    cDifPZID         nvarchar(30) null,
    -- as in pl_co_EnSubsidiary
    fInvPriceDif     money        null,
    fInvQuanDif      money        null,
    fLbrPriceDif     money        null,
    fLbrQuanDif      money        null,
    fLbrSemiDif      money        null,
    fManuFixPriceDif money        null,
    fManuFixQuanDif  money        null,
    fSemiManuFixDif  money        null,
    fManuVarPriceDif money        null,
    fManuVarQuanDif  money        null,
    fSemiManuVarDif  money        null,
    fOmCostDif       money        null,
    fSemiOmDif       money        null,
    primary key (ia_autoid)
)

create index IX_pl_co_SubSidiary_Voucher on pl_co_SubSidiary (cDifPZID)

-- The monthly summary of the ledger: one row per costing key, year and month. A costing key is the item
-- with its warehouse or department (parameter cValueStyle), the free items that it keeps, and its batch
-- where the valuation needs it. A month without movement has its row too.
create table IA_Summary (
    AutoID   int identity(1,1) not null,
    -- accounting year, and fiscal month: 0 is the opening of the year
    iYear    smallint     not null,
    iMonth   tinyint      not null,
    -- costing key: item, warehouse or department, free items, batch; empty where not part of it
    cInvCode nvarchar(60) not null,
    cWhCode  nvarchar(10) null,
    cDepCode nvarchar(20) null,
    cFree1 nvarchar(20) null, cFree2 nvarchar(20) null, cFree3 nvarchar(20) null,
    cFree4 nvarchar(20) null, cFree5 nvarchar(20) null, cFree6 nvarchar(20) null,
    cFree7 nvarchar(20) null, cFree8 nvarchar(20) null, cFree9 nvarchar(20) null,
    cFree10 nvarchar(20) null,
    cBatchIA nvarchar(60) null,
    -- direct-business row, period row, where not 0
    iDirect  tinyint      null,
    iPeriod  tinyint      null,
    -- received in the month: quantity, amount
    iINum    float        null,
    iIMoney  money        null,
    -- issued in the month: quantity, amount
    iONum    float        null,
    iOMoney  money        null,
    -- at the end of the month: quantity, amount, difference
    iNum     float        null,
    iMoney   money        null,
    iDif     money        null,
    primary key (AutoID)
)

create index IX_IA_Summary_Inventory on IA_Summary (cInvCode, iYear, iMonth)
create index IX_IA_Summary_Month on IA_Summary (iYear, iMonth)

-- Ledger rows for the area table.
create table ia_data_subsidiary (
    -- row
    AutoID    int          not null,
    -- item, its free items, batch, warehouse
    cInvCode  nvarchar(60) not null,
    cFree1 nvarchar(20) null, cFree2 nvarchar(20) null, cFree3 nvarchar(20) null,
    cFree4 nvarchar(20) null, cFree5 nvarchar(20) null, cFree6 nvarchar(20) null,
    cFree7 nvarchar(20) null, cFree8 nvarchar(20) null, cFree9 nvarchar(20) null,
    cFree10 nvarchar(20) null,
    cBatchIA  nvarchar(60) null,
    cWhCode   nvarchar(10) null,
    -- 1 receipt, 0 issue
    bRdFlag   tinyint      not null,
    -- quantity, unit cost, amount
    iQuantity float        null,
    iUnitCost float        null,
    iPrice    money        null,
    primary key (AutoID)
)

-- The rows of the area. No key: a row may be named twice.
create table ia_accountarea (
    -- row of ia_data_subsidiary; may stand here twice
    AutoID int not null
)
