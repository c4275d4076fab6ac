#include "demo/books/Documents.h"

#include "demo/RowValues.h"
#include "demo/books/Columns.h"
#include "demo/books/HeadColumns.h"
#include "demo/books/OrderDetails.h"
#include "demo/books/UserFields.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

namespace kavelin::demo {

namespace {

// Identifiers begin apart, so that one taken for another finds nothing in a small account.
constexpr std::int32_t kBeforeDocuments = 50000;
constexpr std::int32_t kBeforeLines = 100000;

constexpr std::array<std::string_view, 8> kKinds = {"RD",    "DISP", "SALE", "EXCON",
                                                    "EXINV", "PUR",  "JUST", "VMI"};

int MonthNumber(std::chrono::sys_days day)
{
    const std::chrono::year_month_day date(day);
    return static_cast<int>(date.year()) * 12 + static_cast<int>(static_cast<unsigned>(date.month()));
}

bool IsSale(DocumentKind kind)
{
    return kind == DocumentKind::Dispatch || kind == DocumentKind::SaleInvoice ||
           kind == DocumentKind::ExportInvoice;
}

// The identity that a consignment line has beside its number.
std::string GuidOf(std::int32_t line)
{
    char text[40];
    std::snprintf(text, sizeof text, "%08X-2008-4000-8000-%012d", static_cast<unsigned>(line) * 2654435761u,
                  line);
    return text;
}

}  // namespace

struct Documents::Line {
    std::int32_t id = 0;
    std::int32_t head = 0;  // place of its head among those kept
    LineEntry entry;
    const Item* item = nullptr;
    std::int64_t difference = 0;  // to the planned price, while it is not posted
    bool posted = false;
    std::chrono::sys_days postingDay;
};

class Documents::Tables {
  public:
    explicit Tables(RowSink& sink)
        : objHeads(sink, "Demo_Document", kHeadColumns), objLines(sink, "Demo_DocumentLine", kLineColumns)
    {
    }

    void WriteHead(const Document& head) { objHeads.Write(head); }
    void WriteLine(const Document& head, const Line& line) { objLines.Write({head, line}); }

  private:
    struct LineRow {
        const Document& head;
        const Line& line;
    };

    // Unknown for an issue that is not posted.
    static Value Price(const LineRow& row)
    {
        if (row.line.entry.amount == 0 && !row.line.posted && row.line.difference == 0)
            return Value::Null();
        return Money(row.line.entry.amount - row.line.difference);
    }

    static constexpr Column<Document> kHeadColumns[] = {
        {"DocID", [](const Document& head) -> Value { return head.id; }},
        {"Kind",
         [](const Document& head) -> Value { return kKinds[static_cast<std::size_t>(head.type->kind)]; }},
        {"cVouType", [](const Document& head) -> Value { return head.type->voucherType; }},
        {"cVouCode", [](const Document& head) -> Value { return CodeOf(head); }},
        {"dVouDate", [](const Document& head) -> Value { return DateTime(head.day); }},
        {"cBusType", [](const Document& head) { return TextOrNull(head.type->businessType); }},
        {"cBusCode", BusinessNumber},
        {"cSource", [](const Document& head) { return TextOrNull(head.type->source); }},
        {"cSTCode",
         [](const Document& head) { return IsSale(head.type->kind) ? Value("01") : Value::Null(); }},
        {"cWhCode", [](const Document& head) { return TextOrNull(head.warehouse); }},
        {"cDepCode", [](const Document& head) { return TextOrNull(head.department); }},
        {"cAccDep", [](const Document& head) { return TextOrNull(head.accountingDepartment); }},
        {"cRdCode", [](const Document& head) { return TextOrNull(head.type->rdCode); }},
        {"cCusCode", [](const Document& head) { return CodeOrNull(head.customer); }},
        {"cVenCode", [](const Document& head) { return CodeOrNull(head.vendor); }},
        {"cPersonCode", [](const Document& head) { return TextOrNull(head.person); }},
        {"cHandler", [](const Document& head) { return TextOrNull(head.handler); }},
        {"strContractCode", ContractCode},
        {"cMemo", Memo},
        {"cDefine1", HeadText},
        {"cDefine4", HeadDay},
        {"cDefine7", HeadNumber},
        {"cDefine15", HeadCount},
    };

