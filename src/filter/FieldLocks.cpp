#include "filter/FieldLocks.h"

#include "frame/FilterWalk.h"

namespace kavelin {

void LockWhileFilled(ReportFilterObject& filter, FilterItem& item, const std::string& other)
{
    const bool filled = !FilterText(item.varValue()).empty() || !FilterText(item.varValue2()).empty();
    filter.SetFieldLocked(other, filled);
}

}  // namespace kavelin
