// Direct business: what is bought goes from the vendor to the customer and never lies in a warehouse.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeDirectTrade(Business& business);

}  // namespace kavelin::demo
