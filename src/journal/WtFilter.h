// Filter of the journal: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <string>

namespace kavelin {

// What the filter of the journal asks for. Stays with the report object between calls: what a filter does not
// name keeps its value.
struct WtConditions {
    std::string strWhere;     // on the ledger under the alias NoSub
    std::string strVouTypes;  // quoted list, empty for all
    std::string strBusTypes;  // quoted list, empty for all
    std::string strPzNoID;    // number of the accounting voucher, empty for all
    bool blnAccounted = false;
    bool blnUnAccounted = false;
    std::int32_t lngAssUnitNo = 0;  // 0: each item's own second unit
};

// Reads the filter into `conditions`; its three texts begin anew. Shows the description of any error to the
// user and returns with what it has.
void TranslateWtFilter(ReportFilterObject& objFilter, WtConditions& conditions);

}  // namespace kavelin
