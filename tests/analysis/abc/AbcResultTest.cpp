// What the ABC analysis computes on a small account; the arithmetic stands beside each case.
#include "analysis/AbcOptions.h"
#include "analysis/ClsABC.h"
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
    " nvarchar(255) null, cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null, cComUnitCode nvarchar(20)"
    " null, bService bit null, bInvType bit null, iid nvarchar(60) null)",
    "create table IA_Summary (AutoID int identity(1,1) not null, iYear smallint not null, iMonth tinyint not"
    " null, cInvCode nvarchar(60) not null, cWhCode nvarchar(10) null, cDepCode nvarchar(20) null,"
    " iNum float null, iMoney money null, iDif money null)",
    "insert into Warehouse values ('01', 1)",
    "insert into ComputationUnit values ('kg', N'千克')",
    "insert into Inventory values ('A', '01', N'钢板', 'A-1', '2mm', 'kg', 0, 0, '1')",
    "insert into Inventory values ('B', '01', N'铜线', null, '', 'kg', 0, 0, '2')",
    "insert into Inventory values ('C', '02', N'螺丝', 'C-1', 'M6', 'none', 0, 0, null)",
};

class AbcResult : public testing::Test {
  protected:
    AbcResult()
    {
        for (const char* sql : kTables)
            host.Run(sql);
        host.Answers().sql = "tempdb..abc";
        host.Answers().args["ABC"] = "1";
        host.SetFilter(
            {{"iYear", "2008"}, {"iPeriod", "7月"}, {"incluA", "是"}, {"incluB", "是"}, {"incluC", "是"}});
    }

    void Add(const std::string& item, const std::string& quantity, const std::string& money,
             const std::string& difference = "null", int month = 7, int year = 2008)
    {
        host.Run("insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode, iNum, iMoney, iDif) values (" +
                 std::to_string(year) + ", " + std::to_string(month) + ", '" + item + "', '01', " + quantity +
                 ", " + money + ", " + difference + ")");
    }

    std::string Run()
    {
        ClsABC().GETSQL(*host.LateArgument());
        return host.Query(
            "select 存货_编码, 分析_数量, 分析_数量比例, 分析_金额, 分析_金额比例, 分析_ABC类别"
            " from tempdb..abc order by 存货_编码");
    }

    AccountHost host;
};

const std::string kHead = "存货_编码,分析_数量,分析_数量比例,分析_金额,分析_金额比例,分析_ABC类别\n";

}  // namespace

// Quantity 9/10 and 1/10, money 10/100 and 90/100. 0.9 is C by quantity and 0.1 B by money: B. 0.1 is A and 0.9
// A: A.
TEST_F(AbcResult, GradesTwoItemsByQuantityAndByMoney)
{
    Add("A", "9", "10");
    Add("B", "1", "90");
    EXPECT_EQ(Run(), kHead + "A,9,0.9000,10.0000,0.1000,B\nB,1,0.1000,90.0000,0.9000,A\n");
    EXPECT_EQ(host.Query("select 存货_名称, 存货_代码, 存货_规格, 存货_单位, 分析_备注, 分析_ABC分类数量"
                         " from tempdb..abc where 存货_编码 = 'A'"),
              "存货_名称,存货_代码,存货_规格,存货_单位,分析_备注,分析_ABC分类数量\n钢板,A-1,2mm,千克,,1\n");
}

// The difference belongs to the money: 80 + 10 = 90.
TEST_F(AbcResult, AddsTheDifferenceToTheMoney)
{
    Add("A", "9", "10");
    Add("B", "1", "80", "10");
    EXPECT_EQ(Run(), kHead + "A,9,0.9000,10.0000,0.1000,B\nB,1,0.1000,90.0000,0.9000,A\n");
}

// Total of quantity 10, so 10/10 rounds to 1 and the negative one to 0.
TEST_F(AbcResult, GivesANegativeQuantityNoShareButAGrade)
{
    Add("A", "10", "50");
    Add("B", "-4", "50");
    EXPECT_EQ(Run(), kHead + "A,10,1.0000,50.0000,0.5000,B\nB,-4,0.0000,50.0000,0.5000,B\n");
}

