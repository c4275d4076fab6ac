// The accounting years of the account and the months of one of them, as the suite's ledger knows them.
#pragma once

#include "filter/DialogState.h"

#include <string>

namespace kavelin {

struct MonthRange {
    int first = 0;
    int last = 0;

    bool Holds(int month) const { return month >= first && month <= last; }
};

// "2007,2008,2009". Sets strCurYear to the login's year.
std::string GetAccYearList(DialogState& state);

// The months of an accounting year.
MonthRange GetMonthsOfYear(const std::string& year);

// "7月".
std::string MonthText(int month);

// "1月,2月,3月,", with a comma behind the last; empty if `first` is greater than `last`.
std::string BuildMonthList(MonthRange months);

}  // namespace kavelin
