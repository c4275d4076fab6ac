#include "demo/LedgerLine.h"

#include "demo/RowValues.h"
#include "frame/Decimal.h"

#include <array>

namespace kavelin::demo {

namespace {

constexpr std::string_view kColumns[] = {
    "AutoID",         "ID",          "iPZID",         "iYear",          "iMonth",        "dVouDate",
    "dKeepDate",      "dtAudit",     "cAccounter",    "cVouCode",       "cVouType",      "cBusType",
    "cBusCode",       "bRdFlag",     "bFlag",         "cWhCode",        "cAccDep",       "cDepCode",
    "cRdCode",        "cCusCode",    "cVenCode",      "cHandler",       "cProOrderCode", "cPurOrderCode",
    "cSaleOrderCode", "cItem_class", "cItemCName",    "cItemCode",      "cName",         "cInvCode",
    "cFree1",         "cBatchIA",    "iAInQuantity",  "iAOutQuantity",  "iInCost",       "iOutCost",
    "iAInPrice",      "iAOutPrice",  "iDebitDifCost", "iCreditDifCost", "costsource"};

// Document lines are numbered apart from ledger lines.
constexpr std::int32_t kFirstDocumentLine = 100000;

Value If(bool condition, Value value)
{
    return condition ? std::move(value) : Value::Null();
}

}  // namespace

double UnitCost(const Movement& movement)
{
    if (movement.quantity == 0)
        return 0;
    // Cents by hundredths of the unit: the hundreds cancel out.
    const Int128 scaled = static_cast<Int128>(movement.amount) * 10000;
    const Int128 doubled = 2 * scaled / movement.quantity;
    const Int128 rounded = (doubled + (doubled < 0 ? -1 : 1)) / 2;
    return static_cast<double>(static_cast<std::int64_t>(rounded)) / 10000.0;
}

void BeginLedger(RowSink& sink)
{
    sink.BeginTable("IA_Subsidiary", kColumns);
}

void WriteLine(const LedgerLine& line, RowSink& sink)
{
    const LineKind& kind = *line.kind;
    const Document& document = *line.document;
    const Movement& movement = line.movement;
    const bool receipt = movement.receipt;
    const bool planned = line.place != nullptr && line.place->IsPlanned();
    const bool project = !document.project.empty();
    const bool hasOrder = line.month > 0;
    const std::string orderCode = "-" + document.code;
    const DateTime documentDay = line.documentDay;

    sink.AddRow(std::array<Value, std::size(kColumns)>{
        line.number,
        kFirstDocumentLine + line.number,
        document.number,
        kLedgerYear,
        line.month,
        documentDay,
        DateTime(line.postingDay),
        documentDay,
        "李秀英",
        document.code,
        kind.voucherType,
        TextOrNull(kind.businessType),
        Value::Null(),
        receipt ? 1 : 0,
        kind.estimated ? 1 : 0,
        line.place ? Value(line.place->warehouse) : Value::Null(),
        kind.department,
        kind.department,
        TextOrNull(kind.rdCode),
        If(kind.partner == Partner::Customer, document.partner),
        If(kind.partner == Partner::Vendor, document.partner),
        document.handler,
        If(kind.voucherType == "10" || kind.voucherType == "11", "MO" + orderCode),
        If(hasOrder && kind.partner == Partner::Vendor, "PO" + orderCode),
        If(kind.partner == Partner::Customer, "SO" + orderCode),
        If(project, "00"),
        If(project, "技术改造"),
        TextOrNull(document.project),
        If(project, "生产线改造"),
        line.item->code,
        TextOrNull(line.place ? line.place->colour : std::string_view()),
        TextOrNull(line.place ? line.place->batch : std::string_view()),
        If(receipt, Quantity(movement.quantity)),
        If(!receipt, Quantity(movement.quantity)),
        If(receipt, UnitCost(movement)),
        If(!receipt, UnitCost(movement)),
        If(receipt, Money(movement.amount)),
        If(!receipt, Money(movement.amount)),
        If(planned, Money(movement.debitDifference)),
        If(planned, Money(movement.creditDifference)),
        kind.costSource});
}

}  // namespace kavelin::demo