// Money 40 in all: 0 and less have no share, and stay in the table with grade C by money. Quantity 0.25 is B.
TEST_F(AbcResult, GivesMoneyThatIsNotAboveZeroNoShareButAGrade)
{
    Add("A", "10", "-5");
    Add("B", "10", "0");
    Add("C", "20", "40");
    EXPECT_EQ(
        Run(),
        kHead + "A,10,0.2500,-5.0000,0.0000,B\nB,10,0.2500,0.0000,0.0000,B\nC,20,0.5000,40.0000,1.0000,C\n");
}

// What lies below the bottom of both scales has no grade, and no grade is class A. 0.95 is C by quantity.
TEST_F(AbcResult, PutsAnItemWithoutAGradeIntoClassA)
{
    for (const AbcOption& option : kAbcOptions)
        host.Answers().settings["存货核算, ABCOption872, " + std::string(option.key)] = option.byDefault;
    for (const char* bottom : {"M4", "N1"})
        host.Answers().settings[std::string("存货核算, ABCOption872, ") + bottom] = "10";
    Add("A", "95", "95");
    Add("B", "5", "5");
    EXPECT_EQ(Run(), kHead + "A,95,0.9500,95.0000,0.9500,C\nB,5,0.0500,5.0000,0.0500,A\n");
}

// The total counts rows above zero only: 30 and 10 of 50, then the largest takes what is missing.
TEST_F(AbcResult, CountsARowBelowZeroInItsItemAndNotInTheTotal)
{
    Add("A", "40", "40");
    Add("A", "-10", "-10");
    Add("B", "10", "10");
    EXPECT_EQ(Run(), kHead + "A,30,0.8000,30.0000,0.8000,C\nB,10,0.2000,10.0000,0.2000,B\n");
}

// 1/3 = 0.3333 each; one of the three becomes 1 - 0.6666.
TEST_F(AbcResult, GivesWhatRoundingLeftOverToOneOfTheLargest)
{
    for (const char* item : {"A", "B", "C"})
        Add(item, "1", "1");
    EXPECT_EQ(Run(),
              kHead + "A,1,0.3334,1.0000,0.3334,B\nB,1,0.3333,1.0000,0.3333,B\nC,1,0.3333,1.0000,0.3333,B\n");
}

TEST_F(AbcResult, GivesTheTopRowTheWholeWhereThereIsNoQuantity)
{
    Add("A", "0", "30");
    Add("B", "0", "70");
    EXPECT_EQ(Run(), kHead + "A,0,1.0000,30.0000,0.3000,B\nB,0,0.0000,70.0000,0.7000,A\n");
}

TEST_F(AbcResult, GivesASingleItemTheWhole)
{
    Add("A", "3", "30");
    EXPECT_EQ(Run(), kHead + "A,3,1.0000,30.0000,1.0000,C\n");
}

TEST_F(AbcResult, CountsItsMonthAndYearOnlyAndSumsAnItemsRows)
{
    Add("A", "1", "10");
    Add("A", "2", "20");
    Add("A", "100", "100", "null", 6);
    Add("A", "100", "100", "null", 7, 2007);
    EXPECT_EQ(Run(), kHead + "A,3,1.0000,30.0000,1.0000,C\n");
}

TEST_F(AbcResult, OfAnEmptyMonthIsATableWithoutRows)
{
    EXPECT_EQ(Run(), kHead);
}

TEST_F(AbcResult, LeavesNoWorkingTableBehind)
{
    Add("A", "1", "10");
    Run();
    EXPECT_EQ(host.Query("select count(*) as n from tempdb..sysobjects where name like 'IA_InvABC%'"),
              "n\n0\n");
}

// Quantity 0.2 is B already, and 0.5 is C; money 0.1 is B and 0.7 A.
TEST_F(AbcResult, LetsAShareOnALimitBelongToTheHigherGrade)
{
    Add("A", "5", "7");
    Add("B", "2", "1");
    Add("C", "3", "2");
    EXPECT_EQ(Run(),
              kHead + "A,5,0.5000,7.0000,0.7000,C\nB,2,0.2000,1.0000,0.1000,B\nC,3,0.3000,2.0000,0.2000,B\n");
}

}  // namespace kavelin::test
