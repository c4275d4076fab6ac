// What the filter walks of the reports share.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// The text of a filter item's value; "" for an empty or null one.
std::string FilterText(const Value& value);

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
