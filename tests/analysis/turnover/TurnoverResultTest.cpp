// What the inventory turnover computes on a small account; the arithmetic stands beside each case.
#include "analysis/clsCinTurnRep.h"
#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kTables[] = {
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table VosSystem..UA_Period (cAcc_ID nvarchar(3) not null, iYear smallint not null, iID tinyint not"
    " null, dBegin datetime not null, dEnd datetime not null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, cWhName nvarchar(60) null, bInCost bit null)",
    "create table Department (cDepCode nvarchar(20) not null, cDepName nvarchar(60) null)",
    "create table ComputationUnit (cComUnitCode nvarchar(20) not null, cComUnitName nvarchar(20) null)",
    "create table Inventory (cInvCode nvarchar(60) not null, cInvCCode nvarchar(24) null, cInvName"
    " nvarchar(255) null, cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null, cComUnitCode nvarchar(20)"
    " null, bPurchase bit null, bSale bit null, bComsume bit null, iid nvarchar(60) null)",
    "create table IA_Subsidiary (AutoID int identity(1,1) not null, iYear smallint not null, iMonth tinyint not"
    " null, dKeepDate datetime not null, cVouType nvarchar(4) not null, cBusType nvarchar(60) null, bRdFlag"
    " tinyint not null, cWhCode nvarchar(10) null, cDepCode nvarchar(20) null, cInvCode nvarchar(60) not null,"
    " iAInQuantity float null, iAOutQuantity float null, iAInPrice money null, iAOutPrice money null,"
    " iDebitDifCost money null, iCreditDifCost money null)",
    "insert into Warehouse values ('01', N'原料库', 1)",
    "insert into Warehouse values ('02', N'成品库', 1)",
    "insert into Department values ('03', N'采购部')",
    "insert into ComputationUnit values ('kg', N'千克')",
    "insert into Inventory values ('A', '01', N'钢板', 'A-1', '2mm', 'kg', 1, 1, 0, '1')",
    "insert into Inventory values ('B', '02', N'铜线', null, '', 'kg', 1, 0, 0, '2')",
};

class Turnover : public testing::Test {
  protected:
    Turnover()
    {
        for (const char* sql : kTables)
            host.Run(sql);
        host.Run("insert into VosSystem..UA_Period values ('001', 2008, 1, '2008-01-01', '2008-01-31')");
        host.Run("insert into VosSystem..UA_Period values ('001', 2008, 12, '2008-12-01', '2008-12-31')");
        Set("AA", "iStrsQuanDecDgt", "2");
        Set("AA", "cSysVersion", "工业");
        Set("IA", "cValueStyle", "按存货核算");
        host.Answers().sql = "tempdb..turnover";
        Filter({});
    }

    void Set(const std::string& system, const std::string& name, const std::string& value)
    {
        host.Run("delete from AccInformation where cName = '" + name + "'");
        host.Run("insert into AccInformation values ('" + system + "', '" + name + "', N'" + value +
                 "', null)");
    }

    // The first ten days of March, and more keys.
    void Filter(const std::vector<FakeField>& more, const char* from = "2008-03-01",
                const char* to = "2008-03-10")
    {
        std::vector<FakeField> fields = {{"iYear", "2008"}, {"iPeriod", from, to, true}};
        fields.insert(fields.end(), more.begin(), more.end());
        host.SetFilter(fields);
    }

    struct Line {
        const char* date;
        const char* quantity;
        const char* money;
        const char* item = "A";
        const char* type = "01";
        const char* business = "N'普通采购'";
        int month = 3;
        const char* warehouse = "'01'";
        const char* debit = "null";
        const char* credit = "null";
    };
    void Receipt(const Line& line) { Add(line, true); }
    void Issue(const Line& line) { Add(line, false); }

    std::string Run(const std::string& columns)
    {
        clsCinTurnRep().GETSQL(*host.EarlyArgument());
        return host.Query("select " + columns + " from tempdb..turnover order by 存货_编码, 仓库_编码");
    }

