#include "demo/books/StockTable.h"

#include "demo/RowValues.h"
#include "demo/books/Columns.h"
#include "demo/books/Documents.h"
#include "demo/books/Entries.h"
#include "demo/books/HeadColumns.h"
#include "demo/books/OrderDetails.h"
#include "demo/books/UserFields.h"

#include <algorithm>
#include <string>
#include <utility>

namespace kavelin::demo {

namespace {

// Every so many rows carry the number that orders them beside their own.
constexpr std::int32_t kOrderedEvery = 50;

std::string LedgerCode(const Document& document, const Place* place)
{
    if (document.id != 0)
        return CodeOf(document);
    // Openings come from the books of the year before, one list a warehouse.
    return place ? "QC-" + std::string(place->warehouse->code) : std::string("QC");
}

Value IfReceipt(const StockLine& line, bool receipt, Value value)
{
    return line.row.receipt == receipt ? std::move(value) : Value::Null();
}

// On both sides a difference above the plan is positive: debited by a receipt, credited by an issue.
Value Difference(const StockLine& line, bool debit)
{
    const StockRow& row = line.row;
    if (!row.planned)
        return Value::Null();
    return Money(std::max<std::int64_t>(row.receipt == debit ? row.difference : -row.difference, 0));
}

Value CostSource(const StockLine& line)
{
    if (line.row.settlement != 0)
        return "结算";
    return line.head.type ? TextOrNull(line.head.type->costSource) : Value::Null();
}

Value Digest(const StockLine& line)
{
    return line.voucher.IsNull() ? Value::Null() : TextOrNull(line.row.businessType);
}

constexpr Column<StockLine> kColumns[] = {
    {"AutoID", [](const StockLine& line) -> Value { return line.autoId; }},
    {"bakID",
     [](const StockLine& line) {
         return line.autoId % kOrderedEvery == 0 ? Value(line.autoId) : Value::Null();
     }},
    {"ID", [](const StockLine& line) { return NumberOrNull(line.row.line); }},
    {"iPZID", [](const StockLine& line) { return NumberOrNull(line.head.id); }},
    {"cPZID", [](const StockLine& line) { return line.voucher; }},
    {"cPZdigest", Digest},
    {"iYear", [](const StockLine&) -> Value { return kLedgerYear; }},
    {"iMonth", [](const StockLine& line) -> Value { return line.month; }},
    {"dVouDate", [](const StockLine& line) -> Value { return DateTime(line.head.day); }},
    {"dKeepDate", [](const StockLine& line) -> Value { return DateTime(line.row.day); }},
    {"dtAudit", [](const StockLine& line) -> Value { return DateTime(line.head.day); }},
    {"cAccounter", [](const StockLine&) -> Value { return kPoster; }},
    {"cVouCode", [](const StockLine& line) -> Value { return LedgerCode(line.head, line.row.place); }},
    {"cVouType", [](const StockLine& line) -> Value { return line.row.voucherType; }},
    {"cSrcVouType", [](const StockLine& line) { return TextOrNull(line.row.sourceType); }},
    {"cBusType", [](const StockLine& line) { return TextOrNull(line.row.businessType); }},
    {"cBusCode", [](const StockLine& line) { return BusinessNumber(line.head); }},
    {"bRdFlag", [](const StockLine& line) -> Value { return line.row.receipt ? 1 : 0; }},
    {"bFlag", [](const StockLine& line) -> Value { return std::int32_t{line.row.flag}; }},
    {"cWhCode",
     [](const StockLine& line) {
         return line.row.place ? Value(line.row.place->warehouse->code) : Value::Null();
     }},
    {"cAccDep", [](const StockLine& line) { return TextOrNull(line.head.accountingDepartment); }},
    {"cDepCode", [](const StockLine& line) { return TextOrNull(line.head.department); }},
    {"cRdCode",
     [](const StockLine& line) {
         return line.head.type ? TextOrNull(line.head.type->rdCode) : Value::Null();
     }},
    {"cCusCode", [](const StockLine& line) { return CodeOrNull(line.head.customer); }},
    {"cVenCode", [](const StockLine& line) { return CodeOrNull(line.head.vendor); }},
    {"cHandler", [](const StockLine& line) { return TextOrNull(line.head.handler); }},
    {"strContractCode", [](const StockLine& line) { return ContractCode(line.head); }},
    {"cProOrderCode", [](const StockLine& line) { return OrderOrNull(line.head, "MO"); }},
    {"iProOrderIDs", [](const StockLine& line) { return OrderLine(line.head, line.row.line, "MO"); }},
    {"cWorkProCodeDis", [](const StockLine& line) { return OperationLine(line.head, line.row.line); }},
    {"cWorkCenterName", [](const StockLine& line) { return WorkCentre(line.head); }},
    {"cProCode", [](const StockLine& line) { return ProductionBatch(line.head); }},
    {"cSaleOrderCode", [](const StockLine& line) { return OrderOrNull(line.head, "SO"); }},
    {"iSaleOrderIDs", [](const StockLine& line) { return OrderLine(line.head, line.row.line, "SO"); }},
    {"exoCode", [](const StockLine& line) { return OrderOrNull(line.head, "EX"); }},
    {"iExRowNo", [](const StockLine& line) { return OrderLine(line.head, line.row.line, "EX"); }},
    {"cEntrustOrderCode", [](const StockLine& line) { return OrderOrNull(line.head, "OM"); }},
    {"cPurOrderCode", [](const StockLine& line) { return OrderOrNull(line.head, "PO"); }},
    {"cImOrderCode", [](const StockLine& line) { return OrderOrNull(line.head, "IM"); }},
    {"cItem_class", [](const StockLine& line) { return ProjectClass(line.head); }},
    {"cItemCName", [](const StockLine& line) { return ProjectClassName(line.head); }},
    {"cItemCode", [](const StockLine& line) { return TextOrNull(line.head.project); }},
    {"cName", [](const StockLine& line) { return ProjectName(line.head); }},
    {"cInvCode", [](const StockLine& line) -> Value { return line.row.item->code; }},
    {"cFree1", [](const StockLine& line) { return ColourOrNull(line.row.place); }},
    {"cBatchIA", [](const StockLine& line) { return BatchOrNull(line.row.place); }},
    {"iAInQuantity",
     [](const StockLine& line) { return IfReceipt(line, true, QuantityOrNull(line.row.quantity)); }},
    {"iAOutQuantity",
     [](const StockLine& line) { return IfReceipt(line, false, QuantityOrNull(line.row.quantity)); }},
    {"iInCost",
     [](const StockLine& line) {
         return IfReceipt(line, true, UnitCostOrNull(line.row.Amount(), line.row.quantity));
     }},
    {"iOutCost",
     [](const StockLine& line) {
         return IfReceipt(line, false, UnitCostOrNull(line.row.Amount(), line.row.quantity));
     }},
    {"iAInPrice", [](const StockLine& line) { return IfReceipt(line, true, Money(line.row.Amount())); }},
    {"iAOutPrice", [](const StockLine& line) { return IfReceipt(line, false, Money(line.row.Amount())); }},
    {"iDebitDifCost", [](const StockLine& line) { return Difference(line, true); }},
    {"iCreditDifCost", [](const StockLine& line) { return Difference(line, false); }},
    {"iMaterialFee", [](const StockLine& line) { return MoneyOrNull(line.row.materialFee); }},
    {"iProcessFee", [](const StockLine& line) { return MoneyOrNull(line.row.processFee); }},
    {"costsource", CostSource},
    {"psvsid", [](const StockLine& line) { return NumberOrNull(line.row.settlement); }},
    {"cDemandCode", [](const StockLine& line) { return DemandCode(line.head); }},
    {"cDemandMemo", [](const StockLine& line) { return DemandMemo(line.head); }},
    {"cMemo", [](const StockLine& line) { return Memo(line.head); }},
    {"cDefine1", [](const StockLine& line) { return HeadText(line.head); }},
    {"cDefine4", [](const StockLine& line) { return HeadDay(line.head); }},
    {"cDefine7", [](const StockLine& line) { return HeadNumber(line.head); }},
    {"cDefine15", [](const StockLine& line) { return HeadCount(line.head); }},
    {"cDefine22", [](const StockLine& line) { return LineText(line.head, line.row.line); }},
    {"cDefine26", [](const StockLine& line) { return LineNumber(line.head, line.row.line); }},
    {"cDefine34", [](const StockLine& line) { return LineCount(line.head, line.row.line); }},
    {"cDefine36", [](const StockLine& line) { return LineDay(line.head, line.row.line); }},
};

}  // namespace

class StockTable::Writer : public ColumnWriter<StockLine, std::size(kColumns)> {
  public:
    explicit Writer(RowSink& sink) : ColumnWriter(sink, "IA_Subsidiary", kColumns) {}
};

StockTable::StockTable(RowSink& sink) : objWriter(std::make_unique<Writer>(sink)) {}

StockTable::~StockTable() = default;

void StockTable::Write(const StockLine& line)
{
    objWriter->Write(line);
}

}  // namespace kavelin::demo
