#include "demo/events/Exports.h"

#include "demo/events/SaleActivity.h"

namespace kavelin::demo {

namespace {

// clang-format off
constexpr auto kConsignment = DocumentKind::Consignment;
constexpr auto kInvoice = DocumentKind::ExportInvoice;
constexpr auto kStock = DocumentKind::Stock;
constexpr std::string_view kSale = "普通销售";
constexpr std::string_view kExport = "出口发票";
constexpr DocumentType kExportInvoice = {
    kInvoice, "EX26", "EX26", kExport, kRdExport,     "EP", "EX", "", "自动", false};
constexpr DocumentType kExportCredit = {
    kInvoice, "EX27", "EX27", kExport, kRdSaleReturn, "EH", "EX", "", "自动", false};

constexpr SaleTypes kTypes = {
    .dispatch     = {kConsignment, "", "", kSale, kRdExport,     "EF", "EX", "", "", false},
    .dispatchBack = {kConsignment, "", "", kSale, kRdSaleReturn, "ET", "EX", "", "", false},
    .issue        = {kStock, "32", "32",   kSale, kRdExport,     "EC", "EX", "出口销货单", "自动", false},
    .issueBack    = {kStock, "32", "32",   kSale, kRdSaleReturn, "ER", "EX", "出口退货单", "自动", false},
    .invoice      = kExportInvoice,
    .credit       = kExportCredit,
    .otherInvoice = kExportInvoice,  // there is no other type
    .otherCredit  = kExportCredit,
};
// clang-format on

constexpr std::string_view kCustomers[] = {kExportCustomers};

}  // namespace

SaleKind ExportKind(const Profile& profile)
{
    return {
        .types = &kTypes,
        .byOtherName = nullptr,
        .posting = profile.exported == SaleDocument::Invoice ? SaleDocument::Invoice : SaleDocument::Issue,
        .inTransit = false,
        .share = profile.exports ? 3 : 0,
        .invoiceAfter = 15,
        .customers = kCustomers,
    };
}

std::unique_ptr<Activity> MakeExports(Business& business)
{
    return std::make_unique<SaleActivity>(business, ExportKind(business.profile));
}

}  // namespace kavelin::demo
