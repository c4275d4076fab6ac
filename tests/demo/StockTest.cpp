#include "demo/Stock.h"

#include "demo/DemoCompany.h"
#include "demo/MemorySink.h"

#include <gtest/gtest.h>

#include <map>

namespace kavelin::demo {
namespace {

Item OneItem()
{
    Item item;
    item.code = "A-01";
    item.price = 1000;  // 10.00
    item.step = 100;
    return item;
}

Place PlaceIn(const Item& item, std::string_view warehouse)
{
    Place place;
    place.item = &item;
    place.warehouse = warehouse;
    return place;
}

TEST(Stock, IssuesAtTheMovingAverage)
{
    const Item item = OneItem();
    Place place = PlaceIn(item, "01");
    Receive(place, 0, 300, 1000);  // 3 for 10.00
    const Movement one = Issue(place, 1, 100);
    EXPECT_EQ(one.amount, 333);  // 10.00 * 1 / 3, to the cent
    const Movement two = Issue(place, 1, 100);
    EXPECT_EQ(two.amount, 334);  // 6.67 * 1 / 2 is 3.335
    const Movement three = Issue(place, 1, 100);
    EXPECT_EQ(three.amount, 333);  // what is left
    EXPECT_EQ(place.quantity, 0);
    EXPECT_EQ(place.amount, 0);
    EXPECT_EQ(one.debitDifference + one.creditDifference, 0);
}

TEST(Stock, KeepsDifferencesToPlannedPricesApart)
{
    const Item item = OneItem();
    Place place = PlaceIn(item, "03");
    const Movement dear = Receive(place, 1, 400, 4400);  // planned 40.00, paid 44.00
    EXPECT_EQ(dear.amount, 4000);
    EXPECT_EQ(dear.debitDifference, 400);
    EXPECT_EQ(dear.creditDifference, 0);
    const Movement cheap = Receive(place, 1, 100, 900);  // planned 10.00, paid 9.00
    EXPECT_EQ(cheap.debitDifference, 0);
    EXPECT_EQ(cheap.creditDifference, 100);
    EXPECT_EQ(place.difference, 300);

    const Movement issue = Issue(place, 2, 200);
    EXPECT_EQ(issue.amount, 2000);
    EXPECT_EQ(issue.creditDifference, 120);  // 3.00 * 2 / 5
    EXPECT_EQ(issue.debitDifference, 0);
    EXPECT_EQ(place.difference, 180);
    Issue(place, 2, 300);
    EXPECT_EQ(place.amount, 0);
    EXPECT_EQ(place.difference, 0);
}

TEST(Stock, BooksReturnsWithNegativeNumbersOnTheirOwnSide)
{
    const Item item = OneItem();
    Place place = PlaceIn(item, "01");
    Receive(place, 1, 1000, 5000);
    const Movement sentBack = SendBack(place, 1, 200);
    EXPECT_TRUE(sentBack.receipt);
    EXPECT_EQ(sentBack.quantity, -200);
    EXPECT_EQ(sentBack.amount, -1000);
    const Movement takenBack = TakeBack(place, 1, 100);
    EXPECT_FALSE(takenBack.receipt);
    EXPECT_EQ(takenBack.quantity, -100);
    EXPECT_EQ(takenBack.amount, -500);
    EXPECT_EQ(place.quantity, 900);
    EXPECT_EQ(place.amount, 4500);
    EXPECT_EQ(place.months[1].inQuantity, 800);
    EXPECT_EQ(place.months[1].outQuantity, -100);
}

TEST(Stock, RoundsAmountsHalfAwayFromZero)
{
    const struct {
        std::int64_t quantity, price, amount;
    } cases[] = {
        {50, 1, 1}, {49, 1, 0}, {-50, 1, -1}, {-49, 1, 0}, {333, 300, 999}, {0, 500, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(AmountOf(c.quantity, c.price), c.amount) << c.quantity << " at " << c.price;
}

TEST(Summary, CarriesBalancesThroughMonthsWithoutMovement)
{
    const Item item = OneItem();
    std::vector<Place> places = {PlaceIn(item, "01")};
    Receive(places[0], 0, 500, 2500);
    Issue(places[0], 3, 200);

    MemorySink sink;
    WriteSummary(places, 2008, sink);
    const MemoryTable& rows = sink.Table("IA_Summary");
    ASSERT_EQ(rows.rows.size(), 13u);
    EXPECT_EQ(rows.Hundredths(0, "iINum"), 0);  // the opening is no movement
    EXPECT_EQ(rows.Hundredths(0, "iNum"), 500);
    EXPECT_EQ(rows.Hundredths(2, "iNum"), 500);
    EXPECT_EQ(rows.Hundredths(3, "iONum"), 200);
    EXPECT_EQ(rows.Hundredths(3, "iOMoney"), 1000);
    EXPECT_EQ(rows.Hundredths(3, "iNum"), 300);
    EXPECT_EQ(rows.Hundredths(12, "iMoney"), 1500);
}

TEST(Summary, HasOneRowForEachKeyAndMonth)
{
    const MemorySink sink = Generate(20000, kDefaultSeed);
    const MemoryTable& rows = sink.Table("IA_Summary");
    std::map<std::string, int> seen;
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        std::string key;
        for (const char* column : {"iMonth", "cInvCode", "cWhCode", "cFree1", "cBatchIA"})
            key += rows.Text(row, column) + "|";
        EXPECT_EQ(++seen[key], 1) << key;
    }
    EXPECT_EQ(seen.size() % 13, 0u);
}

}  // namespace
}  // namespace kavelin::demo
