// What the two methods that reverse estimates leave in the report. Each line reads "ID: opening, receipts,
// issue, closing", each a quantity and its money.
#include "summary/estimate/EstimateAccount.h"

namespace kavelin::test {

namespace {

class MonthReversalBalance : public EstimateAccount {
  protected:
    MonthReversalBalance() { Use(kMonthReversal); }
};

class ArrivalReversalBalance : public EstimateAccount {
  protected:
    ArrivalReversalBalance() { Use(kArrivalReversal); }
};

// What was taken out in May and not brought back.
class OpenReversal : public EstimateAccount {
  protected:
    OpenReversal() { Use(kMonthReversal); }
};

}  // namespace

TEST_F(MonthReversalBalance, TakesAnEstimateOfTheMonthIn)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 2, .month = 3, .quantity = "4", .money = "40", .flag = 0});  // at its price
    Add({.id = 3, .month = 3, .type = "08", .quantity = "5", .money = "50"});
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.00, 0.00 0.00, 100.00 1000.00\n");
}

TEST_F(MonthReversalBalance, KeepsWhatIsTakenOutAndBroughtBackOpen)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 1, .month = 4, .type = "24", .quantity = "-100", .money = "-1000", .source = "01"});
    Add({.id = 1, .month = 4, .type = "30", .quantity = "100", .money = "1000", .source = "01"});
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n");
}

// The invoice of 30 pieces tells 330; the estimate of theirs was 300.
TEST_F(MonthReversalBalance, LetsTheEstimateOfWhatIsSettledGo)
{
    Add({.id = 1, .month = 5, .type = "24", .quantity = "-100", .money = "-1000", .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "30", .money = "330", .flag = 0, .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "70", .money = "700", .source = "01"});
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n");

    Add({.id = 2, .month = 5, .type = "24", .quantity = "-10", .money = "-100", .source = "70"});
    Add({.id = 2, .month = 5, .type = "30", .quantity = "10", .money = "115", .flag = 0, .source = "70"});
    EXPECT_EQ(Balance(5),
              "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n"
              "2: 10.00 100.00, - -, 10.00 100.00, - -\n");
}

TEST_F(MonthReversalBalance, ReadsNoMonthButItsOwn)
{
    Add({.id = 1, .month = 0, .type = "33", .quantity = "9", .money = "90", .source = "01"});
    Add({.id = 2, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 3, .month = 5, .quantity = "7", .money = "70"});
    Add({.id = 4, .month = 4, .quantity = "7", .money = "70", .year = 2007});
    EXPECT_EQ(Balance(4), "");
}

// 30 pieces settled in May at 330, 70 in June at 690. What is open is taken out at the beginning of each
// month and brought back at its end.
TEST_F(MonthReversalBalance, FollowsALineToItsEnd)
{
    const auto takeOut = [&](int month, const char* quantity, const char* money) {
        Add({.id = 1, .month = month, .type = "24", .quantity = quantity, .money = money, .source = "01"});
    };
    const auto bringBack = [&](int month, const char* quantity, const char* money, int flag) {
        Add({.id = 1,
             .month = month,
             .type = "30",
             .quantity = quantity,
             .money = money,
             .flag = flag,
             .source = "01"});
    };
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    takeOut(4, "-100", "-1000");
    bringBack(4, "100", "1000", 1);
    takeOut(5, "-100", "-1000");
    bringBack(5, "30", "330", 0);
    bringBack(5, "70", "700", 1);
    takeOut(6, "-70", "-700");
    bringBack(6, "70", "690", 0);
    for (const int month : {3, 4, 5, 6, 7})
        Add(SummaryRow{.month = month});
    EXPECT_EQ(Balance(2), "");
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.00, 0.00 0.00, 100.00 1000.00\n");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n");
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n");
    EXPECT_EQ(Balance(6), "1: 70.00 700.00, - -, 70.00 700.00, - -\n");
    EXPECT_EQ(Balance(7), "");
}

