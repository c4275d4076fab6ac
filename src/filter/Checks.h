// What OK checks. Each check walks the fields in the order of the template; at the first failure the user sees
// the failure's message, and the check gives False: the dialog stays open with all values as they are. A failure
// of the database goes to the host.
#pragma once

#include "filter/DialogState.h"
#include "frame/host/ReportFilterObject.h"

namespace kavelin {

// Have no rule of their own: they accept everything.
bool CheckFilterJournal(ReportFilterObject& filter, DialogState& state);
bool CheckFilterTurnover(ReportFilterObject& filter, DialogState& state);
bool CheckFilterABC(ReportFilterObject& filter, DialogState& state);
bool CheckFilterCostItem(ReportFilterObject& filter, DialogState& state);
bool CheckFilterDetailLedger(ReportFilterObject& filter, DialogState& state);

// The two months must lie in one year. Throws ConversionError for a month that doesn't begin with a year.
bool CheckFilterPrice(ReportFilterObject& filter, DialogState& state);

// There must be a month; an empty year takes the dialog's.
bool CheckFilterEstimate(ReportFilterObject& filter, DialogState& state);

bool CheckFilterStockSummary(ReportFilterObject& filter, DialogState& state);
bool CheckFilterGoodsSummary(ReportFilterObject& filter, DialogState& state);

}  // namespace kavelin
