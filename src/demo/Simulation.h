// The year of the demo company, day by day.
#pragma once

#include "demo/DemoCompany.h"
#include "demo/events/Activity.h"

#include <cstdint>

namespace kavelin::demo {

// Opens the year, lets the activities take turns on every working day until the inventory ledger has `lines`
// rows, then goes on to the end of the year with documents that stay unposted. Months end as they do in an
// office: what has to happen on the first and the last day happens, the books are closed; the last month
// stays open.
void PlayYear(Business& business, std::int64_t lines, const Progress& progress);

}  // namespace kavelin::demo