// Of five pieces that went back, two are settled in May.
TEST_F(MonthReversalBalance, TakesReturnedGoodsWithTheirSign)
{
    Add({.id = 1, .month = 3, .quantity = "-5", .money = "-50"});
    Add({.id = 1, .month = 4, .type = "24", .quantity = "5", .money = "50", .source = "01"});
    Add({.id = 1, .month = 4, .type = "30", .quantity = "-5", .money = "-50", .source = "01"});
    Add({.id = 1, .month = 5, .type = "24", .quantity = "5", .money = "50", .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "-2", .money = "-22", .flag = 0, .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "-3", .money = "-30", .source = "01"});
    for (const int month : {3, 4, 5})
        Add(SummaryRow{.month = month});
    EXPECT_EQ(Balance(3), "1: - -, -5.00 -50.00, 0.00 0.00, -5.00 -50.00\n");
    EXPECT_EQ(Balance(4), "1: -5.00 -50.00, - -, 0.00 0.00, -5.00 -50.00\n");
    EXPECT_EQ(Balance(5), "1: -5.00 -50.00, - -, -2.00 -20.00, -3.00 -30.00\n");
}

// Of 1,000 with 600 of material, the work of 400 is the estimate.
TEST_F(MonthReversalBalance, LeavesTheMaterialOfSubcontractedWorkOut)
{
    SetParameter("AA", "cSysVersion", "工业");
    Add({.id = 1, .month = 3, .quantity = "10", .money = "1000", .business = kSubcontracted, .fee = "600"});
    Add({.id = 2,
         .month = 3,
         .type = "24",
         .quantity = "-10",
         .money = "-1000",
         .source = "01",
         .business = kSubcontracted,
         .fee = "-600"});
    EXPECT_EQ(Balance(3),
              "1: - -, 10.00 400.00, 0.00 0.00, 10.00 400.00\n"
              "2: 10.00 400.00, - -, 10.00 400.00, - -\n");
}

// A debit difference raises the cost, a credit difference lowers it: 1000 + 50 - 20.
TEST_F(MonthReversalBalance, CountsDifferencesToTheMoney)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000", .debit = "50", .credit = "20"});
    Add({.id = 2,
         .month = 3,
         .type = "24",
         .quantity = "-100",
         .money = "-1000",
         .source = "01",
         .debit = "-50",
         .credit = "-20"});
    EXPECT_EQ(Balance(3),
              "1: - -, 100.00 1030.00, 0.00 0.00, 100.00 1030.00\n"
              "2: 100.00 1030.00, - -, 100.00 1030.00, - -\n");
}

// Money without a price is null, which counts as 0 beside other lines; only work has 0 in its place.
TEST_F(MonthReversalBalance, TakesALineWithoutAPrice)
{
    SetParameter("AA", "cSysVersion", "工业");
    Add({.id = 1, .month = 3, .quantity = "100"});
    Add({.id = 2, .month = 3, .quantity = "10", .business = kSubcontracted});
    Add({.id = 3, .month = 3, .money = "15"});
    EXPECT_EQ(Balance(3),
              "1: - -, 100.00 -, 0.00 0.00, 100.00 -\n"
              "2: - -, 10.00 0.00, 0.00 0.00, 10.00 0.00\n"
              "3: - -, - 15.00, 0.00 0.00, - 15.00\n");
}

// Line 1 has all four quantities, and all are 0; line 2 has no opening.
TEST_F(MonthReversalBalance, DropsALineWithMoneyThatHasNoQuantity)
{
    Add({.id = 1, .month = 3, .quantity = "0", .money = "50"});
    Add({.id = 1, .month = 3, .type = "24", .quantity = "0", .money = "-20", .source = "01"});
    Add({.id = 2, .month = 3, .quantity = "0", .money = "50"});
    EXPECT_EQ(Balance(3), "2: - -, 0.00 50.00, 0.00 0.00, 0.00 50.00\n");
}

TEST_F(MonthReversalBalance, RoundsQuantitiesToThePlacesOfTheAccount)
{
    Add({.id = 1, .month = 3, .quantity = "1.23456", .money = "10.005"});
    EXPECT_EQ(Balance(3), "1: - -, 1.23 10.01, 0.00 0.00, 1.23 10.01\n");
    SetParameter("AA", "iStrsQuanDecDgt", "4");
    EXPECT_EQ(Balance(3), "1: - -, 1.2346 10.01, 0.0000 0.00, 1.2346 10.01\n");
    SetParameter("AA", "iStrsQuanDecDgt", "0");
    EXPECT_EQ(Balance(3), "1: - -, 1 10.01, 0 0.00, 1 10.01\n");
}

