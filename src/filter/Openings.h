// The opening of each dialog: which of its fields are prepared, and how. A field that the dialog's template
// lacks is never met.
//
// A value that the dialog has restored stays, except where a step says otherwise. Failures go to the host and
// stop the opening where it stands.
#pragma once

#include "filter/DialogState.h"
#include "frame/host/ReportFilterObject.h"

namespace kavelin {

void InitFilterJournal(ReportFilterObject& filter, DialogState& state);  // and price analysis
void InitFilterStandardCost(ReportFilterObject& filter, DialogState& state);
void InitFilterStockSummary(ReportFilterObject& filter, DialogState& state);
void InitFilterGoodsSummary(ReportFilterObject& filter, DialogState& state);
void InitFilterCostItem(ReportFilterObject& filter, DialogState& state);
void InitFilterDetailLedger(ReportFilterObject& filter, DialogState& state);
void InitFilterEstimate(ReportFilterObject& filter, DialogState& state);
void InitFilterTurnover(ReportFilterObject& filter, DialogState& state);  // and capital share
void InitFilterABC(ReportFilterObject& filter, DialogState& state);

}  // namespace kavelin
