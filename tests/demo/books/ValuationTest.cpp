#include "demo/books/SmallBooks.h"

#include <gtest/gtest.h>

#include <vector>

namespace kavelin::demo {
namespace {

std::vector<std::int64_t> Costs(const SmallBooks& small)
{
    std::vector<std::int64_t> costs;
    for (std::size_t i = 1; i <= small.Ledger().rows.size(); ++i)
        costs.push_back(small.Cost(i));
    return costs;
}

using Amounts = std::vector<std::int64_t>;

TEST(MonthlyAverage, TakesReceiptsOfTheWholeMonthIntoAccount)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Issue(place, 500);  // before the dearer goods come
    small.Receive(place, 1000, 14000);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 6000, 14000}));  // 240.00 / 20 = 12.00
}

TEST(MonthlyAverage, LeavesRoundingInThePoolUntilItIsEmpty)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 300, 3100);
    small.Open(1);
    small.Issue(place, 100);
    small.Open(2);
    small.Issue(place, 100);
    small.Issue(place, 100);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{3100, 1033, 1034, 1033}));
}

TEST(MonthlyAverage, LetsReturnsToTheVendorGoDownByWhatTheyCost)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Receive(place, -200, -3000);
    small.Issue(place, 400);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, -3000, 3500}));  // 70.00 / 8 = 8.75
}

TEST(MonthlyAverage, TakesBackFromCustomersAtTheAverage)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Receive(place, 1000, 12000);
    small.Issue(place, -100);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 12000, -1100}));
}

TEST(MonthlyAverage, UsesTheLastUnitCostWhenReversalsLeaveNoGoods)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 1000, 12000);
    small.Open(1);
    small.Receive(place, -1000, -12000);
    small.Issue(place, 300);
    small.Receive(place, 100, 1500);
    small.End(false);
    EXPECT_EQ(Costs(small),
              (Amounts{12000, -12000, 4500, 1500}));  // what is known is the last receipt: 15.00
    EXPECT_EQ(small.Ledger().rows.size(), 4u);
}

TEST(MonthlyAverage, UsesThePriceOfGoodsThatWereNeverThere)
{
    SmallBooks small;
    small.Open(1);
    small.Issue(small.At(kMonthly), 300);
    small.End(false);
    EXPECT_EQ(Costs(small), (Amounts{3000}));
}

TEST(MonthlyAverage, LeavesTransfersWithinThePoolOut)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    const std::int32_t out = small.Issue(place, 500);
    small.ReceiveFrom(place, 500, out);
    small.Receive(place, 1000, 16000);
    small.Issue(place, 100);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 6500, 6500, 16000, 1300}));  // 260.00 / 20
}

TEST(MovingAverage, CostsEachIssueByWhatIsThere)
{
    SmallBooks small;
    const Place& place = small.At(kMoving);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Issue(place, 500);
    small.Receive(place, 500, 7000);
    small.Issue(place, 500);
    small.Issue(place, -100);
    small.Issue(place, 600);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 5000, 7000, 6000, -1200, 7200}));
}

TEST(MovingAverage, GivesAllThatIsLeftToTheLastIssue)
{
    SmallBooks small;
    const Place& place = small.At(kMoving);
    small.Receive(place, 300, 3100);
    small.Open(1);
    for (int i = 0; i < 3; ++i)
        small.Issue(place, 100);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{3100, 1033, 1034, 1033}));
}

TEST(MovingAverage, CostsIssuesAsLastWhileReversalsLeaveNothing)
{
    SmallBooks small;
    const Place& place = small.At(kMoving);
    small.Receive(place, 1000, 12000);
    small.Open(1);
    small.Issue(place, 400);              // 6 left at 12.00
    small.Receive(place, -1000, -12000);  // 4 less than nothing
    small.Issue(place, 100);
    small.Receive(place, 1000, 12000);
    small.Issue(place, 100);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{12000, 4800, -12000, 1200, 12000, 1200}));
}

TEST(MovingAverage, CostsIssuesAsLastWhereReversalsLeaveLittleGoodsForMuchMoney)
{
    SmallBooks small;
    const Place& place = small.At(kMoving);
    small.Receive(place, 1000, 11000);
    small.Open(1);
    small.Receive(place, -900, -9000);  // one left for 20.00
    small.Issue(place, 50);
    small.Receive(place, 900, 9000);
    small.Issue(place, 950);  // the last, with all the money
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{11000, -9000, 550, 9000, 10450}));
}

TEST(FirstIn, TakesTheOldestLayers)
{
    SmallBooks small;
    const Place& place = small.At(kFifo);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Receive(place, 1000, 14000);
    small.Issue(place, 1500);  // 10 at 10.00, 5 at 14.00
    small.Issue(place, 200);
    small.Issue(place, 300);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 14000, 17000, 2800, 4200}));
}

