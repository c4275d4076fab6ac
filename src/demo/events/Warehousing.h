// What goes on between the warehouses and their shelves: transfers, assembly, counts, odd movements.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeWarehousing(Business& business);

}  // namespace kavelin::demo
