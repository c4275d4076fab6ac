#include "goods/CostItemChoice.h"

#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Value.h"

namespace kavelin {

namespace {

// How cost accounting spreads differences; by any other method reports don't show them.
constexpr std::string_view kShowsDifferences = "1";

}  // namespace

std::string ReadCostItem(FilterItem& item)
{
    const std::string value = FilterText(item.varValue());
    return value.empty() ? "0" : value;
}

std::vector<CostColumn> ChooseCostColumns(const std::string& strCostItem)
{
    const std::string method = ToText(GetAccInfoValue("CA", "iCyFtMethod"));
    return ChosenCostColumns(strCostItem, method == kShowsDifferences);
}

}  // namespace kavelin