TEST(FirstIn, TakesReturnsToTheVendorFromTheNewestAndKeepsTheRest)
{
    SmallBooks small;
    const Place& place = small.At(kFifo);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Receive(place, 1000, 14000);
    small.Receive(place, -500, -6000);  // 7 at 14.00 would be 70.00
    small.Issue(place, 1000);
    small.Issue(place, 400);
    small.Issue(place, 100);  // the last, with the 10.00 that the return was short of
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 14000, -6000, 10000, 5600, 2400}));
}

TEST(FirstIn, PutsWhatCustomersReturnInFront)
{
    SmallBooks small;
    const Place& place = small.At(kFifo);
    small.Receive(place, 200, 2000);
    small.Open(1);
    small.Receive(place, 200, 3000);
    small.Issue(place, 300);   // 20.00 and 15.00
    small.Issue(place, -100);  // at 15.00, which is next
    small.Issue(place, 200);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{2000, 3000, 3500, -1500, 3000}));
}

TEST(FirstIn, GivesAmountsAloneToTheNewestGoods)
{
    SmallBooks small;
    const Place& place = small.At(kFifo);
    small.Receive(place, 100, 1000);
    small.Receive(place, 100, 1000);
    small.Open(1);
    small.Amount(place, true, 300);
    small.Issue(place, 100);
    small.Issue(place, 50);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{1000, 1000, 300, 1000, 650}));
}

TEST(FirstIn, FillsWhatWentOutWithoutALayerFirst)
{
    SmallBooks small;
    const Place& place = small.At(kFifo);
    small.Receive(place, 500, 6000);
    small.Open(1);
    small.Issue(place, 300);
    small.Receive(place, -500, -6000);  // 3 owed
    small.Receive(place, 500, 6500);    // 2 of them are there
    small.Issue(place, 100);
    small.End(false);
    EXPECT_EQ(small.Cost(2), 3600);
    EXPECT_EQ(small.Cost(5), 1300);
}

TEST(LastIn, TakesTheNewestLayers)
{
    SmallBooks small;
    const Place& place = small.At(kLifo);
    small.Receive(place, 1000, 10000);
    small.Open(1);
    small.Receive(place, 1000, 14000);
    small.Issue(place, 1500);
    small.Issue(place, 500);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 14000, 19000, 5000}));
}

TEST(PlannedPrice, PartsReceiptsIntoPlanAndDifference)
{
    SmallBooks small;
    const Place& place = small.At(kPlanned);
    small.Receive(place, 400, 4400);
    small.Receive(place, 100, 900);
    small.Open(1);
    small.Issue(place, 200);  // 3.00 of 50.00 is 6%
    small.Issue(place, -100);
    small.End();

    const MemoryTable& ledger = small.Ledger();
    EXPECT_EQ(ledger.Hundredths(0, "iAInPrice"), 4000);
    EXPECT_EQ(ledger.Hundredths(0, "iDebitDifCost"), 400);
    EXPECT_EQ(ledger.Hundredths(0, "iCreditDifCost"), 0);
    EXPECT_EQ(ledger.Hundredths(1, "iDebitDifCost"), 0);
    EXPECT_EQ(ledger.Hundredths(1, "iCreditDifCost"), 100);
    EXPECT_EQ(ledger.Hundredths(2, "iAOutPrice"), 2000);
    EXPECT_EQ(ledger.Hundredths(2, "iCreditDifCost"), 120);
    EXPECT_EQ(ledger.Hundredths(2, "iDebitDifCost"), 0);
    EXPECT_EQ(ledger.Hundredths(3, "iAOutPrice"), -1000);
    EXPECT_EQ(ledger.Hundredths(3, "iDebitDifCost"), 60);
}

TEST(PlannedPrice, GivesTheWholeDifferenceToTheIssueThatLeavesNothing)
{
    SmallBooks small;
    const Place& place = small.At(kPlanned);
    small.Receive(place, 300, 3100);
    small.Open(1);
    small.Issue(place, 100);
    small.Issue(place, 100);
    small.Issue(place, 100);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{3100, 1033, 1033, 1034}));
    EXPECT_EQ(small.Ledger().rows.size(), 4u);
}

TEST(PlannedPrice, LeavesDifferencesAloneThatGoodsCantCarry)
{
    SmallBooks small;
    const Place& place = small.At(kPlanned);
    small.Receive(place, 1000, 12000);
    small.Open(1);
    small.Receive(place, -900, -9000);  // one left with a difference of 20.00
    small.Issue(place, 50);
    small.End(false);
    EXPECT_EQ(small.Cost(3), 500);
}

