#include "demo/events/EntrustedSales.h"

#include "demo/events/SaleActivity.h"

namespace kavelin::demo {

namespace {

// Posted by an issue note, the goods are in transit like those posted by a dispatch note, under a type of
// their own.
constexpr SaleTypes kTypes = DomesticSale("委托代销", kRdEntrusted, "3201");
constexpr SaleTypes kShortName = DomesticSale("委托", kRdEntrusted, "3201");
constexpr std::string_view kCustomers[] = {kAgents};

}  // namespace

SaleKind EntrustedKind(const Profile& profile)
{
    return {
        .types = &kTypes,
        .byOtherName = &kShortName,
        .posting = profile.entrusted,
        .inTransit = profile.entrusted != SaleDocument::Invoice,
        .share = 4,
        .invoiceAfter = 20,
        .customers = kCustomers,
    };
}

std::unique_ptr<Activity> MakeEntrustedSales(Business& business)
{
    return std::make_unique<SaleActivity>(business, EntrustedKind(business.profile));
}

}  // namespace kavelin::demo
