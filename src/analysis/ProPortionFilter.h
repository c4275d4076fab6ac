// Filter of the capital share: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// " 1=1 " and a condition for each end of a range that has a value, in the order of the items.
std::string BuildRangeWhere(ReportFilterObject& filter);

// " 1=1 " and, if `cNo` has a value, the condition that cuts the result to the top `cNo`.
std::string BuildRankWhere(ReportFilterObject& filter);

}  // namespace kavelin
