#include "demo/events/Sales.h"

#include "demo/events/SaleActivity.h"

namespace kavelin::demo {

namespace {

constexpr SaleTypes kTypes = DomesticSale("普通销售", kRdSale, "32");
constexpr std::string_view kCustomers[] = {"01", "02"};

}  // namespace

SaleKind OrdinaryKind(const Profile& profile)
{
    return {
        .types = &kTypes,
        .byOtherName = nullptr,
        .posting = profile.ordinary,
        .inTransit = profile.ordinary == SaleDocument::Dispatch,
        .share = 14,
        .invoiceAfter = 12,
        .customers = kCustomers,
    };
}

std::unique_ptr<Activity> MakeSales(Business& business)
{
    return std::make_unique<SaleActivity>(business, OrdinaryKind(business.profile));
}

}  // namespace kavelin::demo
