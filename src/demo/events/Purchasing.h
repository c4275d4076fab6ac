// Goods bought: receipts at the invoice's price or an estimate, imports, goods sent back, invoices later.
#pragma once

#include "demo/events/Activity.h"

#include <memory>

namespace kavelin::demo {

std::unique_ptr<Activity> MakePurchasing(Business& business);

}  // namespace kavelin::demo
