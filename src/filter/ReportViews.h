// Which of a report's views the dialog shows, where a report has more than one.
#pragma once

#include "filter/DialogState.h"
#include "frame/Value.h"
#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// The summary has an ordinary and a cross view: "ordin" for 0 in rdGrade, "cross" for any other number. The
// text goes to strViewClass and to `ReturnViewClass`. A change of any other field leaves both alone.
void StockSummaryFirstView(ReportFilterObject& flt, DialogState& state, Value& ReturnViewClass);
void StockSummaryViewChange(const std::string& sKey, ReportFilterObject& flt, DialogState& state,
                            Value& ReturnViewClass);

// The standard-cost journal shows income by the method of the account's cost module, iCyFtMethod.
void StandardCostFirstView(ReportFilterObject& flt, DialogState& state, Value& ReturnViewClass);
void StandardCostViewChange(const std::string& sKey, ReportFilterObject& flt, DialogState& state,
                            Value& ReturnViewClass);

}  // namespace kavelin
