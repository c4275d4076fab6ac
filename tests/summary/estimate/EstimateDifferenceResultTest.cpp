// What the method of differences and consignment leave in the report. Each line reads "ID: opening, receipts,
// issue, closing", each a quantity and its money.
#include "summary/estimate/EstimateAccount.h"

namespace kavelin::test {

namespace {

class DifferenceBalance : public EstimateAccount {
  protected:
    DifferenceBalance() { Use(kArrivalDifference); }

    // What the invoice of a line books: the difference, and what it settles.
    void Settle(int line, int month, const char* difference, int settlement, const std::string& quantity,
                const std::string& price, const std::string& fee = "null")
    {
        Add({.id = line,
             .month = month,
             .type = "20",
             .money = difference,
             .flag = 2,
             .source = "01",
             .business = kSettled,
             .settlement = settlement});
        AddSettlement(settlement, quantity, price, fee);
    }
};

class ConsignmentBalance : public EstimateAccount {
  protected:
    ConsignmentBalance() { Use(kArrivalReversal); }

    void Settle(int line, int month, int settlement, const std::string& quantity, const char* source = "01",
                const char* business = kSettled)
    {
        Add({.id = line,
             .month = month,
             .type = "20",
             .money = "0",
             .flag = 2,
             .source = source,
             .business = business,
             .settlement = settlement});
        AddSettlement(settlement, quantity, "0");
    }
};

}  // namespace

// 30 pieces at 330, estimated at 300, in May; 70 at 680, estimated at 700, in June.
TEST_F(DifferenceBalance, FollowsALineToItsEnd)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Settle(1, 5, "30", 1, "30", "330");
    Settle(1, 6, "-20", 2, "70", "680");
    EXPECT_EQ(Balance(2), "");
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.00, - -, 100.00 1000.00\n");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, - -, 100.00 1000.00\n");
    EXPECT_EQ(Balance(5), "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n");
    EXPECT_EQ(Balance(6), "1: 70.00 700.00, - -, 70.00 700.00, 0.00 0.00\n");
    EXPECT_EQ(Balance(7), "");
}

TEST_F(DifferenceBalance, SettlesALineTwiceInAMonth)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    Settle(1, 3, "0", 1, "30", "300");
    Settle(1, 3, "5", 2, "20", "205");
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.00, 50.00 500.00, 50.00 500.00\n");
    EXPECT_EQ(Balance(4), "1: 50.00 500.00, - -, - -, 50.00 500.00\n");
}

// Of ten pieces that went back, four are settled at 42 instead of 40, six at 57 instead of 60.
TEST_F(DifferenceBalance, TakesReturnedGoodsWithTheirSign)
{
    Add({.id = 1, .month = 3, .quantity = "-10", .money = "-100"});
    Settle(1, 4, "-2", 1, "-4", "-42");
    Settle(1, 5, "3", 2, "-6", "-57");
    EXPECT_EQ(Balance(3), "1: - -, -10.00 -100.00, - -, -10.00 -100.00\n");
    EXPECT_EQ(Balance(4), "1: -10.00 -100.00, - -, -4.00 -40.00, -6.00 -60.00\n");
    EXPECT_EQ(Balance(5), "1: -6.00 -60.00, - -, -6.00 -60.00, 0.00 0.00\n");
    EXPECT_EQ(Balance(6), "");
}

// The difference is what the settlement line holds in all: 25 + 8 - 3.
TEST_F(DifferenceBalance, CountsDifferencesToTheMoney)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "990", .debit = "15", .credit = "5"});
    Add({.id = 1,
         .month = 4,
         .type = "20",
         .money = "25",
         .flag = 2,
         .source = "01",
         .business = kSettled,
         .debit = "8",
         .credit = "3",
         .settlement = 1});
    AddSettlement(1, "30", "330");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n");
    EXPECT_EQ(Balance(5), "1: 70.00 700.00, - -, - -, 70.00 700.00\n");
}

