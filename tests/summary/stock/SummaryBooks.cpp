#include "summary/stock/SummaryBooks.h"

#include "frame/Statement.h"
#include "frame/Text.h"
#include "summary/clsSfcSumInfo.h"

namespace kavelin::test {

namespace {

const std::string kFreeItems = Numbered(1, 10, " cFree{} nvarchar(20) null,");

// clang-format off
const std::string kTables[] = {
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, cWhName nvarchar(60) null, bInCost bit null)",
    "create table Rd_Style (cRdCode nvarchar(12) not null, cRdName nvarchar(12) null)",
    "create table ComputationUnit (cComUnitCode nvarchar(20) not null, cComUnitName nvarchar(20) null,"
    " cGroupCode nvarchar(20) null, iNumber int null, iChangRate float null)",
    "create table Inventory (cInvCode nvarchar(60) not null, cInvCCode nvarchar(24) null,"
    " cInvName nvarchar(255) null, cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null,"
    " iid nvarchar(60) null, cInvDefine1 nvarchar(120) null, iInvWeight float null,"
    " cComUnitCode nvarchar(20) null, cGroupCode nvarchar(20) null," +
    Numbered(1, 9, " bCheckFree{} bit not null default (0),") + " bCheckFree10 bit not null default (0))",
    "create table IA_Subsidiary (AutoID int identity(1,1) not null, iMonth tinyint not null,"
    " dKeepDate datetime not null, cVouType nvarchar(4) not null, bRdFlag tinyint not null,"
    " cBusType nvarchar(60) null, cWhCode nvarchar(10) null, cDepCode nvarchar(20) null,"
    " cRdCode nvarchar(12) null, cInvCode nvarchar(60) not null," + kFreeItems +
    " cItem_class nvarchar(10) null, cItemCode nvarchar(60) null, iAInQuantity float null,"
    " iAOutQuantity float null, iAInPrice money null, iAOutPrice money null, iDebitDifCost money null,"
    " iCreditDifCost money null)",
    "create table Line (ID int not null, Kind nvarchar(10) not null, cInvCode nvarchar(60) not null," +
    kFreeItems +
    " bRdFlag tinyint not null, iQuantity float null, iPrice money null, iDif money null,"
    " cBusType nvarchar(60) null, cWhCode nvarchar(10) null, cDepCode nvarchar(20) null,"
    " cRdCode nvarchar(12) null, cVouType nvarchar(4) not null, cItem_class nvarchar(10) null,"
    " cItemCode nvarchar(60) null, cAccounter nvarchar(20) null, dVouDate datetime not null,"
    " cSource nvarchar(60) null, iDLsID int null, cGuid nvarchar(40) null)",

    "insert into AccInformation (cSysID, cName, cValue) values ('IA', 'dIAStartDate', '2008-01-01'),"
    " ('IA', 'cDispLevel', '223'), ('IA', 'bSaleType', 'false'),"
    " ('IA', 'cEnDispAccountStyle', N'销售出库单')",
    "insert into Warehouse values ('01', N'原料库', 1), ('02', N'成品库', 1), ('09', N'代管库', 0)",
    "insert into Rd_Style values ('11', N'采购入库'), ('1101', N'国内采购'), ('1102', N'进口采购'),"
    " ('21', N'销售出库')",
    "insert into ComputationUnit values ('kg', N'千克', 'g', 1, 1), ('box', N'箱', 'g', 2, 12),"
    " ('pc', N'个', null, null, null)",
    "insert into Inventory (cInvCode, cInvCCode, cInvName, cInvAddCode, cInvStd, iid, cInvDefine1,"
    " iInvWeight, cComUnitCode, cGroupCode) values"
    " ('A', '0101', N'钢板', 'A-1', '2mm', '1', 'red', 1.5, 'kg', 'g'),"
    " ('B', '0102', N'铜线', null, '', '2', null, null, 'pc', null),"
    " ('C', '02', N'螺丝', 'C-1', 'M6', null, 'blue', null, 'none', null)",
    "update Inventory set bCheckFree1 = 1 where cInvCode = 'C'",

