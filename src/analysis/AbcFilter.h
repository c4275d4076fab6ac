// Filter of the ABC analysis: items in, month, classes and condition out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

struct AbcConditions {
    std::string strPeriod;  // month of the year, as digits
    bool blnIncludeA = false;
    bool blnIncludeB = false;
    bool blnIncludeC = false;
    std::string strWhere;  // begins with " And ", or is empty
};

// With `fromDialog` year and month are those of the filter, else those of the login.
AbcConditions ReadAbcFilter(ReportFilterObject& filter, bool fromDialog);

}  // namespace kavelin
