// What the company does, in the order in which the activities begin the year, the months and end them: the
// openings come before what is brought forward on top of them.
#include "demo/events/Activity.h"
#include "demo/events/Adjustments.h"
#include "demo/events/ConsignmentIn.h"
#include "demo/events/DirectTrade.h"
#include "demo/events/EntrustedSales.h"
#include "demo/events/Exports.h"
#include "demo/events/InstalmentSales.h"
#include "demo/events/Openings.h"
#include "demo/events/Production.h"
#include "demo/events/Purchasing.h"
#include "demo/events/Sales.h"
#include "demo/events/Subcontracting.h"
#include "demo/events/TransitAdjustments.h"
#include "demo/events/TransitOpenings.h"
#include "demo/events/VendorManaged.h"
#include "demo/events/Warehousing.h"

namespace kavelin::demo {

namespace {

bool Always(const Profile&)
{
    return true;
}

bool IsIndustrial(const Profile& profile)
{
    return profile.edition == Edition::Industrial;
}

struct Entry {
    std::unique_ptr<Activity> (*make)(Business&);
    bool (*belongs)(const Profile&);
};

constexpr Entry kActivities[] = {
    {MakeOpenings, Always},
    {MakePurchasing, Always},
    {MakeSubcontracting,
     [](const Profile& profile) { return IsIndustrial(profile) && profile.subcontracting; }},
    {MakeVendorManaged, [](const Profile& profile) { return profile.vendorManaged; }},
    {MakeConsignmentIn,
     [](const Profile& profile) { return !IsIndustrial(profile) && profile.consignmentIn; }},
    {MakeProduction, IsIndustrial},
    {MakeWarehousing, Always},
    {MakeAdjustments, Always},
    {MakeTransitOpenings, Always},
    {MakeSales, Always},
    {MakeEntrustedSales, Always},
    {MakeInstalmentSales, [](const Profile& profile) { return profile.instalments; }},
    {MakeExports, [](const Profile& profile) { return profile.exports; }},
    {MakeDirectTrade, [](const Profile& profile) { return profile.direct; }},
    {MakeTransitAdjustments, Always},
};

}  // namespace

std::vector<std::unique_ptr<Activity>> MakeActivities(Business& business)
{
    std::vector<std::unique_ptr<Activity>> activities;
    for (const Entry& entry : kActivities)
        if (entry.belongs(business.profile))
            activities.push_back(entry.make(business));
    return activities;
}

}  // namespace kavelin::demo
