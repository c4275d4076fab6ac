// Goods that their vendors keep in the company's warehouse and that become its own when it uses them.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeVendorManaged(Business& business);

}  // namespace kavelin::demo
