#include "demo/books/TransitLedger.h"

#include "demo/RowValues.h"
#include "demo/books/Columns.h"
#include "demo/books/HeadColumns.h"
#include "demo/books/OrderDetails.h"
#include "demo/books/UserFields.h"

#include <stdexcept>
#include <string>

namespace kavelin::demo {

class TransitLedger::Table {
  public:
    explicit Table(RowSink& sink) : objRows(sink, "IA_EnSubsidiary", kColumns) {}

    struct Line {
        std::int32_t autoId;
        int month;
        const Row& row;
        const Document& head;
        Value voucher;
    };

    void Write(const Line& line) { objRows.Write(line); }

  private:
    static Value IfSide(const Line& line, bool in, Value value)
    {
        return line.row.in == in ? std::move(value) : Value::Null();
    }

    // The invoice line that takes the goods out.
    static Value InvoiceLine(const Line& line)
    {
        const bool invoice = line.head.type && line.head.type->kind == DocumentKind::SaleInvoice;
        return invoice && !line.row.in ? Value(line.row.line) : Value::Null();
    }

    static Value Code(const Line& line)
    {
        return line.head.id != 0 ? Value(CodeOf(line.head)) : Value::Null();
    }

    static Value Digest(const Line& line)
    {
        return line.voucher.IsNull() ? Value::Null() : TextOrNull(line.row.businessType);
    }

    static constexpr Column<Line> kColumns[] = {
        {"AutoID", [](const Line& line) -> Value { return line.autoId; }},
        {"inid", [](const Line& line) -> Value { return line.row.line; }},
        {"cVouType", [](const Line& line) -> Value { return line.row.voucherType; }},
        {"iSrcID", [](const Line& line) -> Value { return line.row.sourceLine; }},
        {"cSrcVouType", [](const Line& line) -> Value { return line.row.sourceType; }},
        {"OutID", InvoiceLine},
        {"iDLsID", [](const Line& line) { return NumberOrNull(line.row.dispatchLine); }},
        {"iPZID", [](const Line& line) { return NumberOrNull(line.head.id); }},
        {"cPZID", [](const Line& line) { return line.voucher; }},
        {"cPZdigest", Digest},
        {"iYear", [](const Line&) -> Value { return kLedgerYear; }},
        {"iMonth", [](const Line& line) -> Value { return line.month; }},
        {"dVouDate", [](const Line& line) -> Value { return DateTime(line.head.day); }},
        {"dKeepDate", [](const Line& line) -> Value { return DateTime(line.row.day); }},
        {"dtAudit", [](const Line& line) -> Value { return DateTime(line.head.day); }},
        {"cAccounter", [](const Line&) -> Value { return kPoster; }},
        {"cVouCode", Code},
        {"cBusType", [](const Line& line) { return TextOrNull(line.row.businessType); }},
        {"cBusCode", [](const Line& line) { return BusinessNumber(line.head); }},
        {"bRdFlag", [](const Line& line) -> Value { return line.row.in ? 1 : 0; }},
        {"iAInQuantity",
         [](const Line& line) { return IfSide(line, true, QuantityOrNull(line.row.quantity)); }},
        {"iAInPrice", [](const Line& line) { return IfSide(line, true, Money(line.row.cost)); }},
        {"iAOutQuantity",
         [](const Line& line) { return IfSide(line, false, QuantityOrNull(line.row.quantity)); }},
        {"iAOutPrice", [](const Line& line) { return IfSide(line, false, Money(line.row.cost)); }},
        {"iInCost", [](const Line& line) { return UnitCostOrNull(line.row.cost, line.row.quantity); }},
        {"cInvCode", [](const Line& line) -> Value { return line.row.place->item->code; }},
        {"cFree1", [](const Line& line) { return ColourOrNull(line.row.place); }},
        {"cBatchIA", [](const Line& line) { return BatchOrNull(line.row.place); }},
        {"cWhCode", [](const Line& line) -> Value { return line.row.place->warehouse->code; }},
        {"cDepCode", [](const Line& line) { return TextOrNull(line.head.department); }},
        {"cAccDep", [](const Line& line) { return TextOrNull(line.head.accountingDepartment); }},
        {"cCusCode", [](const Line& line) { return CodeOrNull(line.head.customer); }},
        {"cPersonCode", [](const Line& line) { return TextOrNull(line.head.person); }},
        {"cRdCode",
         [](const Line& line) {
             return line.head.type ? TextOrNull(line.head.type->rdCode) : Value::Null();
         }},
        {"cHandler", [](const Line& line) { return TextOrNull(line.head.handler); }},
        {"cItem_class", [](const Line& line) { return ProjectClass(line.head); }},
        {"cItemCName", [](const Line& line) { return ProjectClassName(line.head); }},
        {"cItemCode", [](const Line& line) { return TextOrNull(line.head.project); }},
        {"cName", [](const Line& line) { return ProjectName(line.head); }},
        {"cMemo", [](const Line& line) { return Memo(line.head); }},
        {"cDefine1", [](const Line& line) { return HeadText(line.head); }},
        {"cDefine4", [](const Line& line) { return HeadDay(line.head); }},
        {"cDefine7", [](const Line& line) { return HeadNumber(line.head); }},
        {"cDefine15", [](const Line& line) { return HeadCount(line.head); }},
        {"cDefine22", [](const Line& line) { return LineText(line.head, line.row.line); }},
        {"cDefine26", [](const Line& line) { return LineNumber(line.head, line.row.line); }},
        {"cDefine34", [](const Line& line) { return LineCount(line.head, line.row.line); }},
        {"cDefine36", [](const Line& line) { return LineDay(line.head, line.row.line); }},
    };

