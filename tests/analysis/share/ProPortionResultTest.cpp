// What the capital share computes on a small account. The rows wanted are computed by hand; the sums stand
// beside each case, the rows in tests/results/capital-share.
#include "analysis/clsProPortion.h"
#include "frame/Errors.h"
#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kTables[] = {
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, bInCost bit null)",
    "create table ComputationUnit (cComUnitCode nvarchar(20) not null, cComUnitName nvarchar(20) null)",
    "create table Inventory (cInvCode nvarchar(60) not null, cInvCCode nvarchar(24) null, cInvName"
    " nvarchar(255) null, cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null,"
    " cComUnitCode nvarchar(20) null, iid nvarchar(60) null)",
    "create table IA_Subsidiary (AutoID int identity(1,1) not null, iYear smallint not null, dKeepDate datetime"
    " not null, cVouType nvarchar(4) not null, cBusType nvarchar(60) null, bRdFlag tinyint not null,"
    " cWhCode nvarchar(10) null, cInvCode nvarchar(60) not null, iAInPrice money null, iAOutPrice money null,"
    " iDebitDifCost money null, iCreditDifCost money null)",
    "insert into Warehouse values ('01', 1)",
    "insert into Warehouse values ('02', 1)",
    "insert into Warehouse values ('09', 0)",
    "insert into ComputationUnit values ('kg', N'千克')",
    "insert into Inventory values ('A', '01', N'钢板', 'A-1', '2mm', 'kg', '1')",
    "insert into Inventory values ('B', '01', N'铜线', null, '', 'kg', '2')",
    "insert into Inventory values ('C', '02', N'螺丝', 'C-1', 'M6', 'none', null)",
};

class CapitalShare : public testing::Test {
  protected:
    CapitalShare()
    {
        for (const char* sql : kTables)
            host.Run(sql);
        host.Answers().sql = "tempdb..share";
    }

    struct Line {
        const char* item;
        const char* amount;
        const char* debit = "null";
        const char* credit = "null";
        const char* businessType = "N'普通采购'";
        const char* voucherType = "01";
        const char* warehouse = "'01'";
        const char* date = "2008-07-31";
        int year = 2008;
    };

    void Add(const Line& line, bool receipt)
    {
        host.Run(
            std::string(
                "insert into IA_Subsidiary (iYear, dKeepDate, cVouType, cBusType, bRdFlag, cWhCode, cInvCode,"
                " iAInPrice, iAOutPrice, iDebitDifCost, iCreditDifCost) values (") +
            std::to_string(line.year) + ", '" + line.date + "', '" + line.voucherType + "', " +
            line.businessType + ", " + (receipt ? "1" : "0") + ", " + line.warehouse + ", '" + line.item +
            "', " + (receipt ? line.amount : "null") + ", " + (receipt ? "null" : line.amount) + ", " +
            line.debit + ", " + line.credit + ")");
    }
    void Receipt(const Line& line) { Add(line, true); }
    void Issue(const Line& line) { Add(line, false); }

    void RunReport() { clsProPortion().GETSQL(*host.EarlyArgument()); }

    void ExpectResult(const std::string& name)
    {
        RunReport();
        host.ExpectRows("select * from tempdb..share order by cNo", "capital-share/" + name);
        for (const char* table :
             {"ia_ProPortionRpt_temp1", "ia_ProPortionRpt_temp2", "ia_ProPortionRpt_temp"})
            EXPECT_FALSE(host.HasTable(table)) << table;
    }

    AccountHost host;
};

}  // namespace

// Total 1000. Computed 50.006 -> 50.01, 30.006 -> 30.01, 19.988 -> 19.99, in all 100.01. The largest becomes
// 100 - (30.01 + 19.99) = 50.00.
TEST_F(CapitalShare, GivesWhatRoundingLeftOverToTheLargestShare)
{
    Receipt({.item = "A", .amount = "500.06"});
    Receipt({.item = "B", .amount = "300.06"});
    Receipt({.item = "C", .amount = "199.88"});
    ExpectResult("rounding");
}