    std::string Amounts()
    {
        return Run(
            "存货_编码, 分析_期初余额, 分析_期末余额, 分析_平均库存, 分析_出库成本, 分析_出库数量, 分析_周转率,"
            " 分析_周转天数");
    }

    AccountHost host;

  private:
    void Add(const Line& line, bool receipt)
    {
        const std::string nothing = "null, null";
        const auto pair = [&](const char* value) {
            return receipt ? std::string(value) + ", null" : "null, " + std::string(value);
        };
        host.Run(
            "insert into IA_Subsidiary (iYear, iMonth, dKeepDate, cVouType, cBusType, bRdFlag, cWhCode,"
            " cDepCode, cInvCode, iAInQuantity, iAOutQuantity, iAInPrice, iAOutPrice, iDebitDifCost,"
            " iCreditDifCost) values (2008, " +
            std::to_string(line.month) + ", '" + line.date + "', '" + line.type + "', " + line.business +
            ", " + (receipt ? "1" : "0") + ", " + line.warehouse + ", '03', '" + line.item + "', " +
            pair(line.quantity) + ", " + pair(line.money) + ", " + line.debit + ", " + line.credit + ")");
    }
};

const std::string kHead =
    "存货_编码,分析_期初余额,分析_期末余额,分析_平均库存,分析_出库成本,分析_出库数量,分析_周转率,分析_周转天数\n";

}  // namespace

// 100 pieces stay ten days, 40 leave on the sixth: (100*10 - 40*4.5)/10 = 82. Issued 40: 40/82 = 0.487...,
// 0.49 at two decimals; 10/0.49 = 20.41 days. The balances are money: 200 and 120.
TEST_F(Turnover, WeighsAMovementByItsDaysAndHalfOfItsOwn)
{
    Receipt({.date = "2008-02-20", .quantity = "100", .money = "200", .month = 2});
    Issue({.date = "2008-03-06", .quantity = "40", .money = "80"});
    Filter({{"disMethod", "按数量"}});
    EXPECT_EQ(Amounts(), kHead + "A,200.00,120.00,82.00,0,40.00,0.49,20.41\n");
}

// By amount: (200*10 - 80*4.5)/10 = 164; 80/164 = 0.487805; 10/0.487805 = 20.50.
TEST_F(Turnover, ComputesTheSameByAmount)
{
    Receipt({.date = "2008-02-20", .quantity = "100", .money = "200", .month = 2});
    Issue({.date = "2008-03-06", .quantity = "40", .money = "80"});
    EXPECT_EQ(Amounts(), kHead + "A,200.00,120.00,164.00,80.00,0,0.487805,20.5\n");
    EXPECT_EQ(
        Run("起始日期, 结束日期, 部门_编码, 仓库_编码, 存货_分类, 存货_名称, 存货_代码, 存货_规格, 存货_单位"),
        "起始日期,结束日期,部门_编码,仓库_编码,存货_分类,存货_名称,存货_代码,存货_规格,存货_单位\n"
        "2008-03-01,2008-03-10,,,01,钢板,A-1,2mm,千克\n");
}

// One day: the opening 100 counts whole and the day's issue of 40 half: 100 - 20 = 80. 40/80 = 0.5, 1/0.5 =
// 2.
TEST_F(Turnover, TakesARangeOfOneDayAsOneDay)
{
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "100", .month = 2});
    Issue({.date = "2008-03-06", .quantity = "1", .money = "40"});
    Filter({}, "2008-03-06", "2008-03-06");
    EXPECT_EQ(Amounts(), kHead + "A,100.00,60.00,80.00,40.00,0,0.500000,2\n");
}

// 50 stand at the start and count for all ten days, 100 of the first day for 9.5, 20 of the last for 0.5:
// (50*10 + 100*9.5 + 20*0.5)/10 = 146. The 700 of the day after count nowhere.
TEST_F(Turnover, CountsTheFirstAndTheLastDayAsDaysOfTheRange)
{
    Receipt({.date = "2008-02-29", .quantity = "1", .money = "50", .month = 2});
    Receipt({.date = "2008-03-01", .quantity = "1", .money = "100"});
    Receipt({.date = "2008-03-10", .quantity = "1", .money = "20"});
    Receipt({.date = "2008-03-11", .quantity = "1", .money = "700"});
    EXPECT_EQ(Amounts(), kHead + "A,50.00,170.00,146.00,0.00,0,0.000000,0\n");
}

