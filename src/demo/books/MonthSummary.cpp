#include "demo/books/MonthSummary.h"

#include "demo/RowValues.h"
#include "demo/books/Columns.h"
#include "demo/books/Entries.h"
#include "demo/books/Valuation.h"

namespace kavelin::demo {

namespace {

struct SummaryRow {
    std::int32_t number;
    int month;
    const CostKey& key;
    bool direct;
    bool period;
    std::int64_t inQuantity, inAmount, outQuantity, outAmount;
    Balance left;
};

// Period rows have no balance: it stands in the row of the month.
Value IfMonth(const SummaryRow& row, Value value)
{
    return row.period ? Value::Null() : std::move(value);
}

Value NoFreeItem(const SummaryRow&)
{
    return "";
}

constexpr Column<SummaryRow> kColumns[] = {
    {"AutoID", [](const SummaryRow& row) -> Value { return row.number; }},
    {"iYear", [](const SummaryRow&) -> Value { return kLedgerYear; }},
    {"iMonth", [](const SummaryRow& row) -> Value { return row.month; }},
    {"cInvCode", [](const SummaryRow& row) -> Value { return row.key.item->code; }},
    {"cWhCode", [](const SummaryRow& row) { return TextOrNull(row.key.warehouse); }},
    {"cDepCode", [](const SummaryRow& row) { return TextOrNull(row.key.department); }},
    {"cFree1", [](const SummaryRow& row) -> Value { return row.key.colour; }},
    {"cFree2", NoFreeItem},
    {"cFree3", NoFreeItem},
    {"cFree4", NoFreeItem},
    {"cFree5", NoFreeItem},
    {"cFree6", NoFreeItem},
    {"cFree7", NoFreeItem},
    {"cFree8", NoFreeItem},
    {"cFree9", NoFreeItem},
    {"cFree10", NoFreeItem},
    {"cBatchIA", [](const SummaryRow& row) -> Value { return row.key.batch; }},
    {"iDirect", [](const SummaryRow& row) -> Value { return row.direct ? 1 : 0; }},
    {"iPeriod", [](const SummaryRow& row) -> Value { return row.period ? 1 : 0; }},
    {"iINum", [](const SummaryRow& row) { return Quantity(row.inQuantity); }},
    {"iIMoney", [](const SummaryRow& row) { return Money(row.inAmount); }},
    {"iONum", [](const SummaryRow& row) { return Quantity(row.outQuantity); }},
    {"iOMoney", [](const SummaryRow& row) { return Money(row.outAmount); }},
    {"iNum", [](const SummaryRow& row) { return IfMonth(row, Quantity(row.left.quantity)); }},
    {"iMoney", [](const SummaryRow& row) { return IfMonth(row, Money(row.left.amount)); }},
    {"iDif", [](const SummaryRow& row) { return IfMonth(row, Money(row.left.difference)); }},
};

// Every so many keys have totals of quarters.
constexpr std::size_t kQuartersEvery = 7;

}  // namespace

MonthSummary::MonthSummary(const CostKeys& keys)
    : objKeys(keys), arrMonths(keys.All().size()), arrMoved(keys.All().size())
{
}

void MonthSummary::Add(std::int32_t key, int month, bool receipt, std::int64_t quantity, std::int64_t amount,
                       std::int64_t difference)
{
    const auto at = static_cast<std::size_t>(key);
    Totals& totals = arrMonths[at][static_cast<std::size_t>(month)];
    (receipt ? totals.inQuantity : totals.outQuantity) += quantity;
    (receipt ? totals.inAmount : totals.outAmount) += amount;
    totals.difference += receipt ? difference : -difference;
    arrMoved[at] = true;
}

void MonthSummary::Write(RowSink& sink) const
{
    ColumnWriter table(sink, "IA_Summary", kColumns);
    std::int32_t number = 0;
    for (std::size_t i = 0; i < arrMonths.size(); ++i) {
        const CostKey& key = objKeys.All()[i];
        const bool direct = objKeys.IsDirect(static_cast<std::int32_t>(i));
        if (!arrMoved[i] && (direct || !key.inCost))
            continue;

        Balance left;
        Totals quarter;
        for (int month = 0; month <= 12; ++month) {
            const Totals& totals = arrMonths[i][static_cast<std::size_t>(month)];
            left.quantity += totals.inQuantity - totals.outQuantity;
            left.amount += totals.inAmount - totals.outAmount;
            left.difference += totals.difference;
            if (month == 0) {  // an opening is a balance and no movement
                table.Write({++number, month, key, direct, false, 0, 0, 0, 0, left});
                continue;
            }
            table.Write({++number, month, key, direct, false, totals.inQuantity, totals.inAmount,
                         totals.outQuantity, totals.outAmount, left});

            quarter.inQuantity += totals.inQuantity;
            quarter.inAmount += totals.inAmount;
            quarter.outQuantity += totals.outQuantity;
            quarter.outAmount += totals.outAmount;
            if (month % 3 == 0) {
                if (i % kQuartersEvery == 0 && !direct)
                    table.Write({++number, month, key, direct, true, quarter.inQuantity, quarter.inAmount,
                                 quarter.outQuantity, quarter.outAmount, left});
                quarter = {};
            }
        }
    }
}

}  // namespace kavelin::demo
