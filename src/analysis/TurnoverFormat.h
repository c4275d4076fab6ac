// The host's format of the turnover report.
#pragma once

#include "analysis/TurnoverFilter.h"

#include "frame/host/HostObject.h"

namespace kavelin {

// Takes the columns out of the host's view that hold nothing under this grouping. Nothing to do where the
// host has no report manager or no format. The format's `cols` has Count and Item, from 1; a column has
// Expression, Col and colVisible.
void HideEmptyColumns(const HostObjectPtr& reportManager, const TurnoverGroups& groups, bool byAmount);

}  // namespace kavelin