TEST_F(MonthReversalBalance, KeepsReceiptsAndVendorManagedStockOfOneNumberApart)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 1, .month = 3, .type = "70", .quantity = "7", .money = "70"});
    EXPECT_TRUE(Report(3));
    EXPECT_EQ(objHost.Query("select cVouType, InQuantity from EstimateResult order by cVouType"),
              "cVouType,InQuantity\n01,100.00\n70,7.00\n");
}

// ---- reversals without anything in their place

TEST_F(OpenReversal, StaysInTheClosing)
{
    Add({.id = 1, .month = 5, .type = "24", .quantity = "-100", .money = "-1000", .source = "01"});
    Add({.id = 2, .month = 5, .type = "24", .quantity = "-9", .money = "-90", .source = "01", .item = "C"});
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5),
              "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n"
              "2: 9.00 90.00, - -, 9.00 90.00, - -\n");  // its item has no row in the summary
}

// 70 pieces are open: 1,000 less 30 at 10 each; of the differences 50 and 20 their share of 70 in 100.
TEST_F(OpenReversal, StaysInTheClosingForThePartThatWasNotSettled)
{
    Add({.id = 1,
         .month = 5,
         .type = "24",
         .quantity = "-100",
         .money = "-1000",
         .source = "01",
         .cost = "10"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "30", .money = "330", .flag = 0, .source = "01"});
    Add({.id = 2,
         .month = 5,
         .type = "24",
         .quantity = "-100",
         .money = "-1000",
         .source = "01",
         .debit = "-50",
         .credit = "-20",
         .cost = "10"});
    Add({.id = 2, .month = 5, .type = "30", .quantity = "30", .money = "330", .flag = 0, .source = "01"});
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5),
              "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n"
              "2: 100.00 1030.00, - -, 30.00 309.00, 70.00 721.00\n");
}

// Three of five pieces that went back are open: -50 less two at -10 each, and of the differences their share.
TEST_F(OpenReversal, StaysInTheClosingWithTheSignOfReturnedGoods)
{
    Add({.id = 1,
         .month = 5,
         .type = "24",
         .quantity = "5",
         .money = "50",
         .source = "01",
         .debit = "10",
         .credit = "5",
         .cost = "10"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "-2", .money = "-22", .flag = 0, .source = "01"});
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5), "1: -5.00 -55.00, - -, -2.00 -22.00, -3.00 -33.00\n");
}

// 6 of 10 pieces are open: 1,000 less 4 at 100, less the material of 600 that isn't settled yet, 360.
TEST_F(OpenReversal, LeavesTheMaterialThatIsNotSettledOut)
{
    SetParameter("AA", "cSysVersion", "工业");
    Add({.id = 1,
         .month = 5,
         .type = "24",
         .quantity = "-10",
         .money = "-1000",
         .source = "01",
         .business = kSubcontracted,
         .fee = "-600",
         .cost = "100"});
    Add({.id = 1,
         .month = 5,
         .type = "30",
         .quantity = "4",
         .money = "420",
         .flag = 0,
         .source = "01",
         .business = kSubcontracted,
         .fee = "240"});
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5), "1: 10.00 400.00, - -, 4.00 160.00, 6.00 240.00\n");
}

TEST_F(OpenReversal, IsOpenNoMoreIfAllCameBack)
{
    Add({.id = 1, .month = 5, .type = "24", .quantity = "-100", .money = "-1000", .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "60", .money = "660", .flag = 0, .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "40", .money = "400", .source = "01"});
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 60.00 600.00, 40.00 400.00\n");
}