TEST(PlannedPrice, TakesAnAmountAloneAsDifference)
{
    SmallBooks small;
    const Place& place = small.At(kPlanned);
    small.Receive(place, 100, 1000);
    small.Open(1);
    small.Amount(place, true, 50);
    small.End();
    const MemoryTable& ledger = small.Ledger();
    EXPECT_EQ(ledger.Text(1, "iAInPrice"), "0");
    EXPECT_EQ(ledger.Hundredths(1, "iDebitDifCost"), 50);
    EXPECT_TRUE(ledger.At(1, "iAInQuantity").IsNull());
    EXPECT_TRUE(ledger.At(1, "iInCost").IsNull());
}

TEST(CostOf, TakesWhatTheGoodsCostInTheOtherPool)
{
    SmallBooks small;
    small.Receive(small.At(kMonthly), 1000, 10000);
    small.Receive(small.At(kMoving), 1000, 11000);
    small.Open(1);
    const std::int32_t out = small.Issue(small.At(kMonthly), 500);
    small.ReceiveFrom(small.At(kMoving), 500, out);
    small.Receive(small.At(kMonthly), 1000, 14000);  // changes what the issue costs
    small.Issue(small.At(kMoving), 300);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{10000, 11000, 6000, 6000, 14000, 3400}));
}

TEST(CostOf, SharesTheCostByWhatThePartsAreWorth)
{
    SmallBooks small;
    small.Receive(small.At(kMonthly), 200, 2001);
    small.Open(1);
    const std::int32_t out = small.Issue(small.At(kMonthly), 200);
    small.ReceiveFrom(small.At(kMoving), 100, out);                // worth 10.00
    small.ReceiveFrom(small.At(kMoving, "B", "P0712"), 250, out);  // worth 5.00
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{2001, 2001, 1334, 667}));
}

TEST(CostOf, CostsAPoolOfHigherRankFirstWhereGoodsComeFromIt)
{
    SmallBooks small;
    small.Receive(small.At(kFifo), 100, 1234);
    small.Open(1);
    const std::int32_t out = small.Issue(small.At(kFifo), 100);
    small.ReceiveFrom(small.At(kMonthly), 100, out);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{1234, 1234, 1234}));
}

TEST(ClosingAdjustments, TakeOffAnAmountWithoutGoods)
{
    SmallBooks small;
    const Place& place = small.At(kMoving);
    small.Receive(place, 100, 1000);
    small.Open(1);
    small.Receive(place, -100, -900);
    small.End();

    const MemoryTable& ledger = small.Ledger();
    ASSERT_EQ(ledger.rows.size(), 3u);
    EXPECT_EQ(ledger.Text(2, "cVouType"), "21");
    EXPECT_EQ(ledger.Hundredths(2, "iAOutPrice"), 100);
    EXPECT_TRUE(ledger.At(2, "iAOutQuantity").IsNull());
    EXPECT_EQ(ledger.Text(2, "dKeepDate"), "2008-01-31");

    const MemoryTable& lines = small.sink.Table("Demo_DocumentLine");
    ASSERT_EQ(lines.rows.size(), 1u);
    EXPECT_EQ(lines.Text(0, "LineID"), ledger.Text(2, "ID"));
    EXPECT_EQ(lines.Hundredths(0, "iPrice"), 100);
    EXPECT_EQ(small.sink.Table("Demo_Document").Text(0, "Kind"), "JUST");
}

TEST(ClosingAdjustments, BringGoodsFarFromTheirPriceBackToIt)
{
    SmallBooks small;
    small.Receive(small.At(kFifo), 100, 3500);
    small.Receive(small.At(kPlanned), 100, 3500);
    small.Receive(small.At(kMoving), 100, 2900);
    small.Open(1);
    small.Open(2);
    small.Issue(small.At(kFifo), 50);
    small.End();
    EXPECT_EQ(Costs(small), (Amounts{3500, 3500, 2900, 2500, 2500, 500}));
    EXPECT_EQ(small.Ledger().Hundredths(3, "iCreditDifCost"),
              2500);  // of the planned price, which comes first
    EXPECT_EQ(small.Ledger().Hundredths(4, "iAOutPrice"), 2500);
}

TEST(ClosingAdjustments, AreNotMadeInAnOpenMonthNorBehindTheLastRow)
{
    for (const bool final : {false, true}) {
        SmallBooks small(PlainProfile(), 2);
        const Place& place = small.At(kMoving);
        small.Receive(place, 100, 1000);
        small.Open(1);
        small.Receive(place, -100, -900);
        small.End(final);
        EXPECT_EQ(small.Ledger().rows.size(), 2u) << final;
    }
}

}  // namespace
}  // namespace kavelin::demo
