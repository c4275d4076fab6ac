// The report's table: its texts, what is left out of it, and what stands in its way.
#include "summary/clsLastRep.h"
#include "summary/estimate/EstimateAccount.h"

namespace kavelin::test {

namespace {

class EstimateTable : public EstimateAccount {
  protected:
    EstimateTable() { Use(kArrivalReversal); }
};

// A report made from sums that no run has filled.
class EstimateSums : public EstimateAccount {
  protected:
    EstimateSums()
    {
        objHost.Run(
            "create table Sums (AutoID int null, ID int null, cVouType nvarchar(4) null,"
            " QcQuantity decimal(34,2) null, QcMoney decimal(34,2) null,"
            " InQuantity decimal(34,2) null, InMoney decimal(34,2) null,"
            " OutQuantity decimal(34,2) null, OutMoney decimal(34,2) null,"
            " QmQuantity decimal(34,2) null, QmMoney decimal(34,2) null)");
        Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    }

    std::string Result(const std::string& balance)
    {
        objHost.Run("delete from Sums");
        objHost.Run("insert into Sums values (1, 1, '01', " + balance + ")");
        const auto connection = CurrentPlatform().CreateConnection();
        connection->SetConnectionString(objHost.Answers().vosDbName);
        connection->Open("", "", -1);
        ModPub().gcnnAccount = std::shared_ptr<Connection>(connection);
        clsLastRep report;
        report.SetTempTablename("EstimateResult");
        EXPECT_FALSE(report.Createsql("Sums", false));
        return objHost.Query("select ID from EstimateResult");
    }
};

}  // namespace

TEST_F(EstimateTable, ShowsTheTextsOfTheFirstLedgerLineOfADocumentLine)
{
    objHost.Run("insert into VouchType values (N'01', N'采购入库单'), (N'24', N'红字回冲单')");
    objHost.Run(
        "insert into AA_Enum values (N'IA.VchType', N'采购入库单', N'zh-CN', N'采购入库单'),"
        " (N'IA.VchType', N'采购入库单', N'en-US', N'Purchase receipt')");
    objHost.Run("insert into Rd_Style values (N'11', N'采购入库')");
    objHost.Run("insert into VendorClass values (N'9', N'钢厂')");
    objHost.Run("insert into Vendor values (N'V1', N'东方钢厂', N'9')");
    objHost.Run("insert into InventoryClass values (N'3', N'原料')");
    objHost.Run(
        "update Inventory set cInvCCode = N'3', cInvAddCode = N'A-1', cInvStd = N'2mm',"
        " cComUnitCode = N'kg', cInvDefine7 = N'd7' where cInvCode = N'A'");
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100", .batch = "L1", .free1 = "红"});
    objHost.Run(
        "update IA_Subsidiary set cVouCode = N'R1', cRdCode = N'11', cVenCode = N'V1',"
        " cAccDep = N'1', cDepCode = N'2', dVouDate = '2008-03-02', cName = N'项目', cMemo = N'备注',"
        " cPurOrderCode = N'PO1', cDefine3 = N'd3', cDefine22 = N'd22'");
    Add({.id = 1, .month = 3, .quantity = "5", .money = "50", .batch = "L2"});

    EXPECT_EQ(Balance(3), "1: - -, 15.00 150.00, 0.00 0.00, 15.00 150.00\n");
    EXPECT_EQ(objHost.Query("select cVouCode, cWhCode, cWhName, cInvCCode, cInvCName, cInvCode, cInvName,"
                            " cInvAddCode, cInvStd, cComUnitCode, cVouType, cVouTypeName, cBusType"
                            " from EstimateResult"),
              "cVouCode,cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,"
              "cComUnitCode,cVouType,cVouTypeName,cBusType\n"
              "R1,01,主仓,3,原料,A,钢板,A-1,2mm,kg,01,采购入库单,普通采购\n");
    EXPECT_EQ(
        objHost.Query("select cRdCode, cRdName, cVCCode, cVCName, cVenCode, cVenName, cdepcode, cDepName,"
                      " cName, cPurOrderCode, cBatchIA, cDefine3, cDefine22, cInvDefine7, cFree1, cMemo"
                      " from EstimateResult"),
        "cRdCode,cRdName,cVCCode,cVCName,cVenCode,cVenName,cdepcode,cDepName,cName,cPurOrderCode,"
        "cBatchIA,cDefine3,cDefine22,cInvDefine7,cFree1,cMemo\n"
        "11,采购入库,9,钢厂,V1,东方钢厂,1,采购部,项目,PO1,L1,d3,d22,d7,红,备注\n");
}

TEST_F(EstimateTable, ShowsBusinessAndVoucherTypesInTheLanguageOfTheLogin)
{
    objHost.Run("insert into VouchType values (N'01', N'采购入库单')");
    objHost.Run(
        "insert into AA_Enum values (N'IA.VchType', N'采购入库单', N'en-US', N'Purchase receipt'),"
        " (N'IA.BusType', N'普通采购', N'en-US', N'Ordinary purchase'),"
        " (N'IA.BusType', N'普通采购', N'zh-CN', N'不要这个')");
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    Add({.id = 2, .month = 3, .quantity = "10", .money = "100", .business = "进料加工"});
    const std::string query = "select cVouTypeName, cBusType from EstimateResult order by ID";

    objHost.Answers().langId = "en-US";
    EXPECT_TRUE(Report(3));
    EXPECT_EQ(objHost.Query(query),
              "cVouTypeName,cBusType\nPurchase receipt,Ordinary purchase\n"
              "Purchase receipt,进料加工\n");
    objHost.Answers().langId = "zh-CN";
    EXPECT_TRUE(Report(3));
    EXPECT_EQ(objHost.Query(query), "cVouTypeName,cBusType\n,普通采购\n,进料加工\n");
}

// Item B keeps the first free item, item A none.
TEST_F(EstimateTable, ShowsOnlyFreeItemsThatAreKeptIfAsked)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100", .item = "A", .free1 = "红"});
    Add({.id = 2, .month = 3, .quantity = "10", .money = "100", .item = "B", .free1 = "蓝"});
    objHost.Run("update IA_Subsidiary set cFree2 = N'大'");
    const std::string query = "select cFree1, cFree2 from EstimateResult order by ID";
    const FakeField types = {"ia_subsidiary.cBusType", ""};

