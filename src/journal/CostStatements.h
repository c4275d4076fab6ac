// The statements of the standard-cost journal, in the order in which they run.
#pragma once

#include <string>

namespace kavelin {

// Rows of the view that meet `where`. `vouTypes` is a condition or empty, `busTypes` ends the statement as it
// is.
std::string SelectCostRows(const std::string& table, const std::string& where, const std::string& vouTypes,
                           const std::string& busTypes);

// Words and numbers of the accounting vouchers, and of those of the cost differences.
std::string UpdateCostVoucher(const std::string& table);
std::string UpdateCostDifVoucher(const std::string& table);

}  // namespace kavelin
