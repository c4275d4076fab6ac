// Filter of the inventory turnover: items in, grouping, range and conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// By what the turnover is shown.
struct TurnoverGroups {
    bool blnGroupDep = false;
    bool blnGroupWh = false;
    bool blnGroupInvClass = true;
    bool blnGroupInv = true;
};

struct TurnoverConditions {
    TurnoverGroups groups;
    std::string strDateFrom, strDateTo;  // YYYY-MM-DD
    std::string dtmFirst, dtmLast;       // bounds of the year, likewise
    bool blnByAmount = true;             // else by quantity
    std::string strWhere;                // begins with " And ", or is empty
    std::string strBusWhere;             // business types, in parentheses; empty for all
};

// Reads the account's valuation style, periods and last posting date where the filter asks for them.
TurnoverConditions ReadTurnoverFilter(ReportFilterObject& filter);

}  // namespace kavelin
