// The columns that the standard-cost journal copies.
#pragma once

#include <string>

namespace kavelin {

// "select  dvoudate, ..." with a line end after each group of columns.
std::string SelectCostColumns();

}  // namespace kavelin
