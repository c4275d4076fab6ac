// The computation of the inventory turnover, from the ledger to a rate for each group.
#pragma once

#include "analysis/TurnoverStatements.h"

namespace kavelin {

// Completes the run and leaves its four working tables on the account's connection. Throws DatabaseError.
void ComputeTurnover(TurnoverRun& run);

}  // namespace kavelin
