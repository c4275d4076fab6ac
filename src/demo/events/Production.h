// Materials issued to the workshops and finished goods received from them.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeProduction(Business& business);

}  // namespace kavelin::demo