    static constexpr Column<LineRow> kLineColumns[] = {
        {"LineID", [](const LineRow& row) -> Value { return row.line.id; }},
        {"DocID", [](const LineRow& row) -> Value { return row.head.id; }},
        {"cInvCode", [](const LineRow& row) -> Value { return row.line.item->code; }},
        {"cFree1", [](const LineRow& row) { return ColourOrNull(row.line.entry.place); }},
        {"cBatchIA", [](const LineRow& row) { return BatchOrNull(row.line.entry.place); }},
        {"bRdFlag", [](const LineRow& row) -> Value { return row.head.type->receipt ? 1 : 0; }},
        {"iQuantity", [](const LineRow& row) { return QuantityOrNull(row.line.entry.quantity); }},
        {"iUnitCost",
         [](const LineRow& row) { return UnitCostOrNull(row.line.entry.amount, row.line.entry.quantity); }},
        {"iPrice", Price},
        {"iDif", [](const LineRow& row) { return MoneyOrNull(row.line.difference); }},
        {"iMaterialFee", [](const LineRow& row) { return MoneyOrNull(row.line.entry.materialFee); }},
        {"iProcessFee", [](const LineRow& row) { return MoneyOrNull(row.line.entry.processFee); }},
        {"cAccounter", [](const LineRow& row) { return row.line.posted ? Value(kPoster) : Value::Null(); }},
        {"dKeepDate",
         [](const LineRow& row) {
             return row.line.posted ? Value(DateTime(row.line.postingDay)) : Value::Null();
         }},
        {"iDLsID", [](const LineRow& row) { return NumberOrNull(row.line.entry.dispatchLine); }},
        {"iSBsID", [](const LineRow& row) { return NumberOrNull(row.line.entry.invoiceLine); }},
        {"cGuid",
         [](const LineRow& row) {
             return row.head.type->kind == DocumentKind::Consignment ? Value(GuidOf(row.line.id))
                                                                     : Value::Null();
         }},
        {"cGuidSource",
         [](const LineRow& row) {
             const std::int32_t source = row.line.entry.consignmentLine;
             return source == 0 ? Value::Null() : Value(GuidOf(source));
         }},
        {"iConsignmentAutoID",
         [](const LineRow& row) { return NumberOrNull(row.line.entry.consignmentLine); }},
        {"iTB", [](const LineRow&) -> Value { return 0; }},
        {"cProOrderCode", [](const LineRow& row) { return OrderOrNull(row.head, "MO"); }},
        {"iProOrderIDs", [](const LineRow& row) { return OrderLine(row.head, row.line.id, "MO"); }},
        {"cWorkProCodeDis", [](const LineRow& row) { return OperationLine(row.head, row.line.id); }},
        {"cWorkCenterName", [](const LineRow& row) { return WorkCentre(row.head); }},
        {"cProCode", [](const LineRow& row) { return ProductionBatch(row.head); }},
        {"cSaleOrderCode", [](const LineRow& row) { return OrderOrNull(row.head, "SO"); }},
        {"iSaleOrderIDs", [](const LineRow& row) { return OrderLine(row.head, row.line.id, "SO"); }},
        {"exoCode", [](const LineRow& row) { return OrderOrNull(row.head, "EX"); }},
        {"iExRowNo", [](const LineRow& row) { return OrderLine(row.head, row.line.id, "EX"); }},
        {"cEntrustOrderCode", [](const LineRow& row) { return OrderOrNull(row.head, "OM"); }},
        {"cPurOrderCode", [](const LineRow& row) { return OrderOrNull(row.head, "PO"); }},
        {"cImOrderCode", [](const LineRow& row) { return OrderOrNull(row.head, "IM"); }},
        {"cItem_class", [](const LineRow& row) { return ProjectClass(row.head); }},
        {"cItemCName", [](const LineRow& row) { return ProjectClassName(row.head); }},
        {"cItemCode", [](const LineRow& row) { return TextOrNull(row.head.project); }},
        {"cName", [](const LineRow& row) { return ProjectName(row.head); }},
        {"cDemandCode", [](const LineRow& row) { return DemandCode(row.head); }},
        {"cDemandMemo", [](const LineRow& row) { return DemandMemo(row.head); }},
        {"cDefine22", [](const LineRow& row) { return LineText(row.head, row.line.id); }},
        {"cDefine26", [](const LineRow& row) { return LineNumber(row.head, row.line.id); }},
        {"cDefine34", [](const LineRow& row) { return LineCount(row.head, row.line.id); }},
        {"cDefine36", [](const LineRow& row) { return LineDay(row.head, row.line.id); }},
    };