// A: 107 = 100 + 10 - 3. B: 143 - (40 + 5 - 2) = 100. Total 207; 107/207 = 51.690..., 100/207 = 48.309...
TEST_F(CapitalShare, LetsTheDifferencesSwapRolesBetweenReceiptsAndIssues)
{
    Receipt({.item = "A", .amount = "100", .debit = "10", .credit = "3"});
    Receipt({.item = "B", .amount = "143"});
    Issue({.item = "B", .amount = "40", .debit = "2", .credit = "5"});
    ExpectResult("differences");
}

// 100/3 = 33.33 each; one of the three becomes 100 - 66.66 = 33.34, whichever the engine puts first.
TEST_F(CapitalShare, ChangesOnlyOneOfTheItemsThatTieForTheLargestShare)
{
    for (const char* item : {"A", "B", "C"})
        Receipt({.item = item, .amount = "100"});
    RunReport();
    EXPECT_EQ(host.Query("select 资金占用额, 所占比重 from tempdb..share order by 所占比重 desc"),
              "资金占用额,所占比重\n100.00,33.34\n100.00,33.33\n100.00,33.33\n");
    EXPECT_EQ(host.Query("select cNo from tempdb..share order by cNo"), "cNo\n1\n2\n3\n");
}

// Total -300 + 100 = -200; A: -300/-200 = 150 %, B: 100/-200 = -50 %, on the last place.
TEST_F(CapitalShare, RunsUnguardedOnANegativeTotal)
{
    Issue({.item = "A", .amount = "300"});
    Receipt({.item = "B", .amount = "100"});
    ExpectResult("negative-total");
}

// Total 150 - 50 = 100; the item with a negative amount has -50 % and the last place.
TEST_F(CapitalShare, PutsANegativeShareLast)
{
    Receipt({.item = "C", .amount = "150"});
    Issue({.item = "A", .amount = "50"});
    ExpectResult("negative-item");
}

TEST_F(CapitalShare, IsZeroForEveryItemWhenTheTotalIsZero)
{
    Receipt({.item = "A", .amount = "100"});
    Issue({.item = "B", .amount = "60"});
    Issue({.item = "C", .amount = "40"});
    RunReport();
    host.ExpectRows("select cinvcode, 资金占用额, 所占比重 from tempdb..share order by cinvcode",
                    "capital-share/zero-total");
    EXPECT_EQ(host.Query("select cNo from tempdb..share order by cNo"), "cNo\n1\n2\n3\n");
}

TEST_F(CapitalShare, OfASingleItemIsAHundredWithoutARepair)
{
    Receipt({.item = "A", .amount = "33.33"});
    ExpectResult("single-item");
    for (const SentStatement& statement : host.Sent())
        EXPECT_FALSE(statement.sql.starts_with("update"));
}

TEST_F(CapitalShare, OfAnEmptyLedgerIsATableWithoutRows)
{
    ExpectResult("empty-ledger");
}

// Counted: 10 without a business type and 20 of an ordinary one. Not counted: direct shipments, voucher type
// 33, another year, a warehouse that takes no part in costing. No warehouse at all stays: 5.
TEST_F(CapitalShare, LeavesOutDirectShipmentsOpeningEstimatesAndOtherYears)
{
    Receipt({.item = "A", .amount = "10", .businessType = "null"});
    Receipt({.item = "A", .amount = "20"});
    Receipt({.item = "A", .amount = "5", .warehouse = "null"});
    Receipt({.item = "A", .amount = "1000", .businessType = "N'直运采购'"});
    Issue({.item = "B", .amount = "2000", .businessType = "N'直运销售'"});
    Receipt({.item = "B", .amount = "4000", .voucherType = "33"});
    Receipt({.item = "B", .amount = "8000", .year = 2007});
    Receipt({.item = "B", .amount = "16000", .warehouse = "'09'"});
    ExpectResult("left-out");
}

TEST_F(CapitalShare, KeepsAnItemThatTheAccountDoesNotKnow)
{
    Receipt({.item = "X", .amount = "60"});
    Receipt({.item = "C", .amount = "40"});
    ExpectResult("unknown-item");
}

