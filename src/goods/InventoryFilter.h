// Filter of the summary by cost item: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <string>

namespace kavelin {

struct InventoryConditions {
    std::string strOpenWhere;  // on the lines of the opening; empty if the filter left nothing to the service
    std::string strMoveWhere;  // on the lines of the period; empty likewise
    std::string strYear;
    std::string strCostItem = "0";  // 0 all, 1 to 6 one item
    std::int32_t lngUnitNumber = 0;
};

InventoryConditions ReadCostFilter(ReportFilterObject& objFilter);

}  // namespace kavelin
