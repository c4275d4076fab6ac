#include "demo/books/SmallBooks.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kavelin::demo {
namespace {

// "in 4 for 44.00, out ..., left ..." of the summary's row, empty if there is none.
std::string Told(const MemoryTable& summary, std::string_view item, std::string_view warehouse, int month,
                 std::string_view batch = {})
{
    std::string told;
    for (std::size_t row = 0; row < summary.rows.size(); ++row)
        if (summary.Text(row, "cInvCode") == item && summary.Text(row, "cWhCode") == warehouse &&
            summary.Text(row, "iMonth") == std::to_string(month) && summary.Text(row, "cBatchIA") == batch &&
            summary.Text(row, "iPeriod") == "0") {
            for (const std::string_view column :
                 {"iINum", "iIMoney", "iONum", "iOMoney", "iNum", "iMoney", "iDif"})
                told += summary.Text(row, column) + " ";
        }
    return told;
}

TEST(MonthSummary, HasARowForEveryMonthMovedOrNot)
{
    SmallBooks small;
    const Place& place = small.At(kMoving);
    small.Receive(place, 1000, 10000);
    small.Open(2);
    small.Receive(place, 500, 7000);
    small.Issue(place, 300);
    small.Open(4);
    small.Issue(place, 1200);
    small.End();

    const MemoryTable& summary = small.sink.Table("IA_Summary");
    EXPECT_EQ(Told(summary, "A", kMoving, 0), "0 0 0 0 10 100 0 ");
    EXPECT_EQ(Told(summary, "A", kMoving, 1), "0 0 0 0 10 100 0 ");
    EXPECT_EQ(Told(summary, "A", kMoving, 2), "5 70 3 34 12 136 0 ");
    EXPECT_EQ(Told(summary, "A", kMoving, 3), "0 0 0 0 12 136 0 ");
    EXPECT_EQ(Told(summary, "A", kMoving, 4), "0 0 12 136 0 0 0 ");
    EXPECT_EQ(Told(summary, "A", kMoving, 12), "0 0 0 0 0 0 0 ");
    EXPECT_EQ(Told(summary, "A", kFifo, 7), "0 0 0 0 0 0 0 ");  // never moved at all
}

TEST(MonthSummary, KeepsDifferencesToPlannedPricesApart)
{
    SmallBooks small;
    const Place& place = small.At(kPlanned);
    small.Receive(place, 400, 4400);
    small.Open(1);
    small.Issue(place, 100);
    small.End();
    EXPECT_EQ(Told(small.sink.Table("IA_Summary"), "A", kPlanned, 0), "0 0 0 0 4 40 4 ");
    EXPECT_EQ(Told(small.sink.Table("IA_Summary"), "A", kPlanned, 1), "0 0 1 10 3 30 3 ");
}

TEST(MonthSummary, TellsBatchesApartButAtPlannedPrices)
{
    SmallBooks small;
    for (const std::string_view warehouse : {kMonthly, kPlanned}) {
        small.Receive(small.At(warehouse, "B", "P0712"), 100, 200);
        small.Receive(small.At(warehouse, "B", "P0803"), 200, 400);
    }
    small.Open(1);
    small.End();
    const MemoryTable& summary = small.sink.Table("IA_Summary");
    EXPECT_EQ(Told(summary, "B", kMonthly, 0, "P0712"), "0 0 0 0 1 2 0 ");
    EXPECT_EQ(Told(summary, "B", kMonthly, 0, "P0803"), "0 0 0 0 2 4 0 ");
    EXPECT_EQ(Told(summary, "B", kPlanned, 0), "0 0 0 0 3 6 0 ");
    EXPECT_EQ(Told(summary, "B", kPlanned, 0, "P0712"), "");
}

TEST(MonthSummary, HasTheKeyOfTheAccountsValueStyle)
{
    const struct {
        ValueStyle style;
        std::string_view warehouse, department;
        std::size_t keys;  // of item A
    } cases[] = {{ValueStyle::ByInventory, "", "", 1},
                 {ValueStyle::ByDepartment, "", "0401", 5},
                 {ValueStyle::ByWarehouse, "01", "", 5}};
    for (const auto& c : cases) {
        Profile profile = PlainProfile();
        profile.valueStyle = c.style;
        SmallBooks small(profile);
        small.Receive(small.At(kMonthly), 100, 1000);
        small.Open(1);
        small.End();
        const MemoryTable& summary = small.sink.Table("IA_Summary");
        EXPECT_EQ(summary.Text(0, "cWhCode"), c.warehouse);
        EXPECT_EQ(summary.Text(0, "cDepCode"), c.department);
        std::size_t openings = 0;
        for (std::size_t row = 0; row < summary.rows.size(); ++row)
            openings += summary.Text(row, "cInvCode") == "A" && summary.Text(row, "iMonth") == "0" ? 1 : 0;
        EXPECT_EQ(openings, c.keys);
    }
}

TEST(MonthSummary, MarksDirectBusinessAndQuartersApart)
{
    SmallBooks small;
    small.Open(2);
    StockEntry entry;
    entry.voucherType = "25";
    entry.item = &small.company.items[1];
    entry.day = entry.document.day = small.Day(5);
    entry.quantity = 300;
    entry.cost = 660;
    small.books.Post(entry);
    entry.voucherType = "26";
    entry.receipt = false;
    entry.quantity = 100;
    entry.cost = {};
    small.books.Post(entry);
    small.Receive(small.At(kMonthly), 100, 1000);
    small.Open(3);
    small.Receive(small.At(kMonthly), 200, 2000);
    small.End();

    const MemoryTable& summary = small.sink.Table("IA_Summary");
    std::string direct, quarter;
    std::set<std::string> directItems;
    for (std::size_t row = 0; row < summary.rows.size(); ++row) {
        const std::string month = summary.Text(row, "iMonth");
        if (summary.Text(row, "iDirect") == "1") {
            directItems.insert(summary.Text(row, "cInvCode"));
            if (month == "2")
                direct = summary.Text(row, "iIMoney") + " " + summary.Text(row, "iOMoney") + " " +
                         summary.Text(row, "iMoney");
        }
        if (summary.Text(row, "iPeriod") == "1" && month == "3" && quarter.empty())
            quarter = summary.Text(row, "cInvCode") + " " + summary.Text(row, "iIMoney") + " " +
                      summary.Text(row, "iMoney");
    }
    EXPECT_EQ(direct, "6.6 2.2 4.4");
    EXPECT_EQ(directItems, std::set<std::string>{"B"});
    EXPECT_EQ(quarter, "A 30 ");  // no balance
}

TEST(PlannedPrices, StandOnceForEachItemOfAPlannedWarehouse)
{
    SmallBooks small;
    small.Open(1);
    small.End();
    const MemoryTable& prices = small.sink.Table("Demo_PlannedPrice");
    ASSERT_EQ(prices.rows.size(), 2u);
    EXPECT_EQ(prices.Text(0, "cInvCode"), "A");
    EXPECT_EQ(prices.Text(0, "fInvRCost"), "10");
    EXPECT_EQ(prices.Text(1, "fInvRCost"), "2");
    EXPECT_FALSE(prices.At(1, "cFree1").IsNull());
}

TEST(AreaSample, IsOfTheLedgerWithAnItemAndAWarehouseThatNobodyKnows)
{
    SmallBooks small;
    for (int i = 0; i < 9; ++i)
        small.Receive(small.At(kMonthly), 100, 1000);
    small.Open(1);
    small.End();
    const MemoryTable& data = small.sink.Table("ia_data_subsidiary");
    ASSERT_EQ(data.rows.size(), 5u);
    EXPECT_EQ(data.Text(1, "AutoID"), "6");
    EXPECT_EQ(data.Hundredths(1, "iPrice"), 1000);
    EXPECT_EQ(data.Text(3, "cInvCode"), "GONE-01-001");
    EXPECT_EQ(data.Text(4, "cWhCode"), "99");
    EXPECT_EQ(small.sink.Table("ia_accountarea").rows.size(), 5u);  // two of three, one twice, the unknown
}

}  // namespace
}  // namespace kavelin::demo