    ColumnWriter<Line, std::size(kColumns)> objRows;
};

TransitLedger::TransitLedger(const Companions& companions, RowSink& sink)
    : objWith(companions), objTable(std::make_unique<Table>(sink))
{
}

TransitLedger::~TransitLedger() = default;

void TransitLedger::Post(const TransitEntry& entry)
{
    const Document& document = entry.document;
    Row row;
    row.voucherType = entry.voucherType;
    row.sourceType = entry.sourceType;
    row.businessType = document.type ? document.type->businessType : std::string_view();
    row.place = entry.place;
    row.day = entry.day;
    row.line = entry.line != 0 ? entry.line : objWith.documents.NewLineNumber();
    row.sourceLine = entry.sourceLine;
    row.dispatchLine = entry.dispatchLine;
    row.costOf = entry.costOf;
    row.in = entry.in;
    row.known = entry.cost.has_value();
    row.cost = entry.cost.value_or(0);
    row.broughtForward = entry.broughtForward;
    row.quantity = entry.quantity.value_or(0);

    Source& source = dicSources[entry.sourceLine];
    const bool goesIn = entry.in && entry.quantity;
    const bool less = source.posted > 0 ? row.quantity >= 0 && row.quantity <= source.posted
                                        : row.quantity <= 0 && row.quantity >= source.posted;
    if (!goesIn && (source.posted == 0 || !less))
        throw std::logic_error("Line " + std::to_string(entry.sourceLine) +
                               " has less in transit than goes out.");
    source.posted += entry.in ? row.quantity : -row.quantity;

    // The row by which goods left the stock has posted their line, but for those that left it last year.
    const bool leftNow = entry.in && entry.quantity && !entry.broughtForward;
    row.postsLine =
        !leftNow && document.type && entry.line != 0 && entry.voucherType == document.type->ledgerType;
    if (row.postsLine)
        objWith.documents.Post(entry.line, entry.day);

    if (arrHeads.empty() || document.id == 0 || arrHeads.back().id != document.id)
        arrHeads.push_back(document);
    row.head = static_cast<std::int32_t>(arrHeads.size()) - 1;
    arrRows.push_back(row);
}

std::int64_t TransitLedger::Quantity(std::int32_t sourceLine) const
{
    const auto found = dicSources.find(sourceLine);
    return found == dicSources.end() ? 0 : found->second.posted;
}

void TransitLedger::CostRows()
{
    for (Row& row : arrRows)
        CostRow(row);
}

void TransitLedger::CostRow(Row& row)
{
    Source& source = dicSources[row.sourceLine];
    if (row.costOf != kNoRow)
        row.cost = objWith.stock.CostOf(row.costOf);
    else if (!row.known && row.in)
        row.cost = AmountOf(row.quantity, row.place->item->price);
    else if (!row.known)
        row.cost = Share(source.amount, row.quantity, source.quantity);

    const std::int64_t sign = row.in ? 1 : -1;
    const std::int64_t rest = source.amount + sign * row.cost;
    // An adjustment takes no more than there is.
    if (row.quantity == 0 && (source.amount >= 0 ? rest < 0 : rest > 0))
        row.cost = -sign * source.amount;
    source.quantity += sign * row.quantity;
    source.amount += sign * row.cost;
    row.leftQuantity = source.quantity;
    row.leftAmount = source.amount;
    if (row.postsLine)
        objWith.documents.SetCost(row.line, row.cost);
}

// The split of what was there before the row, less that of what is there after it, so that a source line that
// is empty has nothing left of any cost item.
CostSplit TransitLedger::StandardOf(const Row& row) const
{
    const Item& item = *row.place->item;
    const CostSplit after = SplitCost(item, row.leftQuantity, row.leftAmount);
    const std::int64_t sign = row.in ? 1 : -1;
    const CostSplit before =
        SplitCost(item, row.leftQuantity - sign * row.quantity, row.leftAmount - sign * row.cost);
    CostSplit split = row.in ? after : before;
    split -= row.in ? before : after;
    return split;
}

void TransitLedger::Write(int month)
{
    for (const Row& row : arrRows) {
        const Document& head = arrHeads[static_cast<std::size_t>(row.head)];
        const Value voucher =
            row.broughtForward ? Value::Null() : objWith.vouchers.OfCost(head, row.voucherType);
        objTable->Write({++lngWritten, row.broughtForward ? 0 : month, row, head, voucher});

        const CostKey& key = objWith.keys.All()[static_cast<std::size_t>(objWith.keys.Of(*row.place))];
        if (objWith.standards.Has() && !IsPlanned(key.method))
            objWith.standards.AddTransit(lngWritten, head, row.voucherType, row.sourceLine, StandardOf(row));
    }
    for (const Row& row : arrRows) {
        const auto source = dicSources.find(row.sourceLine);
        if (source != dicSources.end() && source->second.posted == 0)
            dicSources.erase(source);
    }
    arrRows.clear();
    arrHeads.clear();
}

}  // namespace kavelin::demo