// Four days, of which 40 of the second stay for 2.5: 40*2.5/4 = 25. 10/25 = 0.4, 4/0.4 = 10.
TEST_F(Turnover, CountsTheDaysOfARangeThatGoesBeyondTheYear)
{
    Receipt({.date = "2008-12-31", .quantity = "1", .money = "50", .month = 12});
    Issue({.date = "2008-12-31", .quantity = "1", .money = "10", .month = 12});
    Filter({}, "2008-12-30", "2009-01-02");
    EXPECT_EQ(Amounts(), kHead + "A,0.00,40.00,25.00,10.00,0,0.400000,10\n");
}

// Half a cent becomes a cent in every row: three cents received and two issued, not two and one.
TEST_F(Turnover, RoundsTheMoneyOfEachRowBeforeItIsAdded)
{
    for (int i = 0; i < 3; ++i)
        Receipt({.date = "2008-02-20", .quantity = "1", .money = "0.005", .month = 2});
    for (int i = 0; i < 2; ++i)
        Issue({.date = "2008-03-05", .quantity = "1", .money = "0.005"});
    EXPECT_EQ(Run("分析_期初余额, 分析_期末余额, 分析_出库成本"),
              "分析_期初余额,分析_期末余额,分析_出库成本\n0.03,0.01,0.02\n");
}

// What comes and goes on one day stands for no time; what goes without having come stands below zero.
TEST_F(Turnover, GivesRateAndDaysZeroWhereTheAverageIsNotAboveZero)
{
    Receipt({.date = "2008-03-10", .quantity = "1", .money = "100"});
    Issue({.date = "2008-03-10", .quantity = "1", .money = "100"});
    Issue({.date = "2008-03-01", .quantity = "1", .money = "100", .item = "B"});
    const std::string rows =
        "A,0.00,0.00,0.00,100.00,0,0.000000,0\nB,0.00,-100.00,-95.00,100.00,0,0.000000,0\n";
    EXPECT_EQ(Amounts(), kHead + rows);
}

// (10000*10 - 20*0.5)/10 = 9999; 20/9999 = 0.002, which is nothing at two decimals.
TEST_F(Turnover, GivesNoDaysByAmountWhereTheRateIsZeroAtTwoDecimals)
{
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "10000", .month = 2});
    Issue({.date = "2008-03-10", .quantity = "1", .money = "20"});
    EXPECT_EQ(Run("分析_周转率, 分析_周转天数"), "分析_周转率,分析_周转天数\n0.002000,0\n");
}

TEST_F(Turnover, GivesRateAndDaysZeroWhereTheAverageIsZero)
{
    Issue({.date = "2008-03-10", .quantity = "0", .money = "0"});
    EXPECT_EQ(Amounts(), kHead + "A,0.00,0.00,0.00,0.00,0,0.000000,0\n");
}

TEST_F(Turnover, SumsEverythingIntoOneRowWhereNothingIsGrouped)
{
    Receipt({.date = "2008-02-20", .quantity = "100", .money = "200", .month = 2});
    Receipt({.date = "2008-02-20", .quantity = "10", .money = "50", .item = "B", .month = 2});
    Filter({{"bGroupInvCC", "否"}, {"bGroupcIn", "否"}});
    EXPECT_EQ(Amounts(), kHead + ",250.00,250.00,250.00,0.00,0,0.000000,0\n");
    for (const SentStatement& sent : host.Sent())
        EXPECT_EQ(sent.sql.find(" Group By  "), std::string::npos) << sent.sql;
}