    "create view rpt_rdrecordsIA870 as select * from Line where Kind = 'RD'",
    "create view justinvouchsIA870 as select * from Line where Kind = 'JUST'",
    "create view salebillvouchsIA870 as select * from Line where Kind = 'SALE'",
    "create view rpt_PU_v_VMIUsedVouchsIA870 as select * from Line where Kind = 'VMI'",
    "create view v_ex_invoicedetailIA870 as select * from Line where Kind = 'EXINV'",
    "create view purbillvouchsIA870 as select * from Line where Kind = 'PUR'",
    // Dispatch notes of ordinary sales are costing documents only where the account says so.
    "create view DispatchListsIA870 as select * from Line where Kind = 'DISP' and (cBusType <> N'普通销售'"
    " or exists(select cName from AccInformation where cName = 'bSaleType' and cValue = N'发出商品'))",
    "create view rdrecord as select ID, cSource from Line where Kind = 'RD'",
    "create view rdrecords as select ID as AutoID, ID, iDLsID, cAccounter as cBAccounter from Line"
    " where Kind = 'RD'",
    "create view salebillvouchs as select ID as AutoID, iDLsID, cAccounter as cBAccounter from Line"
    " where Kind = 'SALE'",
    "create view ex_consignmentdetail as select ID as AutoID, cGuid as GuidS from Line where Kind = 'EXCON'",
    "create view ex_invoicedetail as select ID as AutoID, cGuid as guid_source, cAccounter as cBAccounter"
    " from Line where Kind = 'EXINV'",
};
// clang-format on

std::string Quoted(const std::string& text)
{
    return "N'" + text + "'";
}

std::string List(const std::vector<std::string>& values)
{
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "" : ", ") + value;
    return list;
}

}  // namespace

SummaryBooks::SummaryBooks()
{
    for (const std::string& sql : kTables)
        Run(sql);
    Answers().sql = "tempdb..pool";
    Answers().texts = {{"Orvo.IA.CHHSSQL.12528", "发出"}, {"Orvo.IA.CHHSSQL.13500", "收入"}};
}

void SummaryBooks::Set(const std::string& parameter, const std::string& value)
{
    Run("update AccInformation set cValue = " + Quoted(value) + " where cName = " + Quoted(parameter));
}

void SummaryBooks::Add(const LedgerLine& line)
{
    const bool issue = line.flag == "0";
    Run("insert into IA_Subsidiary (iMonth, dKeepDate, cVouType, bRdFlag, cBusType, cWhCode, cRdCode,"
        " cInvCode, cFree1, cFree2, iAInQuantity, iAInPrice, iAOutQuantity, iAOutPrice, iDebitDifCost,"
        " iCreditDifCost) values (" +
        List({std::to_string(line.month), Quoted(line.date), Quoted(line.type), line.flag, line.business,
              line.warehouse, line.rdClass, Quoted(line.item), line.freeItem1, line.freeItem2,
              issue ? "null" : line.quantity, issue ? "null" : line.money, issue ? line.quantity : "null",
              issue ? line.money : "null", line.debit, line.credit}) +
        ")");
}

void SummaryBooks::Add(const DocumentLine& line)
{
    Run("insert into Line (ID, Kind, cInvCode, cVouType, bRdFlag, dVouDate, iQuantity, iPrice, iDif, cWhCode,"
        " cBusType, cRdCode, cAccounter, cSource, iDLsID, cGuid) values (" +
        List({std::to_string(line.id), Quoted(line.kind), Quoted(line.item), Quoted(line.type), line.flag,
              Quoted(line.date), line.quantity, line.money, line.difference, line.warehouse, line.business,
              line.rdClass, line.poster, line.source, line.dispatchLine, line.guid}) +
        ")");
}

bool SummaryBooks::RunReport(const std::vector<FakeField>& fields)
{
    SetFilter(fields);
    clsSfcSumInfo().GETSQL(*EarlyArgument());
    return ConnectionsLeft().find("gcnnAccount=closed") != std::string::npos;
}

std::string SummaryBooks::Pool(const std::string& columns, const std::string& where)
{
    const std::string rows =
        Query("select " + columns + " from tempdb..pool where " + where +
              " order by cinvcode, bacc, cvoutype, qcquantity, inquantity, outquantity, id");
    return rows.substr(rows.find('\n') + 1);
}

std::string SummaryBooks::Documents()
{
    const std::string rows = Query("select id from tempdb..pool where bacc = 1 order by id");
    return ReplaceAll(rows.substr(rows.find('\n') + 1), "\n", " ");
}

}  // namespace kavelin::test
