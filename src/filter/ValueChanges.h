// What a change of one field does to others while the dialog is open. `sKey` is the changed field; a key that a
// rule doesn't name changes nothing, unless the rule says otherwise.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

void OnChangeJournal(const std::string& sKey, ReportFilterObject& flt);  // reads the value, no more

// A class or a warehouse narrows the lookup beside it; without a value it lets the lookup go.
void OnChangeStandardCost(const std::string& sKey, ReportFilterObject& flt);

// A class narrows the lookup beside it by its prefix, also by an empty one; a year brings its months.
void OnChangeEstimate(const std::string& sKey, ReportFilterObject& flt);

// A year brings its months. The month becomes the login's, or the year's first where it lacks that month,
// whatever was chosen before.
void OnChangeDetailLedger(const std::string& sKey, ReportFilterObject& flt);

// The same, and the year's costing basis decides anew between department and warehouse.
void OnChangeABC(const std::string& sKey, ReportFilterObject& flt);

// The number of the dispatch note and that of the issue lock each other, at a change of any field.
void OnChangeGoodsSummary(const std::string& sKey, ReportFilterObject& flt);
void OnChangeCostItem(const std::string& sKey, ReportFilterObject& flt);

// Each of two flags sets the other to no and locks it, at a change of any field. Nothing unlocks it again.
void OnChangeVoucherPosting(const std::string& sKey, ReportFilterObject& flt);

}  // namespace kavelin
