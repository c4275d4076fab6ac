// The source document of a row, in the suite's voucher viewer.
#pragma once

#include "frame/drilldown/DrillDown.h"

namespace kavelin {

// Errors are passed over.
void OpenDocument(const DrillDownRules& rules, RowArguments& e);

}  // namespace kavelin
