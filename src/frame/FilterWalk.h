// What the filter walks of the reports share.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>
#include <string_view>

namespace kavelin {

// Yes and no as the filter keeps them, whatever the dialog shows.
inline constexpr std::string_view kYes = "是";
inline constexpr std::string_view kNo = "否";

// The text of a filter item's value; "" for an empty or null one.
std::string FilterText(const Value& value);

// "7" of "7月": what stands before the last character, whichever that is, without blanks at its ends.
std::string MonthDigits(std::string_view month);

// Calls `take` with each item of the filter in order, from 1 to Count.
template <class Take>
void ForEachItem(ReportFilterObject& filter, Take take)
{
    const auto list = filter.FilterList();
    const std::int32_t count = list->Count();
    for (std::int32_t position = 1; position <= count; ++position)
        take(*list->Item(position));
}

}  // namespace kavelin
