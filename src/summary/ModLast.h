// The work of the estimate balance on the database: the work tables, and the passes that fill them. All of it
// runs on gcnnAccount; nothing here traps an error, and what a run made before it failed stays behind.
#pragma once

#include "summary/EstimateRun.h"

#include <string>

namespace kavelin {

// Makes the work table anew, without a line.
void CreateZgTable(const EstimateRun& run);

// Fills it by the account's method `cEstimate`. A method that is not known fills nothing.
void FillZgTable(EstimateRun& run, const std::string& cEstimate);

// Closes the balance of its lines, and sums them up by document line.
void FinishZgTable(const EstimateRun& run);

void DropZgTables(const EstimateRun& run);

}  // namespace kavelin
