#include "demo/books/AreaSample.h"

#include "demo/RowValues.h"
#include "demo/books/HeadColumns.h"

namespace kavelin::demo {

namespace {

constexpr std::size_t kRows = 60;
constexpr std::int32_t kEvery = 3;

// Behind every number of the ledger.
constexpr std::int32_t kUnknownItem = 2000000001;
constexpr std::int32_t kUnknownWarehouse = 2000000002;

}  // namespace

void AreaSample::Look(std::int32_t autoId, const StockRow& row)
{
    if (arrRows.size() >= kRows || autoId % kEvery != 0 || row.place == nullptr || row.quantity == 0)
        return;
    arrRows.push_back({autoId, row.item->code, ColourOrNull(row.place), BatchOrNull(row.place),
                       row.place->warehouse->code, row.receipt ? 1 : 0, Quantity(row.quantity),
                       UnitCostOrNull(row.Amount(), row.quantity), Money(row.Amount())});
}

void AreaSample::Write(RowSink& sink) const
{
    static constexpr std::string_view kColumns[] = {
        "AutoID", "cInvCode", "cFree1", "cBatchIA", "cWhCode", "bRdFlag", "iQuantity", "iUnitCost", "iPrice"};
    static_assert(std::size(kColumns) == kColumnCount);
    if (arrRows.empty())
        return;
    RowTable& data = sink.Open("ia_data_subsidiary", kColumns);
    for (const auto& row : arrRows)
        data.Add(row);
    const Value null = Value::Null();
    data.Add(std::array<Value, kColumnCount>{kUnknownItem, "GONE-01-001", null, null, "01", 1, 5.0, 12.5,
                                             Money(6250)});
    data.Add(std::array<Value, kColumnCount>{kUnknownWarehouse, arrRows.front()[1], null, null, "99", 0, 2.0,
                                             10.0, Money(2000)});

    static constexpr std::string_view kAreaColumns[] = {"AutoID"};
    RowTable& area = sink.Open("ia_accountarea", kAreaColumns);
    const auto choose = [&](const Value& number) { area.Add(std::array<Value, 1>{number}); };
    for (std::size_t i = 0; i < arrRows.size(); i += 2)
        choose(arrRows[i][0]);
    choose(arrRows.front()[0]);  // once more
    choose(kUnknownItem);
    choose(kUnknownWarehouse);
}

}  // namespace kavelin::demo
