// Goods in transit: what puts them there, adjusts them and takes them out.
#include "demo/events/SaleRows.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::demo {

namespace {

constexpr std::int64_t kLines = 6000;

using Source = std::pair<std::string, std::int64_t>;  // voucher type and line

bool IsInvoice(const InTransitRow& row)
{
    return row.type == "26" || row.type == "27" || row.type == "28" || row.type == "29";
}

bool IsAdjustment(const InTransitRow& row)
{
    return row.type == "65" || row.type == "66";
}

TEST(Transit, NamesItsLinesByThePairsThatReportsJoinBy)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        std::set<Source> own;
        for (const InTransitRow& row : year.transit) {
            EXPECT_TRUE(own.emplace(row.type, row.line).second) << name << ' ' << row.type << ' ' << row.line;
            const WrittenLine* line = year.Line(row.line);
            ASSERT_NE(line, nullptr) << name << ' ' << row.type << ' ' << row.line;
            EXPECT_TRUE(line->posted) << name << ' ' << row.type << ' ' << row.line;
            EXPECT_EQ(line->business, row.business);
            if (IsInvoice(row)) {
                EXPECT_EQ(line->kind, "SALE");
                EXPECT_EQ(row.outLine, row.line);
                EXPECT_FALSE(row.in);
                const WrittenLine* source = year.Line(row.sourceLine);
                ASSERT_NE(source, nullptr);
                EXPECT_EQ(source->dispatchLine, line->dispatchLine);
            } else if (IsAdjustment(row)) {
                EXPECT_EQ(line->kind, "JUST");
                EXPECT_EQ(row.in, row.type == "65");
                EXPECT_EQ(row.quantity, 0);
                EXPECT_GT(row.amount, 0);
                EXPECT_EQ(year.Line(row.sourceLine)->business, row.business);
            } else {
                EXPECT_EQ(line->kind, row.type == "3201" ? "RD" : "DISP");
                EXPECT_EQ(row.line, row.sourceLine);
                EXPECT_EQ(row.type, row.sourceType);
                EXPECT_TRUE(row.in);
                ASSERT_NE(year.Line(row.dispatchLine), nullptr);
                EXPECT_EQ(year.Line(row.dispatchLine)->kind, "DISP");
            }
        }
    }
}

TEST(Transit, TakesInWhatLeavesTheStockAtTheSameCost)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        std::map<std::int64_t, const PostedRow*> stock;
        for (const PostedRow& row : year.stock)
            stock[row.line] = &row;
        int rows = 0;
        for (const InTransitRow& row : year.transit) {
            if (IsInvoice(row) || IsAdjustment(row) || row.month == 0)
                continue;
            ++rows;
            ASSERT_TRUE(stock.contains(row.line)) << name << ' ' << row.line;
            EXPECT_EQ(stock[row.line]->type, row.type) << name << ' ' << row.line;
            EXPECT_EQ(stock[row.line]->quantity, row.quantity) << name << ' ' << row.line;
            EXPECT_EQ(stock[row.line]->cost, row.amount) << name << ' ' << row.line;
        }
        EXPECT_GT(rows, 50) << name;
    }
}

TEST(Transit, NeverTakesOutMoreOfALineThanIsThere)
{
    for (const std::string_view name : ProfileNames()) {
        std::map<Source, std::pair<std::int64_t, std::int64_t>> left;  // quantity, amount
        for (const InTransitRow& row : SaleYearOf(name, kLines).transit) {
            const Source source(row.sourceType, row.sourceLine);
            const bool known = left.contains(source);
            ASSERT_TRUE(known || row.in) << name << ' ' << row.type << ' ' << row.line;
            auto& [quantity, amount] = left[source];
            const bool back = known ? quantity < 0 : row.quantity < 0;
            quantity += row.in ? row.quantity : -row.quantity;
            amount += row.in ? row.amount : -row.amount;
            EXPECT_TRUE(back ? quantity <= 0 && amount <= 0 : quantity >= 0 && amount >= 0)
                << name << ' ' << row.sourceType << ' ' << row.sourceLine << ": " << quantity << ", "
                << amount;
            if (quantity == 0) {
                EXPECT_EQ(amount, 0) << name << ' ' << row.sourceType << ' ' << row.sourceLine;
            }
        }
        int empty = 0, open = 0;
        for (const auto& [source, rest] : left)
            ++(rest.first == 0 ? empty : open);
        EXPECT_GT(empty, 20) << name;
        EXPECT_GT(open, 5) << name;
    }
}

TEST(Transit, BringsForwardLinesOfTheYearBeforeAndInvoicesSomeOfThem)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        std::set<Source> forward, invoiced;
        for (const InTransitRow& row : year.transit) {
            const Source source(row.sourceType, row.sourceLine);
            if (row.month == 0) {
                forward.insert(source);
                EXPECT_EQ(year.Line(row.line)->month, 0) << name << ' ' << row.line;
                EXPECT_GT(row.amount, 0) << name << ' ' << row.line;
            } else if (forward.contains(source) && IsInvoice(row)) {
                invoiced.insert(source);
            }
        }
        EXPECT_GE(forward.size(), 4u) << name;
        EXPECT_FALSE(invoiced.empty()) << name;
        EXPECT_LT(invoiced.size(), forward.size()) << name;
    }
}

TEST(Transit, IsAdjustedOnBothSides)
{
    for (const std::string_view name : ProfileNames()) {
        std::map<std::string, int> adjustments;
        for (const InTransitRow& row : SaleYearOf(name, kLines).transit)
            ++adjustments[row.type];
        EXPECT_GT(adjustments["65"], 5) << name;
        EXPECT_GT(adjustments["66"], 5) << name;
    }
}

}  // namespace

}  // namespace kavelin::demo