TEST_F(OpenReversal, CountsOnlyRowsOfTheSummaryForItsMonthAndForOrdinaryBusiness)
{
    const SummaryRow others[] = {{.month = 4},
                                 {.month = 5, .item = "B"},
                                 {.month = 5, .warehouse = "02"},
                                 {.month = 5, .direct = 1},
                                 {.month = 5, .period = 1},
                                 {.month = 5, .year = 2007},
                                 {.month = 5, .free1 = "红"},
                                 {.month = 5, .batch = "L1"}};
    Add({.id = 1, .month = 5, .type = "24", .quantity = "-100", .money = "-1000", .source = "01"});
    for (const SummaryRow& row : others)
        Add(row);
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 100.00 1000.00, - -\n");
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n");
}

TEST_F(OpenReversal, FindsTheRowOfWhatTheAccountValuesBy)
{
    Add({.id = 1,
         .month = 5,
         .type = "24",
         .quantity = "-1",
         .money = "-10",
         .source = "01",
         .warehouse = "01",
         .department = "1"});
    Add({.id = 2,
         .month = 5,
         .type = "24",
         .quantity = "-2",
         .money = "-20",
         .source = "01",
         .warehouse = "01",
         .department = "2"});
    Add({.id = 3,
         .month = 5,
         .type = "24",
         .quantity = "-3",
         .money = "-30",
         .source = "01",
         .warehouse = "02",
         .department = "1"});
    Add(SummaryRow{.month = 5, .warehouse = "01", .department = "1"});
    const auto open = [&](const char* style) {
        Use(kMonthReversal, style);
        EXPECT_TRUE(Report(5)) << style;
        return objHost.Query("select ID from EstimateResult where QmQuantity <> 0 order by ID");
    };
    EXPECT_EQ(open("按仓库核算"), "ID\n1\n2\n");
    EXPECT_EQ(open("按部门核算"), "ID\n1\n3\n");
    EXPECT_EQ(open("按存货核算"), "ID\n1\n2\n3\n");
}

// Item B keeps batches. Warehouse 01 values by moving average, warehouse 02 at planned prices: there the
// batch is no part of the key. Valued by item it is the item's method that counts.
TEST_F(OpenReversal, FindsTheRowOfItsBatchWhereTheValuationHasBatches)
{
    Add({.id = 1,
         .month = 5,
         .type = "24",
         .quantity = "-1",
         .money = "-10",
         .source = "01",
         .item = "B",
         .warehouse = "01",
         .batch = "L1"});
    Add({.id = 2,
         .month = 5,
         .type = "24",
         .quantity = "-2",
         .money = "-20",
         .source = "01",
         .item = "B",
         .warehouse = "01",
         .batch = "L2"});
    Add({.id = 3,
         .month = 5,
         .type = "24",
         .quantity = "-3",
         .money = "-30",
         .source = "01",
         .item = "B",
         .warehouse = "02",
         .batch = "L3"});
    Add(SummaryRow{.month = 5, .item = "B", .warehouse = "01", .batch = "L1"});
    Add(SummaryRow{.month = 5, .item = "B", .warehouse = "02"});
    const auto open = [&](const char* style) {
        Use(kMonthReversal, style);
        EXPECT_TRUE(Report(5)) << style;
        return objHost.Query("select ID from EstimateResult where QmQuantity <> 0 order by ID");
    };
    EXPECT_EQ(open("按仓库核算"), "ID\n1\n3\n");
    EXPECT_EQ(open("按存货核算"), "ID\n1\n");
}

TEST_F(OpenReversal, FindsTheRowOfItsFreeItemOrOneWithoutAny)
{
    Add({.id = 1, .month = 5, .type = "24", .quantity = "-1", .money = "-10", .source = "01", .free1 = "红"});
    Add({.id = 2, .month = 5, .type = "24", .quantity = "-2", .money = "-20", .source = "01", .free1 = "蓝"});
    Add(SummaryRow{.month = 5, .free1 = "红"});
    EXPECT_EQ(Balance(5),
              "1: 1.00 10.00, - -, 0.00 0.00, 1.00 10.00\n"
              "2: 2.00 20.00, - -, 2.00 20.00, - -\n");
    objHost.Run("update IA_Summary set cFree1 = N''");
    EXPECT_EQ(Balance(5),
              "1: 1.00 10.00, - -, 0.00 0.00, 1.00 10.00\n"
              "2: 2.00 20.00, - -, 0.00 0.00, 2.00 20.00\n");
}