    EXPECT_TRUE(Report(3, {types, {"bDispCheckFreeOnly", "是"}}));
    EXPECT_EQ(objHost.Query(query), "cFree1,cFree2\n\"\",\"\"\n蓝,\"\"\n");
    EXPECT_TRUE(Report(3, {types, {"bDispCheckFreeOnly", "否"}}));
    EXPECT_EQ(objHost.Query(query), "cFree1,cFree2\n红,大\n蓝,大\n");
}

TEST_F(EstimateTable, LeavesOutLinesWithoutClosingMoneyIfAsked)
{
    Add({.id = 1, .month = 2, .quantity = "10", .money = "100"});
    Add({.id = 1, .month = 3, .type = "24", .quantity = "-10", .money = "-100", .source = "01"});
    Add({.id = 2, .month = 3, .quantity = "10", .money = "0"});
    Add({.id = 3, .month = 3, .quantity = "10", .money = "100"});
    const FakeField types = {"ia_subsidiary.cBusType", ""};
    const std::string settled = "1: 10.00 100.00, - -, 10.00 100.00, 0.00 0.00\n";
    const std::string free = "2: - -, 10.00 0.00, 0.00 0.00, 10.00 0.00\n";
    const std::string open = "3: - -, 10.00 100.00, 0.00 0.00, 10.00 100.00\n";
    EXPECT_EQ(Balance(3, {types, {"bDisZero", "是"}}), settled + free + open);
    EXPECT_EQ(Balance(3, {types}), settled + free + open);
    EXPECT_EQ(Balance(3, {types, {"bDisZero", "否"}}), open);
    EXPECT_EQ(Balance(3, {types, {"bDisZero", ""}}), open);
}