// Of 1,000 with 600 of material, half is settled at 520 of which 300 are material. Its estimate is 200.
TEST_F(DifferenceBalance, LeavesTheMaterialOfSubcontractedWorkOut)
{
    SetParameter("AA", "cSysVersion", "工业");
    Add({.id = 1, .month = 3, .quantity = "10", .money = "1000", .business = kSubcontracted, .fee = "600"});
    Settle(1, 4, "20", 1, "5", "520", "300");
    EXPECT_EQ(Balance(3), "1: - -, 10.00 400.00, - -, 10.00 400.00\n");
    EXPECT_EQ(Balance(4), "1: 10.00 400.00, - -, 5.00 200.00, 5.00 200.00\n");
    EXPECT_EQ(Balance(5), "1: 5.00 200.00, - -, - -, 5.00 200.00\n");
}

TEST_F(DifferenceBalance, DoesNotLookAtTheMaterialOfOtherSettlements)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "1000"});
    Settle(1, 4, "0", 1, "5", "500", "300");
    EXPECT_EQ(Balance(4), "1: 10.00 1000.00, - -, 5.00 500.00, 5.00 500.00\n");
}

TEST_F(DifferenceBalance, BeginsWithTheEstimatesOfTheYearsBefore)
{
    Add({.id = 1, .month = 0, .type = "33", .quantity = "9", .money = "90", .flag = 0, .source = "01"});
    Add({.id = 2, .month = 1, .quantity = "100", .money = "1000"});
    Add({.id = 3, .month = 12, .quantity = "8", .money = "80", .year = 2007});
    Settle(1, 1, "1", 1, "4", "41");
    EXPECT_EQ(Balance(1),
              "1: 9.00 90.00, - -, 4.00 40.00, 5.00 50.00\n"
              "2: - -, 100.00 1000.00, - -, 100.00 1000.00\n");
    EXPECT_EQ(Balance(2),
              "1: 5.00 50.00, - -, - -, 5.00 50.00\n"
              "2: 100.00 1000.00, - -, - -, 100.00 1000.00\n");
}

// In its own month a settlement line counts with any bFlag but that of an estimate, later only with 2; in its
// month it must be a settlement or consignment, later it may also be of a type asked for.
TEST_F(DifferenceBalance, ReadsSettlementLinesOfItsMonthByOtherRulesThanOlderOnes)
{
    const struct {
        int flag;
        const char* business;
        const char *inItsMonth, *later;
    } cases[] = {
        {2, "暂估报销", "4.00", "6.00"},  {0, "暂估报销", "4.00", "10.00"}, {1, "暂估报销", "", "10.00"},
        {2, "受托代销", "4.00", "10.00"}, {2, "普通采购", "", "6.00"},      {2, "进料加工", "", "10.00"},
    };
    for (const auto& c : cases) {
        objHost.Run("delete from IA_Subsidiary");
        objHost.Run("delete from Pursettlevouchs");
        Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
        Add({.id = 1,
             .month = 4,
             .type = "20",
             .money = "0",
             .flag = c.flag,
             .source = "01",
             .business = c.business,
             .settlement = 1});
        AddSettlement(1, "4", "40");
        const std::vector<FakeField> filter = {{"ia_subsidiary.cBusType", "普通采购"}};
        EXPECT_TRUE(Report(4, filter));
        EXPECT_EQ(objHost.Query("select OutQuantity from EstimateResult"),
                  std::string("OutQuantity\n") + c.inItsMonth + "\n")
            << c.flag << c.business;
        EXPECT_TRUE(Report(5, filter));
        EXPECT_EQ(objHost.Query("select QcQuantity from EstimateResult"),
                  std::string("QcQuantity\n") + c.later + "\n")
            << c.flag << c.business;
    }
}

TEST_F(DifferenceBalance, SettlesADocumentLineByItsNumberAndType)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    Add({.id = 1, .month = 3, .type = "70", .quantity = "20", .money = "200"});
    Settle(1, 3, "0", 1, "4", "40");
    Settle(2, 3, "0", 2, "5", "50");
    EXPECT_TRUE(Report(3));
    EXPECT_EQ(objHost.Query("select cVouType, QmQuantity from EstimateResult order by cVouType"),
              "cVouType,QmQuantity\n01,6.00\n70,20.00\n");
}

TEST_F(DifferenceBalance, TakesASettlementThatIsNotThereForNoQuantityAndTheDifferenceTurned)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    Add({.id = 1,
         .month = 3,
         .type = "20",
         .money = "7",
         .flag = 2,
         .source = "01",
         .business = kSettled,
         .settlement = 99});
    EXPECT_EQ(Balance(3), "1: - -, 10.00 100.00, - -7.00, 10.00 107.00\n");
}

