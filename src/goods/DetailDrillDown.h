// From a row of the detail ledger to what stands behind it.
#pragma once

#include "frame/drilldown/DrillDown.h"

namespace kavelin {

DrillDownRules DetailDrillDownRules();

}  // namespace kavelin
