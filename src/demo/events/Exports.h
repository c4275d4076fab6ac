// Sales abroad: a consignment, an issue note, an export invoice.
#pragma once

#include "demo/events/Activity.h"
#include "demo/events/SaleKind.h"

#include <memory>

namespace kavelin::demo {

// As the profile has them. A profile that posts them by dispatch notes is taken to mean issue notes, since a
// consignment is never posted.
SaleKind ExportKind(const Profile& profile);

std::unique_ptr<Activity> MakeExports(Business& business);

}  // namespace kavelin::demo