TEST_F(CapitalShare, IsCutToTheTopByCNo)
{
    Receipt({.item = "A", .amount = "10"});
    Receipt({.item = "B", .amount = "60"});
    Receipt({.item = "C", .amount = "30"});
    host.SetFilter({{"cNo", "2"}});
    ExpectResult("top-two");
}

// In the range: A 40 of July, B 10 of July. C has the class 02, A's June line is too early.
TEST_F(CapitalShare, CountsOnlyWhatTheFilterLetsThrough)
{
    Receipt({.item = "A", .amount = "40", .date = "2008-07-01"});
    Receipt({.item = "A", .amount = "400", .date = "2008-06-30"});
    Receipt({.item = "B", .amount = "10"});
    Receipt({.item = "B", .amount = "100", .warehouse = "'02'"});
    Receipt({.item = "C", .amount = "50"});
    host.SetFilter({{"cinvcode", "A", "C"},
                    {"cwhcode", "01", "01"},
                    {"cinvccode", "01", "01"},
                    {"imonth", "2008-07-01", "2008-07-31"},
                    {"cNo", ""}});
    ExpectResult("filtered");
}

// The user may see warehouse 01 and item 2 (B). A line without a warehouse passes, an item without an id
// passes only where the list holds the empty code.
TEST_F(CapitalShare, ShowsOnlyWhatTheUserMaySee)
{
    host.Run("insert into AccInformation values ('IA', 'bWarehouseCheck', 'True', null)");
    host.Run("insert into AccInformation values ('IA', 'bInventoryCheck', '', 'TRUE')");
    host.Answers().lists = {{"Warehouse", "'01'"}, {"Inventory", "'2'"}};
    Receipt({.item = "A", .amount = "1000"});
    Receipt({.item = "B", .amount = "30"});
    Receipt({.item = "B", .amount = "7", .warehouse = "null"});
    Receipt({.item = "B", .amount = "500", .warehouse = "'02'"});
    Receipt({.item = "C", .amount = "200"});
    ExpectResult("permissions");

    host.Answers().sql = "tempdb..with_empty";
    host.Answers().lists["Inventory"] = "'2',''";
    RunReport();
    EXPECT_EQ(host.Query("select cinvcode, 资金占用额 from tempdb..with_empty order by cinvcode"),
              "cinvcode,资金占用额\nB,37.00\nC,200.00\n");

    host.Answers().sql = "tempdb..no_right";
    host.Answers().lists["Inventory"] = "1=2";
    RunReport();
    EXPECT_EQ(host.Query("select cinvcode from tempdb..no_right"), "cinvcode\n");
}

// The names of the work tables are fixed and nothing guards them: a run takes those of another one away.
TEST_F(CapitalShare, DropsTheWorkTablesOfAnotherRun)
{
    for (const char* table : {"ia_ProPortionRpt_temp1", "ia_ProPortionRpt_temp2", "ia_ProPortionRpt_temp"})
        host.Run(std::string("create table ") + table + " (other int null)");
    Receipt({.item = "A", .amount = "33.33"});
    ExpectResult("single-item");
}

TEST_F(CapitalShare, FailsForAResultTableThatExistsAndLeavesItsWorkTables)
{
    Receipt({.item = "A", .amount = "60"});
    Receipt({.item = "B", .amount = "40"});
    host.Run("create table share (cNo int not null)");
    host.Answers().sql = "share";
    try {
        RunReport();
        ADD_FAILURE() << "the table was there already";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Get().lngNumber, 2714) << error.what();
    }
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    EXPECT_EQ(host.Query("select cNo from share"), "cNo\n");
    for (const char* table : {"ia_ProPortionRpt_temp1", "ia_ProPortionRpt_temp2", "ia_ProPortionRpt_temp"})
        EXPECT_TRUE(host.HasTable(table)) << table;

    // The next run drops what the failed one left.
    host.Answers().sql = "tempdb..share";
    ExpectResult("after-a-failure");
    host.Answers().sql = "tempdb..again";
    RunReport();
    EXPECT_EQ(host.Query("select cinvcode, 所占比重 from tempdb..again order by cNo"),
              "cinvcode,所占比重\nA,60.00\nB,40.00\n");
}

}  // namespace kavelin::test
