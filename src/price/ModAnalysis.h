// The price analysis: the work table filled, reference prices found for each costing key, and the rows compared
// with the one that the user named.
#pragma once

#include "price/AnalysisFilter.h"

#include <string>

namespace kavelin {

// Makes the empty result table on gcnnAccount. Never fails.
void CreateAnalysisTable(const std::string& strTable);

// Fills it. A condition text that is no document leaves it empty. An error ends the run and goes to the caller;
// the work tables then stay in tempdb.
void BuildAnalysisData(const std::string& strTable, const AnalysisConditions& conditions);

}  // namespace kavelin
