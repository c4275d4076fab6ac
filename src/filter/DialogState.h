// What clsFilterControl keeps between the callbacks of one dialog.
#pragma once

#include <string>

namespace kavelin {

struct DialogState {
    std::string strViewClass;  // of the receipt-issue-balance summary: "ordin" or "cross", empty at first
    std::string strCurYear;    // default of the year fields, and the year whose months are offered
};

}  // namespace kavelin
