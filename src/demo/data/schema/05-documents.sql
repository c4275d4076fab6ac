-- Heads of all documents. What reports name on the side of the documents are views of this table and of
-- Demo_DocumentLine.
create table Demo_Document (
    DocID           int           not null,
    -- RD stock document, DISP dispatch note, SALE sale invoice, EXCON export consignment,
    -- EXINV export invoice, PUR purchase invoice, JUST adjustment, VMI vendor-managed confirmation
    Kind            nvarchar(6)   not null,
    -- RD 01, 08, 09, 10, 11, 32; DISP 05, 06; SALE 26 to 29; EXINV EX26, EX27; PUR 01, 02; JUST 20, 21;
    -- VMI 70; EXCON has none, an empty text
    cVouType        nvarchar(4)   not null,
    -- number and date
    cVouCode        nvarchar(30)  not null,
    dVouDate        datetime      not null,
    -- business type, as Chinese text, and business number
    cBusType        nvarchar(60)  null,
    cBusCode        nvarchar(40)  null,
    -- kind of document that it was made from: 发货单, 退货单, 出口销货单, 出口退货单 or NULL
    cSource         nvarchar(60)  null,
    -- sale type
    cSTCode         nvarchar(10)  null,
    -- warehouse (none in direct business), department, accounting department, receipt-issue class
    cWhCode         nvarchar(10)  null,
    cDepCode        nvarchar(20)  null,
    cAccDep         nvarchar(20)  null,
    cRdCode         nvarchar(12)  null,
    -- customer, vendor, person, handler, contract
    cCusCode        nvarchar(20)  null,
    cVenCode        nvarchar(20)  null,
    cPersonCode     nvarchar(20)  null,
    cHandler        nvarchar(20)  null,
    strContractCode nvarchar(80)  null,
    cMemo           nvarchar(255) null,
    -- user fields of the head
    cDefine1 nvarchar(120) null, cDefine2 nvarchar(120) null, cDefine3 nvarchar(120) null,
    cDefine4 datetime null, cDefine5 int null, cDefine6 datetime null, cDefine7 float null,
    cDefine8 nvarchar(120) null, cDefine9 nvarchar(120) null, cDefine10 nvarchar(120) null,
    cDefine11 nvarchar(120) null, cDefine12 nvarchar(120) null, cDefine13 nvarchar(120) null,
    cDefine14 nvarchar(120) null, cDefine15 int null, cDefine16 float null,
    primary key (DocID)
)

create index IX_Demo_Document_Kind on Demo_Document (Kind, cVouType)

-- Lines of all documents. Posting a line fills its cAccounter and dKeepDate and writes its row into a ledger,
-- both together: a line is either unposted or in a ledger.
create table Demo_DocumentLine (
    -- line, unique over all kinds of documents, and its head
    LineID             int           not null,
    DocID              int           not null,
    -- item, its free items, batch
    cInvCode           nvarchar(60)  not null,
    cFree1 nvarchar(20) null, cFree2 nvarchar(20) null, cFree3 nvarchar(20) null,
    cFree4 nvarchar(20) null, cFree5 nvarchar(20) null, cFree6 nvarchar(20) null,
    cFree7 nvarchar(20) null, cFree8 nvarchar(20) null, cFree9 nvarchar(20) null,
    cFree10 nvarchar(20) null,
    cBatchIA           nvarchar(60)  null,
    -- 1 receipt, 0 issue
    bRdFlag            tinyint       not null,
    -- quantity, unit cost, amount, difference; material and processing of a subcontracted receipt
    iQuantity          float         null,
    iUnitCost          float         null,
    iPrice             money         null,
    iDif               money         null,
    iMaterialFee       money         null,
    iProcessFee        money         null,
    -- posted by and on; NULL or empty is unposted
    cAccounter         nvarchar(20)  null,
    dKeepDate          datetime      null,
    -- dispatch line, or export consignment line, behind this line; on a dispatch line its own LineID
    iDLsID             int           null,
    -- sale invoice line behind an issue line
    iSBsID             int           null,
    -- identity of a consignment line; on an export invoice line that of the one it comes from
    cGuid              nvarchar(40)  null,
    cGuidSource        nvarchar(40)  null,
    -- on an export invoice line: the consignment line
    iConsignmentAutoID int           null,
    -- 0 on every ordinary line; unposted sales leave lines with 1 out
    iTB                tinyint       not null default (0),
    -- outside link of the accounting voucher
    cPZID              nvarchar(30)  null,
    -- production: order and its line, operation line, work centre, batch
    cProOrderCode      nvarchar(30)  null,
    iProOrderIDs       int           null,
    cWorkProCodeDis    nvarchar(60)  null,
    cWorkCenterName    nvarchar(20)  null,
    cProCode           nvarchar(80)  null,
    -- sales order, export order with their lines; orders of outsourcing, purchase and import
    cSaleOrderCode     nvarchar(30)  null,
    iSaleOrderIDs      int           null,
    exoCode            nvarchar(50)  null,
    iExRowNo           int           null,
    cEntrustOrderCode  nvarchar(30)  null,
    cPurOrderCode      nvarchar(60)  null,
    cImOrderCode       nvarchar(60)  null,
    -- project class and project
    cItem_class        nvarchar(10)  null,
    cItemCName         nvarchar(120) null,
    cItemCode          nvarchar(60)  null,
    cName              nvarchar(255) null,
    -- demand class and its text
    cDemandCode        nvarchar(30)  null,
    cDemandMemo        nvarchar(300) null,
    -- user fields of the line
    cDefine22 nvarchar(120) null, cDefine23 nvarchar(120) null, cDefine24 nvarchar(120) null,
    cDefine25 nvarchar(120) null, cDefine26 float null, cDefine27 float null,
    cDefine28 nvarchar(120) null, cDefine29 nvarchar(120) null, cDefine30 nvarchar(120) null,
    cDefine31 nvarchar(120) null, cDefine32 nvarchar(120) null, cDefine33 nvarchar(120) null,
    cDefine34 int null, cDefine35 int null, cDefine36 datetime null, cDefine37 datetime null,
    primary key (LineID)
)

create index IX_Demo_DocumentLine_Document on Demo_DocumentLine (DocID)
create index IX_Demo_DocumentLine_Inventory on Demo_DocumentLine (cInvCode)
create index IX_Demo_DocumentLine_Dispatch on Demo_DocumentLine (iDLsID)
create index IX_Demo_DocumentLine_Invoice on Demo_DocumentLine (iSBsID)
create index IX_Demo_DocumentLine_Source on Demo_DocumentLine (cGuidSource)

-- Settlements of purchase receipts.
create table Pursettlevouchs (
    -- row, IA_Subsidiary.psvsid
    ID          int   not null,
    -- settled quantity and amount; material part of a subcontracted settlement
    iSVQuantity float null,
    iSVPrice    money null,
    MaterialFee money null,
    primary key (ID)
)