TEST_F(EstimateTable, ShowsOnlyWhatTheUserMaySee)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    Add({.id = 2, .month = 3, .quantity = "10", .money = "100", .warehouse = "02"});
    Add({.id = 3, .month = 3, .quantity = "10", .money = "100", .department = "2"});
    Add({.id = 4, .month = 3, .quantity = "10", .money = "100", .item = "B"});
    Add({.id = 5, .month = 3, .quantity = "10", .money = "100", .warehouse = "09"});
    Add({.id = 6, .month = 3, .quantity = "10", .money = "100", .warehouse = "", .department = ""});
    Add({.id = 7, .month = 3, .quantity = "10", .money = "100", .item = "unknown"});
    const auto shown = [&] {
        EXPECT_TRUE(Report(3));
        return objHost.Query("select ID from EstimateResult order by ID");
    };
    EXPECT_EQ(shown(), "ID\n1\n2\n3\n4\n6\n7\n");  // warehouse 09 takes no part in costing

    for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
        SetParameter("IA", name, "True");
    EXPECT_EQ(shown(), "ID\n1\n2\n3\n4\n5\n6\n7\n");  // may see everything
    objHost.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'1'"}, {"Inventory", "'1'"}};
    EXPECT_EQ(shown(), "ID\n1\n6\n");
    objHost.Answers().lists = {{"Inventory", "1=2"}};
    EXPECT_EQ(shown(), "ID\n");
    objHost.Answers().lists = {{"Warehouse", "1=2"}};
    EXPECT_EQ(shown(), "ID\n6\n");
}

TEST_F(EstimateTable, TakesThePlaceOfATableOfTheAccountButNotOfOneInTempdb)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    objHost.Run("create table EstimateResult (x int)");
    EXPECT_EQ(Balance(3), "1: - -, 10.00 100.00, 0.00 0.00, 10.00 100.00\n");

    objHost.Answers().sql = "tempdb..EstimateTaken";
    EXPECT_TRUE(Report(3));
    EXPECT_FALSE(Report(3));
    EXPECT_TRUE(objHost.HasTable("Ia_ZgSumTmpTableMACHINE7"));
}

TEST_F(EstimateTable, EndsWithoutAWordIfTheFilterLacksTheMonthOrTheDigitsAreUnknown)
{
    objHost.SetFilter({{"ia_subsidiary.iyear", "2008"}, {"ia_subsidiary.cBusType", ""}});
    objHost.Filter()->whereByToken = {{1, "ia_subsidiary.iyear = 2008"}, {2, ""}};
    clsLastRep().GETSQL(*objHost.LateArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");

    SetParameter("AA", "iStrsQuanDecDgt", "");
    EXPECT_FALSE(Report(3));
    EXPECT_EQ(objHost.Events().Text().find("ShowMessage"), std::string::npos);
}

TEST_F(EstimateTable, LeavesNoWorkTableBehind)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    EXPECT_TRUE(Report(3));
    for (const char* table :
         {"Ia_ZgTmpTableMACHINE7", "Ia_ZgSumTmpTableMACHINE7", "IA_tempAcc1MACHINE7", "IA_tempAcc2MACHINE7"})
        EXPECT_FALSE(objHost.HasTable(table)) << table;
}

TEST_F(EstimateSums, ShowLinesThatMoved)
{
    const char* moved[] = {
        "1, 0, 0, 0, 0, 0, 0, 0",        "0, 1, 0, 0, 0, 0, 0, 0",          "0, 0, 1, 0, 0, 0, 0, 0",
        "0, 0, 0, 1, 0, 0, 0, 0",        "0, 0, 0, 0, 1, 0, 0, 0",          "0, 0, 0, 0, 0, 1, 0, 0",
        "-1, 0, null, null, 0, 0, 0, 0", "null, null, null, 5, 0, 0, 0, 0",
    };
    for (const char* balance : moved)
        EXPECT_EQ(Result(balance), "ID\n1\n") << balance;
}

TEST_F(EstimateSums, LeaveOutALineThatDidNotMoveThoughItHasAClosing)
{
    const char* unmoved[] = {
        "0, 0, 0, 0, 0, 0, 7, 70",
        "null, null, null, null, null, null, 7, 70",
        "0, null, null, 0, 0, 0, 0, 0",
    };
    for (const char* balance : unmoved)
        EXPECT_EQ(Result(balance), "ID\n") << balance;
}

}  // namespace kavelin::test
