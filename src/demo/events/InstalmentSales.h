// Sales that the customer pays in instalments, each with its invoice.
#pragma once

#include "demo/events/Activity.h"
#include "demo/events/SaleKind.h"

#include <memory>

namespace kavelin::demo {

// As the profile has them. They are posted by the dispatch note whatever it says of other sales.
SaleKind InstalmentKind(const Profile& profile);

std::unique_ptr<Activity> MakeInstalmentSales(Business& business);

}  // namespace kavelin::demo
