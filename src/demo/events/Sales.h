// Ordinary sales.
#pragma once

#include "demo/events/Activity.h"
#include "demo/events/SaleKind.h"

#include <memory>

namespace kavelin::demo {

// As the profile has them.
SaleKind OrdinaryKind(const Profile& profile);

std::unique_ptr<Activity> MakeSales(Business& business);

}  // namespace kavelin::demo
