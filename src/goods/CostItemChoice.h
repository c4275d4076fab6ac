// Which cost columns a result shows: what the filter asks for, of what the account keeps.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "goods/CostItemColumns.h"

#include <string>
#include <vector>

namespace kavelin {

// The filter's `CostItem`: 0, all items, for an empty value.
std::string ReadCostItem(FilterItem& item);

// Asks gcnnAccount whether the account keeps differences. Throws ConversionError for a text that is no number.
std::vector<CostColumn> ChooseCostColumns(const std::string& strCostItem);

}  // namespace kavelin
