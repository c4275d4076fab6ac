#include "demo/books/AccountingVouchers.h"

#include "demo/books/Padded.h"
#include "demo/books/UserFields.h"

#include <string>

namespace kavelin::demo {

namespace {

constexpr std::uint64_t kWhetherCost = 11, kWhetherDifference = 12;

constexpr std::string_view kColumns[] = {"cOutNo_ID", "cSign", "iNo_ID", "cOutSign", "cOutSysName", "iFlag"};
constexpr std::string_view kWords[] = {"记", "转"};

bool IsPurchase(const DocumentType& type)
{
    return type.kind == DocumentKind::PurchaseInvoice || type.kind == DocumentKind::VendorManaged ||
           (type.kind == DocumentKind::Stock && type.voucherType == "01");
}

}  // namespace

AccountingVouchers::AccountingVouchers(RowSink& sink) : objTable(sink.Open("gl_AccVouch", kColumns)) {}

void AccountingVouchers::OpenMonth(int month)
{
    intMonth = month;
    objCosts = {};
    objDifferences = {};
    arrWords = {};
}

Value AccountingVouchers::OfCost(const Document& document, std::string_view voucherType)
{
    if (intMonth == 0 || document.id == 0 || Mixed(document.id, kWhetherCost) % 100 >= 85)
        return Value::Null();
    return Link(objCosts, "IA", document, voucherType);
}

Value AccountingVouchers::OfDifferences(const Document& document, std::string_view voucherType)
{
    if (intMonth == 0 || document.id == 0 || Mixed(document.id, kWhetherDifference) % 2 == 0)
        return Value::Null();
    return Link(objDifferences, "CA", document, voucherType);
}

Value AccountingVouchers::Link(Series& series, std::string_view module, const Document& document,
                               std::string_view voucherType)
{
    const auto [entry, isNew] = series.numbers.try_emplace(document.id, series.last + 1);
    const bool cost = module == "IA";
    const std::string_view prefix = cost && IsPurchase(*document.type) ? "PU" : module;

    std::string link(prefix);
    link += "08";
    AppendPadded(link, intMonth, 2);
    link += '-';
    AppendPadded(link, entry->second, 5);
    if (isNew) {
        ++series.last;
        Write(link, cost && document.type->receipt, voucherType, module);
    }
    return link;
}

void AccountingVouchers::Write(std::string_view link, bool receives, std::string_view voucherType,
                               std::string_view module)
{
    const std::size_t word = receives ? 0 : 1;
    const std::int32_t number = ++arrWords[word];
    arrRow[0] = link;
    arrRow[1] = kWords[word];
    arrRow[2] = number;
    arrRow[3] = voucherType;
    arrRow[4] = module;
    arrRow[5] = number % 9 == 0 ? Value(2) : Value::Null();
    objTable.Add(arrRow);
}

}  // namespace kavelin::demo
