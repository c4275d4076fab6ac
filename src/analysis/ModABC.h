// The classification of the ABC analysis.
#pragma once

#include "analysis/AbcStatements.h"

namespace kavelin {

// Leaves the run's two working tables on the account's connection. Throws DatabaseError.
void ClassifyItems(const AbcRun& run);

}  // namespace kavelin