TEST_F(DifferenceBalance, HasConsignmentAmongTheOtherTypes)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100", .business = kConsigned});
    Add({.id = 2, .month = 3, .quantity = "20", .money = "200"});
    Settle(1, 4, "3", 1, "4", "43");
    EXPECT_EQ(Balance(4),
              "1: 10.00 100.00, - -, 4.00 40.00, 6.00 60.00\n"
              "2: 20.00 200.00, - -, - -, 20.00 200.00\n");
    EXPECT_EQ(Balance(4, {{"ia_subsidiary.cBusType", "受托代销"}}),
              "1: 10.00 100.00, - -, 4.00 40.00, 6.00 60.00\n");
    EXPECT_EQ(Balance(4, {{"ia_subsidiary.cBusType", "普通采购"}}),
              "2: 20.00 200.00, - -, - -, 20.00 200.00\n");
}

TEST_F(DifferenceBalance, KeepsTheMoneyOfTheLedger)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    AddReceipt(1, "10", "555", "55.5");
    EXPECT_EQ(Balance(3), "1: - -, 10.00 100.00, - -, 10.00 100.00\n");
}

// ---- consignment beside a method that reverses

// 100 pieces at 1,000.03; 30 settled in April, 20 in May. What is part of the document goes at its unit cost.
TEST_F(ConsignmentBalance, FollowsALineToItsEnd)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000.03", .business = kConsigned});
    AddReceipt(1, "100", "1000.03", "10.0003");
    Settle(1, 4, 1, "30");
    Settle(1, 5, 2, "20");
    EXPECT_EQ(Balance(3), "1: - -, 100.00 1000.03, - -, 100.00 1000.03\n");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.03, - -, 30.00 300.01, 70.00 700.02\n");
    EXPECT_EQ(Balance(5), "1: 70.00 700.02, - -, 20.00 200.01, 50.00 500.01\n");
    EXPECT_EQ(Balance(6), "1: 50.00 500.01, - -, - -, 50.00 500.01\n");
}

// A red receipt: all of its document at the document's money, what is settled of it at its unit cost.
TEST_F(ConsignmentBalance, TakesReturnedGoodsWithTheirSign)
{
    Add({.id = 1, .month = 3, .quantity = "-100", .money = "-1000.03", .business = kConsigned});
    AddReceipt(1, "-100", "-1000.03", "10.0003");
    Settle(1, 4, 1, "-30");
    EXPECT_EQ(Balance(3), "1: - -, -100.00 -1000.03, - -, -100.00 -1000.03\n");
    EXPECT_EQ(Balance(4), "1: -100.00 -1000.03, - -, -30.00 -300.01, -70.00 -700.02\n");
    EXPECT_EQ(Balance(5), "1: -70.00 -700.02, - -, - -, -70.00 -700.02\n");
}

// The unit cost is 10, all of the document 1,000.01: -100 pieces are all of it turned as an opening only.
TEST_F(ConsignmentBalance, TurnsTheMoneyOfAWholeDocumentInTheOpeningOnly)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "0", .business = kConsigned});
    AddReceipt(1, "100", "1000.01", "10");
    Settle(1, 4, 1, "100");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.01, - -, 100.00 1000.01, 0.00 0.00\n");
    EXPECT_EQ(Balance(5), "");

    Add({.id = 2, .month = 3, .quantity = "-100", .money = "0", .business = kConsigned});
    AddReceipt(2, "100", "1000.01", "10");
    EXPECT_EQ(Balance(3, {{"ia_subsidiary.cBusType", "受托代销"}}),
              "1: - -, 100.00 1000.01, - -, 100.00 1000.01\n"
              "2: - -, -100.00 -1000.00, - -, -100.00 -1000.00\n");
    EXPECT_EQ(Balance(4),
              "1: 100.00 1000.01, - -, 100.00 1000.01, 0.00 0.00\n"
              "2: -100.00 -1000.01, - -, - -, -100.00 -1000.01\n");
}