TEST_F(Turnover, GroupsByClassOrByWarehouse)
{
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "200", .month = 2});
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "7", .month = 2, .warehouse = "'02'"});
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "50", .item = "B", .month = 2});
    Filter({{"bGroupcIn", "否"}});
    EXPECT_EQ(Run("存货_分类, 存货_编码, 分析_期初余额"),
              "存货_分类,存货_编码,分析_期初余额\n01,,207.00\n02,,50.00\n");
    Filter({{"bGroupcWh", "是"}});
    EXPECT_EQ(
        Run("仓库_编码, 仓库_名称, 存货_编码, 分析_期初余额"),
        "仓库_编码,仓库_名称,存货_编码,分析_期初余额\n01,原料库,A,200.00\n02,成品库,A,7.00\n01,原料库,B,50.00\n");
    Filter({{"bGroupDep", "是"}, {"bGroupInvCC", "否"}, {"bGroupcIn", "否"}});
    EXPECT_EQ(Run("部门_编码, 部门_名称, 存货_分类, 分析_期初余额"),
              "部门_编码,部门_名称,存货_分类,分析_期初余额\n03,采购部,,257.00\n");
}

// By quantity the issue is the 5 of the sale; by amount the two vouchers of estimates count too: 10 + 4 + 3.
TEST_F(Turnover, LeavesReversedEstimatesOutOfIssuesByQuantityOnly)
{
    Issue({.date = "2008-03-10", .quantity = "5", .money = "10", .type = "32"});
    Issue({.date = "2008-03-10", .quantity = "2", .money = "4", .type = "24"});
    Issue({.date = "2008-03-10", .quantity = "1", .money = "3", .type = "30"});
    EXPECT_EQ(Run("分析_出库成本, 分析_出库数量"), "分析_出库成本,分析_出库数量\n17.00,0\n");
    Filter({{"disMethod", "按数量"}});
    EXPECT_EQ(Run("分析_出库成本, 分析_出库数量"), "分析_出库成本,分析_出库数量\n0,5.00\n");
}

// Industrial: an issue's credit difference raises its cost, 10 + 2. Others: its debit difference lowers it,
// 10 - 1.
TEST_F(Turnover, CountsDifferencesOfIssuesByTheEdition)
{
    Issue({.date = "2008-03-10", .quantity = "5", .money = "10", .type = "32", .debit = "1", .credit = "2"});
    EXPECT_EQ(Run("分析_出库成本"), "分析_出库成本\n12.00\n");
    Set("AA", "cSysVersion", "商业");
    EXPECT_EQ(Run("分析_出库成本"), "分析_出库成本\n9.00\n");
}

// Opening rows count from vouchers 34 and direct shipments only: 5 + 6. Voucher 33 never counts. The row
// dated before the range in a real month counts: 100.
TEST_F(Turnover, OpensWithEarlierMonthsAndTheYearsDifferencesAndDirectShipments)
{
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "100", .month = 2});
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "1000", .type = "33", .month = 2});
    Receipt({.date = "2008-01-01", .quantity = "1", .money = "2000", .type = "34", .month = 0, .debit = "0"});
    Receipt({.date = "2008-01-01", .quantity = "1", .money = "6", .business = "N'直运采购'", .month = 0});
    Receipt({.date = "2008-01-01", .quantity = "1", .money = "4000", .month = 0});
    EXPECT_EQ(Run("分析_期初余额, 分析_期末余额"), "分析_期初余额,分析_期末余额\n2106.00,2106.00\n");
}

TEST_F(Turnover, CountsOnlyItemsOfTheChosenUse)
{
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "100", .month = 2});
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "50", .item = "B", .month = 2});
    Filter({{"invproperty", "销售"}});
    EXPECT_EQ(Run("存货_编码, 分析_期末余额, 分析_平均库存"),
              "存货_编码,分析_期末余额,分析_平均库存\nA,100.00,100.00\n");
}

TEST_F(Turnover, OfAnEmptyLedgerIsATableWithoutRows)
{
    EXPECT_EQ(Amounts(), kHead);
}

TEST_F(Turnover, LeavesNoWorkingTableBehind)
{
    Receipt({.date = "2008-02-20", .quantity = "1", .money = "100", .month = 2});
    Amounts();
    EXPECT_EQ(host.Query("select count(*) as n from tempdb..sysobjects where name like 'IA_InvTurn%'"),
              "n\n0\n");
}

}  // namespace kavelin::test
