#include "demo/books/SmallBooks.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace kavelin::demo {

namespace {

constexpr Warehouse kWarehouses[] = {
    {"01", "月均库", "0401", kMonthlyAverage, true}, {"02", "移动库", "0402", kMovingAverage, true},
    {"03", "计划库", "0403", kPlannedPrice, true},   {"05", "先进库", "0301", kFirstIn, true},
    {"07", "后进库", "0302", "后进先出法", true},
};

Company TwoItems()
{
    Company company;
    company.warehouses = kWarehouses;
    for (const auto& [code, price] : {std::pair("A", 1000), std::pair("B", 200)}) {
        Item item;
        item.code = code;
        item.valuation = kMovingAverage;
        item.price = price;
        item.lot = 10000;
        item.step = 100;
        item.weight = 1;
        item.kept = item.code == "B" ? Kept::Batches : Kept::Nothing;
        item.warehouse = "01";
        for (const Warehouse& warehouse : kWarehouses)
            item.warehouses.push_back(warehouse.code);
        company.items.push_back(item);
    }
    return company;
}

}  // namespace

Profile PlainProfile()
{
    return {};
}

SmallBooks::SmallBooks(const Profile& given, std::int64_t lines)
    : profile(given), company(TwoItems()), stock(company), books(profile, company, stock, lines, sink)
{
}

const Place& SmallBooks::At(std::string_view warehouse, std::string_view item, std::string_view batch) const
{
    for (const Place& place : stock.Places())
        if (place.warehouse->code == warehouse && place.item->code == item &&
            (batch.empty() || place.batch == batch))
            return place;
    throw std::out_of_range("no such place");
}

std::chrono::sys_days SmallBooks::Day(int day) const
{
    using namespace std::chrono;
    return sys_days(year(kLedgerYear) / std::max(month, 1) / day);
}

void SmallBooks::Open(int opened)
{
    if (month > 0)
        books.CloseMonth(true);
    for (++month; month < opened; ++month) {
        books.OpenMonth(month);
        books.CloseMonth(true);
    }
    books.OpenMonth(month);
}

void SmallBooks::End(bool final)
{
    books.CloseMonth(final);
    books.Finish();
}

StockEntry SmallBooks::Entry(const Place& place, bool receipt, std::optional<std::int64_t> quantity) const
{
    StockEntry entry;
    entry.voucherType = month == 0 ? "34" : receipt ? "01" : "11";
    entry.document.day = Day(10);
    entry.place = &place;
    entry.day = Day(10);
    entry.receipt = receipt;
    entry.quantity = quantity;
    return entry;
}

std::int32_t SmallBooks::Receive(const Place& place, std::int64_t quantity, std::int64_t cost)
{
    StockEntry entry = Entry(place, true, quantity);
    entry.cost = cost;
    return books.Post(entry);
}

std::int32_t SmallBooks::ReceiveFrom(const Place& place, std::int64_t quantity, std::int32_t costOf)
{
    StockEntry entry = Entry(place, true, quantity);
    entry.costOf = costOf;
    return books.Post(entry);
}

std::int32_t SmallBooks::Issue(const Place& place, std::int64_t quantity, std::optional<std::int64_t> cost)
{
    StockEntry entry = Entry(place, false, quantity);
    entry.cost = cost;
    return books.Post(entry);
}

std::int32_t SmallBooks::Amount(const Place& place, bool receipt, std::int64_t cost)
{
    StockEntry entry = Entry(place, receipt, {});
    entry.voucherType = receipt ? "20" : "21";
    entry.cost = cost;
    return books.Post(entry);
}

Document SmallBooks::Head(const DocumentType& type, const Place& place, int day)
{
    Document head;
    head.type = &type;
    head.day = Day(day);
    head.warehouse = place.warehouse->code;
    return books.NewDocument(head);
}

std::int32_t SmallBooks::Line(const Document& document, const Place& place, std::int64_t quantity,
                              std::int64_t amount)
{
    LineEntry entry;
    entry.place = &place;
    entry.quantity = quantity;
    entry.amount = amount;
    return books.AddLine(document, entry);
}

std::int64_t SmallBooks::Cost(std::size_t autoId) const
{
    const MemoryTable& ledger = Ledger();
    const std::size_t row = autoId - 1;
    const std::int64_t difference =
        ledger.Hundredths(row, "iDebitDifCost") - ledger.Hundredths(row, "iCreditDifCost");
    return ledger.Text(row, "bRdFlag") == "1" ? ledger.Hundredths(row, "iAInPrice") + difference
                                              : ledger.Hundredths(row, "iAOutPrice") - difference;
}

}  // namespace kavelin::demo
