// What the ledger says of estimated receipts, read as the balance of estimates reads it: what was open, what
// is new, what was settled and what stays, month by month and line by line.
#include "demo/events/LedgerRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <set>

namespace kavelin::demo {

void PrintTo(const Estimated& estimated, std::ostream* out)
{
    *out << estimated.quantity << " for " << estimated.money;
}

namespace {

constexpr std::string_view kConsigned = "受托代销";

bool IsReceipt(const LedgerRow& row)
{
    return row.type == "01" || row.type == "70";
}

bool IsReversal(const LedgerRow& row)
{
    return row.type == "24" || row.type == "30";
}

bool IsSettlement(const LedgerRow& row)
{
    return row.settlement != 0;
}

using Months = std::array<Estimated, 13>;
using ByLine = std::map<ReceiptLine, Months>;

ReceiptLine LineOf(const LedgerRow& row)
{
    return {row.line, row.source.empty() ? row.type : row.source};
}

void Add(ByLine& lines, const LedgerRow& row, const Estimated& estimated)
{
    Estimated& sum = lines[LineOf(row)][static_cast<std::size_t>(row.month)];
    sum = sum + estimated;
}

// Receipts at an estimate; those brought forward stand in month 0.
ByLine NewOf(const PlayedYear& year)
{
    ByLine lines;
    for (const LedgerRow& row : year.rows)
        if ((IsReceipt(row) && row.flag == 1) || row.type == "33")
            Add(lines, row, EstimateOf(row));
    return lines;
}

// What the invoices of each month took out of the estimates: their quantity, and its part of the estimate.
ByLine SettledByDifference(const PlayedYear& year)
{
    ByLine lines;
    for (const LedgerRow& row : year.rows)
        if (row.type == "20" && row.flag == 2) {
            const Settlement& settlement = year.settlements.at(row.settlement);
            Add(lines, row, {settlement.quantity, settlement.amount - settlement.materialFee - row.cost});
        }
    return lines;
}

std::map<ReceiptLine, std::array<std::int64_t, 13>> SettledQuantities(const PlayedYear& year)
{
    std::map<ReceiptLine, std::array<std::int64_t, 13>> lines;
    for (const LedgerRow& row : year.rows)
        if (IsSettlement(row))
            lines[LineOf(row)][static_cast<std::size_t>(row.month)] +=
                year.settlements.at(row.settlement).quantity;
    return lines;
}

Estimated UpTo(const Months& months, std::size_t month)
{
    Estimated sum;
    for (std::size_t i = 0; i <= month; ++i)
        sum = sum + months[i];
    return sum;
}

TEST(Estimates, OfTheDifferenceMethodLeaveTheLedgerByWhatTheirInvoicesTell)
{
    const PlayedYear& year = YearOf("works");
    const ByLine lines = NewOf(year);
    ByLine settled = SettledByDifference(year);
    ASSERT_GT(settled.size(), 20u);
    int closed = 0;
    for (const auto& [line, months] : lines)
        for (std::size_t month = 0; month <= 12; ++month) {
            const Estimated open = UpTo(months, month) - UpTo(settled[line], month);
            EXPECT_GE(open.quantity, 0) << line.first << " in month " << month;
            EXPECT_EQ(open.quantity == 0, open.money == 0) << line.first << " in month " << month;
            closed += month == 12 && open.quantity == 0 ? 1 : 0;
        }
    EXPECT_GT(closed, 20);
    int vendorManaged = 0;
    for (const auto& [line, months] : settled) {
        EXPECT_TRUE(lines.contains(line)) << line.first;
        vendorManaged += line.second == "70" ? 1 : 0;
    }
    EXPECT_GT(vendorManaged, 0);
}

TEST(Estimates, OfTheArrivalMethodAreTheSumOfTheirReversals)
{
    const PlayedYear& year = YearOf("industry");
    ByLine sums = NewOf(year);
    for (const LedgerRow& row : year.rows)
        if (IsReversal(row) && row.flag == 1)
            Add(sums, row, EstimateOf(row));
    const ByLine received = NewOf(year);
    auto settled = SettledQuantities(year);
    ASSERT_GT(settled.size(), 20u);

    for (const auto& [line, months] : sums) {
        ASSERT_TRUE(received.contains(line)) << line.first;
        std::int64_t quantity = 0;
        for (std::size_t month = 0; month <= 12; ++month) {
            quantity += received.at(line)[month].quantity - settled[line][month];
            const Estimated open = UpTo(months, month);
            EXPECT_EQ(open.quantity, quantity) << line.first << " in month " << month;
            EXPECT_EQ(open.quantity == 0, open.money == 0) << line.first << " in month " << month;
        }
    }
}

TEST(Estimates, OfTheArrivalMethodAreReversedInWholeAndOnceAMonth)
{
    std::map<ReceiptLine, Estimated> open;
    std::map<std::pair<ReceiptLine, int>, int> times;
    for (const LedgerRow& row : YearOf("industry").rows) {
        if (row.flag != 1)
            continue;
        if (row.type == "24") {
            EXPECT_EQ(EstimateOf(row), Estimated() - open[LineOf(row)]) << row.line;
            EXPECT_EQ((++times[{LineOf(row), row.month}]), 1) << row.line;
        }
        open[LineOf(row)] = open[LineOf(row)] + EstimateOf(row);
    }
    EXPECT_GT(times.size(), 20u);
}

// The report adds what type 24 took out and no type 30 brought back.
TEST(Estimates, OfTheArrivalMethodBringBackInAMonthWhatTheyTookOut)
{
    std::map<std::pair<ReceiptLine, int>, std::int64_t> left;
    for (const LedgerRow& row : YearOf("industry").rows)
        if (IsReversal(row))
            left[{LineOf(row), row.month}] += row.quantity;
    for (const auto& [key, quantity] : left)
        EXPECT_EQ(quantity, 0) << key.first.first << " in month " << key.second;
}

TEST(Estimates, OfTheMonthMethodOpenWithWhatTheMonthBeforeLeft)
{
    for (const std::string_view profile : {"trade", "goods-sent"}) {
        const PlayedYear& year = YearOf(profile);
        ByLine takenOut, closing, received = NewOf(year);
        auto settled = SettledQuantities(year);
        for (const LedgerRow& row : year.rows) {
            if (row.business == kConsigned)
                continue;
            if (row.type == "24")
                Add(takenOut, row, Estimated() - EstimateOf(row));
            if (row.flag == 1 && (IsReceipt(row) || row.type == "30" || row.type == "33"))
                Add(closing, row, EstimateOf(row));
        }
        ASSERT_GT(takenOut.size(), 20u);
        for (auto& [line, months] : closing)
            for (std::size_t month = 1; month <= 12; ++month) {
                const Estimated& opening = takenOut[line][month];
                EXPECT_EQ(opening, months[month - 1])
                    << profile << ' ' << line.first << " in month " << month;
                // The last month is still open: nothing was brought back yet.
                const std::int64_t open =
                    opening.quantity + received[line][month].quantity - settled[line][month];
                if (month < 12) {
                    EXPECT_EQ(months[month].quantity, open)
                        << profile << ' ' << line.first << " in " << month;
                }
                EXPECT_GE(open, 0) << profile << ' ' << line.first << " in month " << month;
            }
    }
}

TEST(Estimates, OfTheMonthMethodAreReversedOnTheFirstAndBroughtBackOnTheLastDay)
{
    std::map<int, std::set<DateTime>> out, back;
    for (const LedgerRow& row : YearOf("trade").rows) {
        if (row.type == "24")
            out[row.month].insert(row.postingDay);
        if (row.type == "30" && row.flag == 1)
            back[row.month].insert(row.postingDay);
    }
    EXPECT_EQ(out.size(), 12u);
    EXPECT_EQ(back.size(), 11u);
    for (const auto& [month, days] : out) {
        ASSERT_EQ(days.size(), 1u) << month;
        if (back.contains(month)) {
            EXPECT_EQ(back.at(month).size(), 1u) << month;
            EXPECT_LT(*days.begin(), *back.at(month).begin()) << month;
        }
    }
}

TEST(Estimates, OfGoodsReceivedOnConsignmentAreNeverReversed)
{
    for (const std::string_view profile : {"trade", "shop"}) {
        const PlayedYear& year = YearOf(profile);
        std::set<std::int64_t> consigned;
        for (const LedgerRow& row : year.rows)
            if (row.business == kConsigned) {
                EXPECT_EQ(row.flag, 1);
                EXPECT_TRUE(row.type == "01" || row.type == "33") << row.type;
                consigned.insert(row.line);
            }
        ByLine settled = SettledByDifference(year);
        int paid = 0;
        for (const auto& [line, months] : NewOf(year)) {
            if (!consigned.contains(line.first))
                continue;
            const Estimated open = UpTo(months, 12) - UpTo(settled[line], 12);
            EXPECT_GE(open.quantity, 0) << line.first;
            paid += open.quantity == 0 ? 1 : 0;
        }
        EXPECT_GT(paid, 10) << profile;
        for (const LedgerRow& row : year.rows)
            EXPECT_FALSE(IsReversal(row) && consigned.contains(row.line)) << profile << ' ' << row.line;
    }
}

TEST(Estimates, AreSettledWholeOrInPartsWithAndWithoutADifferenceOrNever)
{
    for (const std::string_view profile : {"industry", "trade", "works"}) {
        const PlayedYear& year = YearOf(profile);
        std::map<ReceiptLine, int> parts;
        std::map<ReceiptLine, std::int64_t> quantities;
        for (const LedgerRow& row : year.rows)
            if (IsSettlement(row)) {
                ++parts[LineOf(row)];
                quantities[LineOf(row)] += year.settlements.at(row.settlement).quantity;
            }
        int whole = 0, twice = 0, partly = 0, never = 0;
        for (const auto& [line, months] : NewOf(year)) {
            const std::int64_t received = UpTo(months, 12).quantity;
            const int count = parts[line];
            whole += count == 1 && quantities[line] == received ? 1 : 0;
            twice += count == 2 && quantities[line] == received ? 1 : 0;
            partly += count > 0 && quantities[line] < received ? 1 : 0;
            // Brought forward and still open.
            never += count == 0 && months[0].quantity > 0 ? 1 : 0;
        }
        EXPECT_GT(whole, 0) << profile;
        EXPECT_GT(twice, 0) << profile;
        EXPECT_GT(partly, 0) << profile;
        EXPECT_GT(never, 0) << profile;
    }

    int same = 0, other = 0;
    for (const LedgerRow& row : YearOf("works").rows)
        if (row.type == "20" && row.flag == 2)
            ++(row.cost == 0 ? same : other);
    EXPECT_GT(same, 0);
    EXPECT_GT(other, same);
}

TEST(Estimates, OfSubcontractedWorkKeepTheirMaterialFee)
{
    std::map<ReceiptLine, std::int64_t> open;
    int reversed = 0;
    for (const LedgerRow& row : YearOf("industry").rows) {
        if (row.business != "委外加工")
            continue;
        if (row.type == "24") {
            EXPECT_EQ(row.materialFee, -open[LineOf(row)]) << row.line;
            ++reversed;
        }
        if (row.flag == 1)
            open[LineOf(row)] += row.materialFee;
        if (IsSettlement(row)) {
            EXPECT_EQ(row.materialFee, YearOf("industry").settlements.at(row.settlement).materialFee);
        }
    }
    EXPECT_GT(reversed, 3);
}

}  // namespace

}  // namespace kavelin::demo
