// Which of department and warehouse the ABC dialog asks for: it follows the costing basis of the year.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// Clears cDepCode and cWhCode and leaves open the one by which the account is costed in that year; both are
// locked where it is costed by inventory.
void SettleCostingBasis(ReportFilterObject& filter, const std::string& year);

}  // namespace kavelin
