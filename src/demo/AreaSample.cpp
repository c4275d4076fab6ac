#include "demo/AreaSample.h"

#include "demo/RowValues.h"

namespace kavelin::demo {

namespace {

constexpr std::size_t kRows = 60;
constexpr std::int32_t kEvery = 3;

// Behind every number of the ledger.
constexpr std::int32_t kUnknownItem = 2000000001;
constexpr std::int32_t kUnknownWarehouse = 2000000002;

}  // namespace

void AreaSample::Look(const LedgerLine& line)
{
    if (line.place == nullptr || line.number % kEvery != 0 || arrRows.size() >= kRows)
        return;
    arrRows.push_back({line.number, line.item->code, TextOrNull(line.place->colour),
                       TextOrNull(line.place->batch), line.place->warehouse, line.movement.receipt ? 1 : 0,
                       Quantity(line.movement.quantity), UnitCost(line.movement),
                       Money(line.movement.amount)});
}

void AreaSample::Write(RowSink& sink) const
{
    static constexpr std::string_view kColumns[] = {
        "AutoID", "cInvCode", "cFree1", "cBatchIA", "cWhCode", "bRdFlag", "iQuantity", "iUnitCost", "iPrice"};
    static_assert(std::size(kColumns) == kColumnCount);
    sink.BeginTable("ia_data_subsidiary", kColumns);
    for (const auto& row : arrRows)
        sink.AddRow(row);
    const Value null = Value::Null();
    sink.AddRow(std::array<Value, kColumnCount>{kUnknownItem, "GONE-01-001", null, null, "01", 1, 5.0, 12.5,
                                                Money(6250)});
    sink.AddRow(std::array<Value, kColumnCount>{kUnknownWarehouse, arrRows.front()[1], null, null, "99", 0,
                                                2.0, 10.0, Money(2000)});

    static constexpr std::string_view kAreaColumns[] = {"AutoID"};
    sink.BeginTable("ia_accountarea", kAreaColumns);
    const auto choose = [&](const Value& number) { sink.AddRow(std::array<Value, 1>{number}); };
    for (std::size_t i = 0; i < arrRows.size(); i += 2)
        choose(arrRows[i][0]);
    choose(arrRows.front()[0]);  // once more
    choose(kUnknownItem);
    choose(kUnknownWarehouse);
}

}  // namespace kavelin::demo
