#include "demo/events/InstalmentSales.h"

#include "demo/events/SaleActivity.h"

namespace kavelin::demo {

namespace {

constexpr SaleTypes kTypes = DomesticSale("分期收款", kRdInstalment, "32");
constexpr std::string_view kCustomers[] = {"01", "02"};

}  // namespace

SaleKind InstalmentKind(const Profile& profile)
{
    return {
        .types = &kTypes,
        .byOtherName = nullptr,
        .posting = SaleDocument::Dispatch,
        .inTransit = true,
        .share = profile.instalments ? 3 : 0,
        .invoiceAfter = 28,
        .customers = kCustomers,
    };
}

std::unique_ptr<Activity> MakeInstalmentSales(Business& business)
{
    return std::make_unique<SaleActivity>(business, InstalmentKind(business.profile));
}

}  // namespace kavelin::demo