// A reversal without a quantity, with a difference, and something in its place: a share of nothing.
TEST_F(OpenReversal, EndsTheReportWithoutAWordIfItHasNoQuantityToPartItsDifferenceBy)
{
    Add({.id = 1, .month = 5, .type = "24", .quantity = "0", .money = "-10", .source = "01", .debit = "5"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "3", .money = "30", .source = "01"});
    Add(SummaryRow{.month = 5});
    EXPECT_FALSE(Report(5));
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    EXPECT_EQ(objHost.Events().Text().find("ShowMessage"), std::string::npos);
    EXPECT_FALSE(objHost.HasTable("EstimateResult"));
    EXPECT_TRUE(objHost.HasTable("Ia_ZgTmpTableMACHINE7"));
    EXPECT_TRUE(objHost.HasTable("IA_tempAcc1MACHINE7"));

    // With its quantity it is parted, and the next run drops what the failed one left.
    objHost.Run("update IA_Subsidiary set iAInQuantity = -4 where cVouType = '24'");
    EXPECT_TRUE(Report(5));
    for (const char* table :
         {"Ia_ZgTmpTableMACHINE7", "Ia_ZgSumTmpTableMACHINE7", "IA_tempAcc1MACHINE7", "IA_tempAcc2MACHINE7"})
        EXPECT_FALSE(objHost.HasTable(table)) << table;
}

TEST_F(OpenReversal, CountsOnlyForTheBusinessTypesAskedFor)
{
    Add({.id = 1, .month = 5, .type = "24", .quantity = "-1", .money = "-10", .source = "01"});
    Add({.id = 2,
         .month = 5,
         .type = "24",
         .quantity = "-2",
         .money = "-20",
         .source = "01",
         .business = "进料加工"});
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5, {{"ia_subsidiary.cBusType", "进料加工"}}),
              "2: 2.00 20.00, - -, 0.00 0.00, 2.00 20.00\n");
}

// ---- arrival of the invoice

TEST_F(ArrivalReversalBalance, AddsUpTheMonthsBefore)
{
    Add({.id = 1, .month = 0, .type = "33", .quantity = "9", .money = "90", .flag = 0, .source = "01"});
    Add({.id = 2, .month = 1, .quantity = "100", .money = "1000"});
    Add({.id = 3, .month = 2, .quantity = "50", .money = "500"});
    Add({.id = 4, .month = 3, .quantity = "7", .money = "70"});
    EXPECT_EQ(Balance(1),
              "1: 9.00 90.00, - -, 0.00 0.00, 9.00 90.00\n"
              "2: - -, 100.00 1000.00, 0.00 0.00, 100.00 1000.00\n");
    EXPECT_EQ(Balance(2),
              "1: 9.00 90.00, - -, 0.00 0.00, 9.00 90.00\n"
              "2: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n"
              "3: - -, 50.00 500.00, 0.00 0.00, 50.00 500.00\n");
}

// 30 pieces settled in May at 330, 70 in June at 690.
TEST_F(ArrivalReversalBalance, FollowsALineToItsEnd)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 1,
         .month = 5,
         .type = "24",
         .quantity = "-100",
         .money = "-1000",
         .source = "01",
         .cost = "10"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "30", .money = "330", .flag = 0, .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "70", .money = "700", .source = "01"});
    Add({.id = 1,
         .month = 6,
         .type = "24",
         .quantity = "-70",
         .money = "-700",
         .source = "01",
         .cost = "10"});
    Add({.id = 1, .month = 6, .type = "30", .quantity = "70", .money = "690", .flag = 0, .source = "01"});
    for (const int month : {3, 4, 5, 6, 7})
        Add(SummaryRow{.month = month});
    EXPECT_EQ(Balance(2), "");
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.00, 0.00 0.00, 100.00 1000.00\n");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n");
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n");
    EXPECT_EQ(Balance(6), "1: 70.00 700.00, - -, 70.00 700.00, 0.00 0.00\n");
    EXPECT_EQ(Balance(7), "");
}

