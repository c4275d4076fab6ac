#include "demo/Ledger.h"

#include "demo/MemorySink.h"
#include "frame/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace kavelin::demo {
namespace {

class Ledger : public testing::TestWithParam<std::int64_t> {
  protected:
    const MemorySink sink = Generate(GetParam(), kDefaultSeed);
    const MemoryTable& lines = sink.Table("IA_Subsidiary");

    bool IsDirect(std::size_t row) const { return lines.Text(row, "cBusType").starts_with("直运"); }
    bool MovesStock(std::size_t row) const { return !IsDirect(row) && lines.Text(row, "cVouType") != "33"; }
    std::int64_t Net(std::size_t row, const char* in, const char* out) const
    {
        return lines.Hundredths(row, in) - lines.Hundredths(row, out);
    }
};

INSTANTIATE_TEST_SUITE_P(Sizes, Ledger, testing::Values(600, 6000, 30000));

TEST_P(Ledger, NeverGoesNegativeInAnyWarehouse)
{
    using Key = std::tuple<std::string, std::string, std::string, std::string>;
    struct Balance {
        std::int64_t quantity = 0, amount = 0;
    };
    std::map<Key, Balance> balances;
    for (std::size_t row = 0; row < lines.rows.size(); ++row) {
        if (!MovesStock(row))
            continue;
        Balance& balance = balances[{lines.Text(row, "cInvCode"), lines.Text(row, "cWhCode"),
                                     lines.Text(row, "cFree1"), lines.Text(row, "cBatchIA")}];
        balance.quantity += Net(row, "iAInQuantity", "iAOutQuantity");
        balance.amount += Net(row, "iAInPrice", "iAOutPrice");
        ASSERT_GE(balance.quantity, 0) << "line " << row + 1;
        ASSERT_GE(balance.amount, 0) << "line " << row + 1;
        if (balance.quantity == 0) {
            ASSERT_EQ(balance.amount, 0) << "line " << row + 1;
        }
    }
}

TEST_P(Ledger, HasMonthsAndYearsThatAgreeWithTheDates)
{
    std::string before;
    std::set<std::string> months;
    for (std::size_t row = 0; row < lines.rows.size(); ++row) {
        const std::string posted = lines.Text(row, "dKeepDate");
        const std::string month = lines.Text(row, "iMonth");
        months.insert(month);
        ASSERT_EQ(lines.Text(row, "iYear"), posted.substr(0, 4));
        if (month == "0")
            ASSERT_EQ(posted, "2008-01-01");
        else
            ASSERT_EQ(std::stoi(month), std::stoi(posted.substr(5, 2)));
        ASSERT_LE(lines.Text(row, "dVouDate"), posted);
        ASSERT_EQ(lines.Text(row, "dVouDate").substr(0, 7), posted.substr(0, 7));
        ASSERT_GE(posted, before) << "line " << row + 1;
        before = posted;
    }
    EXPECT_EQ(months.size(), 13u);
}

TEST_P(Ledger, HoldsEveryKindOfLine)
{
    std::map<std::string, int> kinds;
    int differences = 0, colours = 0, batches = 0, goneBack = 0, outsideCosting = 0;
    for (std::size_t row = 0; row < lines.rows.size(); ++row) {
        ++kinds[lines.Text(row, "cVouType") + " " + lines.Text(row, "cBusType")];
        differences +=
            lines.Hundredths(row, "iDebitDifCost") != 0 || lines.Hundredths(row, "iCreditDifCost") != 0;
        colours += !lines.At(row, "cFree1").IsNull();
        batches += !lines.At(row, "cBatchIA").IsNull();
        goneBack += lines.Hundredths(row, "iAInQuantity") < 0 || lines.Hundredths(row, "iAOutQuantity") < 0;
        outsideCosting += lines.Text(row, "cWhCode") == "04";
    }
    for (const char* kind :
         {"01 普通采购", "08 其他入库", "08 盘盈入库", "08 ", "10 成品入库", "09 其他出库", "09 盘亏出库",
          "09 ", "11 领料", "32 普通销售", "33 普通采购", "34 ", "25 直运采购", "26 直运销售"})
        EXPECT_GT(kinds[kind], 0) << kind;
    EXPECT_EQ(kinds.size(), 14u);
    EXPECT_GT(differences, 0);
    EXPECT_GT(colours, 0);
    EXPECT_GT(batches, 0);
    EXPECT_GT(goneBack, 0);
    EXPECT_GT(outsideCosting, 0);
}

TEST_P(Ledger, KeepsReceiptsAndIssuesApart)
{
    for (std::size_t row = 0; row < lines.rows.size(); ++row) {
        const bool receipt = lines.Text(row, "bRdFlag") == "1";
        for (const char* column : {"iAInQuantity", "iInCost", "iAInPrice"})
            ASSERT_EQ(lines.At(row, column).IsNull(), !receipt) << column << ", line " << row + 1;
        for (const char* column : {"iAOutQuantity", "iOutCost", "iAOutPrice"})
            ASSERT_EQ(lines.At(row, column).IsNull(), receipt) << column << ", line " << row + 1;
    }
}

TEST_P(Ledger, SendsDirectBusinessPastTheWarehouses)
{
    for (std::size_t row = 0; row < lines.rows.size(); ++row)
        ASSERT_EQ(lines.At(row, "cWhCode").IsNull(), IsDirect(row)) << "line " << row + 1;
}

TEST_P(Ledger, TiesUpCapitalUnevenlyAndInAll)
{
    // The value of an item: receipts with their differences, less issues with theirs.
    std::map<std::string, std::int64_t> values;
    std::int64_t total = 0;
    for (std::size_t row = 0; row < lines.rows.size(); ++row) {
        if (!MovesStock(row))
            continue;
        const std::int64_t value =
            Net(row, "iAInPrice", "iAOutPrice") + Net(row, "iDebitDifCost", "iCreditDifCost");
        values[lines.Text(row, "cInvCode")] += value;
        total += value;
    }
    ASSERT_GT(total, 0);

    std::vector<std::int64_t> falling;
    for (const auto& [item, value] : values)
        falling.push_back(value);
    std::ranges::sort(falling, std::greater());
    EXPECT_NE(falling[0], falling[1]);
    std::int64_t top = 0;
    for (std::size_t i = 0; i < falling.size() / 5; ++i)
        top += falling[i];
    EXPECT_GT(top * 100, total * 45) << "a fifth of the items ties up nearly half of the money at least";
    EXPECT_LT(falling[0] * 100, total * 40);

    // The summary of December says the same.
    const MemoryTable& summary = sink.Table("IA_Summary");
    std::int64_t summed = 0;
    for (std::size_t row = 0; row < summary.rows.size(); ++row)
        if (summary.Text(row, "iMonth") == "12")
            summed += summary.Hundredths(row, "iMoney") + summary.Hundredths(row, "iDif");
    EXPECT_EQ(summed, total);
}

TEST(LedgerLine, HasOneNumberForEachDocument)
{
    const MemorySink sink = Generate(kDefaultLines, kDefaultSeed);
    const MemoryTable& lines = sink.Table("IA_Subsidiary");
    std::map<std::string, std::string> codes;
    std::set<std::string> shared;
    for (std::size_t row = 0; row < lines.rows.size(); ++row) {
        const std::string head = lines.Text(row, "iPZID");
        const std::string code = lines.Text(row, "cVouCode") + " of " + lines.Text(row, "cVouType") + " on " +
                                 lines.Text(row, "dVouDate");
        const auto [known, isNew] = codes.try_emplace(head, code);
        ASSERT_EQ(known->second, code);
        if (!isNew)
            shared.insert(head);
    }
    std::set<std::string> distinct;
    for (const auto& [head, code] : codes)
        EXPECT_TRUE(distinct.insert(code).second) << code;
    EXPECT_GT(shared.size(), 100u);  // many documents have several lines
}

}  // namespace
}  // namespace kavelin::demo
