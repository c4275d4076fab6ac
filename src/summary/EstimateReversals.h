// The statements by which a reversal of the month stays in the closing as far as nothing was booked in its
// place.
//
// What is taken out (type 24) comes back (type 30) as what was settled and what is still open. A quantity
// that is missing is an estimate that the ledger doesn't show any more, but that is open all the same.
#pragma once

#include "summary/EstimateRun.h"

#include <string>

namespace kavelin {

// The work tables of these statements.
struct ReversalTables {
    std::string strBroughtBack;     // by document line
    std::string strNotBroughtBack;  // by ledger line
};

std::string SelectBroughtBack(const EstimateRun& run, const ReversalTables& tables);

// Fails for a reversal without a quantity that holds a difference.
std::string SelectNotBroughtBack(const EstimateRun& run, const ReversalTables& tables);

std::string InsertNotBroughtBack(const EstimateRun& run, const ReversalTables& tables);

}  // namespace kavelin
