// Direct business never touches a warehouse, and leaves at its cost what came in.
#include "demo/events/SaleRows.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::demo {

namespace {

constexpr std::int64_t kLines = 6000;

bool IsDirect(const std::string& business)
{
    return business.starts_with("直运");
}

TEST(DirectTrade, HasNeitherWarehouseNorLinks)
{
    for (const std::string_view name : ProfileNames()) {
        int found = 0;
        for (const auto& [id, line] : SaleYearOf(name, kLines).lines) {
            if (!IsDirect(line.business))
                continue;
            ++found;
            EXPECT_EQ(line.warehouse, "") << name << ' ' << id;
            EXPECT_EQ(line.dispatchLine, 0) << name << ' ' << id;
            EXPECT_EQ(line.consignmentLine, 0) << name << ' ' << id;
            EXPECT_EQ(line.business, line.kind == "PUR" ? "直运采购" : "直运销售") << name << ' ' << id;
        }
        EXPECT_EQ(found > 0, FindProfile(name)->direct) << name;
    }
}

TEST(DirectTrade, IsPostedByItsInvoices)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        int rows = 0, posted = 0;
        for (const PostedRow& row : year.stock) {
            if (!IsDirect(row.business))
                continue;
            ++rows;
            const WrittenLine* line = year.Line(row.line);
            ASSERT_NE(line, nullptr) << name << ' ' << row.line;
            EXPECT_TRUE(line->posted) << name << ' ' << row.line;
            EXPECT_EQ(row.type, line->kind == "PUR" ? "25" : line->type) << name << ' ' << row.line;
            EXPECT_EQ(row.receipt, line->kind == "PUR") << name << ' ' << row.line;
            EXPECT_EQ(row.quantity, line->quantity) << name << ' ' << row.line;
            EXPECT_EQ(row.quantity < 0, line->type == "02" || line->type == "27") << name << ' ' << row.line;
        }
        for (const auto& [id, line] : year.lines)
            posted += IsDirect(line.business) && line.posted ? 1 : 0;
        EXPECT_EQ(rows, posted) << name;
    }
}

// In the order of posting, nothing is sold that was not bought before.
TEST(DirectTrade, SellsAtCostWhatWasBought)
{
    for (const std::string_view name : ProfileNames()) {
        std::int64_t quantity = 0, cost = 0;
        for (const PostedRow& row : SaleYearOf(name, kLines).stock) {
            if (!IsDirect(row.business))
                continue;
            quantity += row.receipt ? row.quantity : -row.quantity;
            cost += row.receipt ? row.cost : -row.cost;
            EXPECT_GE(quantity, 0) << name << ' ' << row.line;
            EXPECT_GE(cost, 0) << name << ' ' << row.line;
            EXPECT_EQ(quantity == 0, cost == 0) << name << ' ' << row.line;
        }
    }
}

}  // namespace

}  // namespace kavelin::demo
