// One item of a journal's filter, and the conditions that it stands for.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <string>

namespace kavelin {

struct JournalField {
    std::string name, from, to;
    bool range, several;
};

// The item, after `token` was stored in it.
JournalField ReadJournalField(FilterItem& item, std::int32_t token);

// Conditions on the column of the field's name, `before` in front of each: a range, or else an equality. ""
// for a field without a value; a value in the second box alone is an equality with the empty text.
std::string CompareField(const std::string& before, const JournalField& field);

// The same for a pair of dates, which is a range in any case.
std::string CompareDates(const std::string& before, const JournalField& field);

}  // namespace kavelin
