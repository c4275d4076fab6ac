// Goods of others that the company sells for them: it owes for what it has sold.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeConsignmentIn(Business& business);

}  // namespace kavelin::demo
