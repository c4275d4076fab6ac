// Filter of the standard-cost journal: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <string>

namespace kavelin {

// What the filter asks for. Stays with the report object between calls: what a filter does not name keeps its
// value.
struct CostConditions {
    std::string strWhere;     // on V_IA_CostacCount
    std::string strVouTypes;  // quoted list, empty for all
    std::string strBusTypes;  // quoted list, empty for all
    std::int32_t lngAssUnitNo = 0;
};

// Reads the filter into `conditions`; its three texts begin anew. Shows the description of any error to the
// user and returns with what it has.
void TranslateCostFilter(ReportFilterObject& objFilter, CostConditions& conditions);

}  // namespace kavelin
