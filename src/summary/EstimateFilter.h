// Filter of the estimate balance: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// What the filter of the estimate balance asks for. Stays with the report object between calls: a filter that
// does not name the year or the month leaves them as they were.
struct EstimateConditions {
    std::string strYear;
    std::string strMonth;
    std::string strBusTypes;   // quoted list, without consignment
    bool blnEntrust = false;   // with consignment
    bool blnDisZero = true;    // lines whose closing money is 0 stay
    bool blnFreeOnly = false;  // only the free items that the inventory keeps

    std::string strGroupWhere;  // what the filter itself makes of all other items
    std::string strVouCond;     // on the voucher types
};

// Reads the filter into `conditions`. The edition of the account, read on gcnnAccount where the filter has
// business types, says which of them there are. Any failure goes to the caller.
void TranslateEstimateFilter(ReportFilterObject& objFilter, EstimateConditions& conditions);

// Whether the account is of the industrial edition.
bool IsIndustrial();

}  // namespace kavelin
