// Debit and credit adjustments of goods in transit: amounts alone.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeTransitAdjustments(Business& business);

}  // namespace kavelin::demo
