// Two fields of which one locks the other while it has a value.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// Locks the field `other` if one of the item's boxes is filled, else unlocks it.
void LockWhileFilled(ReportFilterObject& filter, FilterItem& item, const std::string& other);

}  // namespace kavelin
