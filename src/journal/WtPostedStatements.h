// The two statements that bring ledger rows into the journal.
#pragma once

#include "journal/WtRun.h"

#include <string>

namespace kavelin {

// Rows of the ledger but those of direct business. Openings, and receipt adjustments that adjust nothing, are
// left out.
std::string InsertPosted(const WtRun& run);

// Those of direct business, which pass no department: a condition on it does not count.
std::string InsertPostedDirect(const WtRun& run);

}  // namespace kavelin
