// Goods entrusted to agents, who sell them: the sale is invoiced when the agent has sold.
#pragma once

#include "demo/events/Activity.h"
#include "demo/events/SaleKind.h"

#include <memory>

namespace kavelin::demo {

// As the profile has them.
SaleKind EntrustedKind(const Profile& profile);

std::unique_ptr<Activity> MakeEntrustedSales(Business& business);

}  // namespace kavelin::demo