TEST_F(ArrivalReversalBalance, ReversesAnEstimateOfItsOwnMonth)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 1, .month = 3, .type = "24", .quantity = "-100", .money = "-1000", .source = "01"});
    Add({.id = 1, .month = 3, .type = "30", .quantity = "100", .money = "1040", .flag = 0, .source = "01"});
    Add(SummaryRow{.month = 3});
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.00, 100.00 1000.00, 0.00 0.00\n");
}

TEST_F(ArrivalReversalBalance, TakesReturnedGoodsWithTheirSign)
{
    Add({.id = 1, .month = 3, .quantity = "-5", .money = "-50"});
    Add({.id = 1, .month = 5, .type = "24", .quantity = "5", .money = "50", .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "-2", .money = "-22", .flag = 0, .source = "01"});
    Add({.id = 1, .month = 5, .type = "30", .quantity = "-3", .money = "-30", .source = "01"});
    for (const int month : {3, 4, 5, 6})
        Add(SummaryRow{.month = month});
    EXPECT_EQ(Balance(3), "1: - -, -5.00 -50.00, 0.00 0.00, -5.00 -50.00\n");
    EXPECT_EQ(Balance(4), "1: -5.00 -50.00, - -, 0.00 0.00, -5.00 -50.00\n");
    EXPECT_EQ(Balance(5), "1: -5.00 -50.00, - -, -2.00 -20.00, -3.00 -30.00\n");
    EXPECT_EQ(Balance(6), "1: -3.00 -30.00, - -, 0.00 0.00, -3.00 -30.00\n");
}

// Settled by 30 and by 20, the line has 170 back: the 50 that are open are lessened by 170 - 100 and by
// 170 - 70.
TEST_F(ArrivalReversalBalance, ComparesEachReversalOfAMonthWithAllThatCameBackOfItsLine)
{
    const auto book = [&](const char* type, const char* quantity, const char* money, int flag) {
        Add({.id = 1,
             .month = 5,
             .type = type,
             .quantity = quantity,
             .money = money,
             .flag = flag,
             .source = "01",
             .cost = "10"});
    };
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    book("24", "-100", "-1000", 1);
    book("30", "30", "330", 0);
    book("30", "70", "700", 1);
    book("24", "-70", "-700", 1);
    book("30", "20", "210", 0);
    book("30", "50", "500", 1);
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 50.00 500.00, 50.00 500.00\n");  // nothing in the summary
    Add(SummaryRow{.month = 5});
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 220.00 2200.00, -120.00 -1200.00\n");
}

TEST_F(ArrivalReversalBalance, LeavesTheMaterialOfSubcontractedWorkOut)
{
    SetParameter("AA", "cSysVersion", "工业");
    Add({.id = 1,
         .month = 0,
         .type = "33",
         .quantity = "10",
         .money = "1000",
         .source = "01",
         .business = kSubcontracted,
         .fee = "600",
         .debit = "7",
         .credit = "2"});
    Add({.id = 2, .month = 3, .quantity = "10", .money = "2000", .business = kSubcontracted, .fee = "1500"});
    EXPECT_EQ(Balance(3),
              "1: 10.00 405.00, - -, 0.00 0.00, 10.00 405.00\n"
              "2: - -, 10.00 500.00, 0.00 0.00, 10.00 500.00\n");
}

TEST_F(ArrivalReversalBalance, ShowsTheVoucherTypesAskedFor)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Add({.id = 2, .month = 3, .type = "70", .quantity = "7", .money = "70"});
    Add({.id = 2, .month = 4, .type = "24", .quantity = "-7", .money = "-70", .source = "70"});
    Add({.id = 3, .month = 0, .type = "33", .quantity = "3", .money = "30", .source = "70"});
    EXPECT_EQ(Balance(4),
              "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n"
              "2: 7.00 70.00, - -, 7.00 70.00, 0.00 0.00\n"
              "3: 3.00 30.00, - -, 0.00 0.00, 3.00 30.00\n");
    strVouTypes = "ia_subsidiary.cVouType = N'70'";
    EXPECT_EQ(Balance(4),
              "2: 7.00 70.00, - -, 7.00 70.00, 0.00 0.00\n"
              "3: 3.00 30.00, - -, 0.00 0.00, 3.00 30.00\n");
    strVouTypes = "ia_subsidiary.cVouType = N'01'";
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n");
}

}  // namespace kavelin::test
