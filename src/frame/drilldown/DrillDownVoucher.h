// The accounting voucher of a row, in the suite's ledger.
#pragma once

#include "frame/drilldown/DrillDown.h"

namespace kavelin {

// Errors are passed over. False for a row without a voucher, of which the user was told.
bool OpenVoucher(const DrillDownRules& rules, RowArguments& e);

// The same for the voucher of the row's cost differences.
bool OpenDifferenceVoucher(const DrillDownRules& rules, RowArguments& e);

}  // namespace kavelin
