// Filter of the receipt-issue-balance summary: items in, conditions out; no database.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "summary/SumConditions.h"

namespace kavelin {

// Reads the filter into `conditions`. strDefineSub and blnWhSum begin anew; of the others, what the filter
// does not name keeps its value. Shows the description of any error to the user and gives False; the
// conditions are then as far as they got.
bool TranslateSummaryFilter(ReportFilterObject& objFilter, SumConditions& conditions);

}  // namespace kavelin
