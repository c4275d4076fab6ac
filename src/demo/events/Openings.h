// What lies in the warehouses when the year begins.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeOpenings(Business& business);

}  // namespace kavelin::demo
