// Filter of the goods-in-transit summary: items in, conditions out. Keys are compared without regard to case.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <string>

namespace kavelin {

// What the filter asks for. Year and unit number stay with the report object between calls where a filter does
// not name them.
struct GoodsSumConditions {
    std::string strMoveWhere;  // lines of the period; empty where the filter names nothing
    std::string strOpenWhere;  // lines before it; empty likewise
    std::int32_t lngUnitNumber = 0;
    std::string strYear;
};

void ReadGoodsFilter(ReportFilterObject& objFilter, GoodsSumConditions& conditions);

}  // namespace kavelin
