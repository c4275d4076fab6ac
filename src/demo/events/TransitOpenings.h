// Goods in transit that the company comes into the year with, and their invoices.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakeTransitOpenings(Business& business);

}  // namespace kavelin::demo
