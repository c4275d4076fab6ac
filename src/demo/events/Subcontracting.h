// Work given to others: materials go out, parts come back at the cost of materials and work.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeSubcontracting(Business& business);

}  // namespace kavelin::demo