TEST_F(ConsignmentBalance, TakesTheMoneyOfVendorManagedStockFromItsConfirmation)
{
    Add({.id = 1,
         .month = 0,
         .type = "33",
         .quantity = "10",
         .money = "1",
         .flag = 0,
         .source = "70",
         .business = kConsigned});
    Add({.id = 2, .month = 3, .type = "70", .quantity = "8", .money = "1", .business = kConsigned});
    AddConfirmation(1, "10", "101", "10");
    AddConfirmation(2, "8", "81", "10");
    Settle(1, 3, 1, "4", "70");
    Settle(2, 3, 2, "8", "70", kConsigned);
    EXPECT_EQ(Balance(3),
              "1: 10.00 101.00, - -, 4.00 40.00, 6.00 61.00\n"
              "2: - -, 8.00 81.00, 8.00 81.00, 0.00 0.00\n");
}

// Work that was given out: all of 1,000 less 600 of material, and half of it.
TEST_F(ConsignmentBalance, LeavesTheMaterialOfADocumentOfSubcontractedWorkOut)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "0", .business = kConsigned});
    AddReceipt(1, "10", "1000", "100", kSubcontracted, "600");
    Settle(1, 3, 1, "5");
    EXPECT_EQ(Balance(3), "1: - -, 10.00 400.00, 5.00 200.00, 5.00 200.00\n");
}

TEST_F(ConsignmentBalance, HasNoMoneyWithoutADocument)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100", .business = kConsigned});
    EXPECT_EQ(Balance(3), "1: - -, 10.00 -, - -, 10.00 0.00\n");
}

TEST_F(ConsignmentBalance, StandsBesideTheOtherTypes)
{
    for (const char* method : {kMonthReversal, kArrivalReversal}) {
        Use(method);
        objHost.Run("delete from IA_Subsidiary");
        objHost.Run("delete from rdrecords01");
        objHost.Run("delete from rdrecord01");
        Add({.id = 1, .month = 3, .quantity = "10", .money = "100", .business = kConsigned});
        AddReceipt(1, "10", "100", "10");
        Add({.id = 2, .month = 3, .quantity = "20", .money = "200"});
        const std::string consigned = "1: - -, 10.00 100.00, - -, 10.00 100.00\n";
        const std::string bought = "2: - -, 20.00 200.00, 0.00 0.00, 20.00 200.00\n";
        EXPECT_EQ(Balance(3), consigned + bought) << method;
        EXPECT_EQ(Balance(3, {{"ia_subsidiary.cBusType", "受托代销"}}), consigned) << method;
        EXPECT_EQ(Balance(3, {{"ia_subsidiary.cBusType", "普通采购"}}), bought) << method;
        EXPECT_EQ(Balance(3, {{"ia_subsidiary.cBusType", "普通采购,受托代销"}}), consigned + bought)
            << method;
    }
}

// As an account has it that settled by differences until April.
TEST_F(ConsignmentBalance, TakesDifferencesOfBoughtGoodsInWhereItIsAskedFor)
{
    Add({.id = 1, .month = 3, .quantity = "100", .money = "1000"});
    AddReceipt(1, "100", "1000", "10", "普通采购");
    Settle(1, 4, 1, "30");
    EXPECT_EQ(Balance(4), "1: 100.00 1000.00, - -, 30.00 300.00, 70.00 700.00\n");
    EXPECT_EQ(Balance(5), "1: 70.00 700.00, - -, 0.00 0.00, 70.00 700.00\n");
    EXPECT_EQ(Balance(4, {{"ia_subsidiary.cBusType", "普通采购"}}),
              "1: 100.00 1000.00, - -, 0.00 0.00, 100.00 1000.00\n");
}

TEST_F(ConsignmentBalance, IsNoPartOfAnIndustrialAccount)
{
    SetParameter("AA", "cSysVersion", "工业");
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100", .business = kConsigned});
    for (const char* method : {kMonthReversal, kArrivalReversal, kArrivalDifference}) {
        Use(method);
        EXPECT_EQ(Balance(3), "") << method;
        EXPECT_EQ(Balance(3, {{"ia_subsidiary.cBusType", "受托代销"}}), "") << method;
    }
}

TEST_F(ConsignmentBalance, IsEmptyForAMethodThatIsNotKnown)
{
    Add({.id = 1, .month = 3, .quantity = "10", .money = "100"});
    for (const char* method : {"", "unknown"}) {
        Use(method);
        EXPECT_EQ(Balance(3), "") << method;
        EXPECT_TRUE(objHost.HasTable("EstimateResult"));
    }
}

}  // namespace kavelin::test