    ColumnWriter<Document, std::size(kHeadColumns)> objHeads;
    ColumnWriter<LineRow, std::size(kLineColumns)> objLines;
};

Documents::Documents(const Profile& profile, const Company& company, RowSink& sink)
    : objProfile(profile),
      objCompany(company),
      objTables(std::make_unique<Tables>(sink)),
      lngDocuments(kBeforeDocuments),
      lngLines(kBeforeLines),
      lngFirstDocument(kBeforeDocuments + 1)
{
}

Documents::~Documents() = default;

Document Documents::Add(const Document& head)
{
    Document document = head;
    document.id = ++lngDocuments;
    document.number = ++dicNumbers[{MonthNumber(head.day), head.type->prefix}];
    // The department says there what the goods are valued by.
    if (objProfile.valueStyle == ValueStyle::ByDepartment && !head.warehouse.empty())
        document.department = FindWarehouse(objCompany, head.warehouse).department;
    arrHeads.push_back(document);
    return document;
}

std::int32_t Documents::NewLineNumber()
{
    return ++lngLines;
}

std::int32_t Documents::AddLine(const Document& document, const LineEntry& entry)
{
    if (document.id < lngFirstDocument)
        throw std::logic_error("A line comes behind the month of its document.");
    Line line;
    line.id = NewLineNumber();
    line.head = document.id - lngFirstDocument;
    line.entry = entry;
    line.item = entry.item;
    if (entry.place) {
        line.item = entry.place->item;
        const std::string_view valuation = ValuationOf(objProfile, *entry.place->warehouse, *line.item);
        const bool planned = valuation == kPlannedPrice || valuation == kRetailPrice;
        if (planned && document.type->receipt && entry.amount != 0)
            line.difference = entry.amount - AmountOf(entry.quantity, line.item->price);
    }
    if (document.type->kind == DocumentKind::Dispatch)
        line.entry.dispatchLine = line.id;
    arrLines.push_back(line);
    return line.id;
}

// Lines are kept in the order of their numbers, few of which are left out: a line stands where it would be if
// none were, or a little before.
Documents::Line& Documents::Find(std::int32_t line)
{
    if (!arrLines.empty() && line >= arrLines.front().id) {
        auto at = std::min(static_cast<std::size_t>(line - arrLines.front().id), arrLines.size() - 1);
        while (arrLines[at].id > line)
            --at;
        if (arrLines[at].id == line)
            return arrLines[at];
    }
    throw std::logic_error("Line " + std::to_string(line) + " is posted behind the month of its document.");
}

void Documents::Post(std::int32_t number, std::chrono::sys_days day)
{
    Line& line = Find(number);
    if (line.posted)
        throw std::logic_error("Line " + std::to_string(number) + " is posted twice.");
    line.posted = true;
    line.postingDay = day;
}

void Documents::SetCost(std::int32_t number, std::int64_t cost)
{
    Line& line = Find(number);
    line.entry.amount = cost;
    line.difference = 0;
}

void Documents::Write()
{
    for (const Document& head : arrHeads)
        objTables->WriteHead(head);
    for (const Line& line : arrLines)
        objTables->WriteLine(arrHeads[static_cast<std::size_t>(line.head)], line);
    arrHeads.clear();
    arrLines.clear();
    lngFirstDocument = lngDocuments + 1;
}

}  // namespace kavelin::demo
