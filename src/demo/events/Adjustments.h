// Amounts that are put right without goods moving.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeAdjustments(Business& business);

}  // namespace kavelin::demo
