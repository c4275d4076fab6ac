// The statements that make the report's table from the sums.
#pragma once

#include "summary/EstimateFilter.h"

#include <string>

namespace kavelin {

std::string DropEstimateResult(const std::string& table);

// A line of `sumTable`, with the texts of its ledger line; voucher types in `language`.
std::string SelectEstimateResult(const std::string& table, const std::string& sumTable,
                                 const EstimateConditions& conditions, const std::string& language);

// Lines without opening, receipts and issue, whatever their closing.
std::string DeleteUnmoved(const std::string& table);

// Business types in `language`. One without a text there keeps its own.
std::string UpdateBusTypeNames(const std::string& table, const std::string& language);

}  // namespace kavelin
