// Filter of the detail ledger by cost item: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

struct DetailConditions {
    std::string strOpenWhere;  // on the lines of the opening; empty if the filter left nothing to the service
    std::string strMoveWhere;  // on the lines of the months; empty likewise
    std::string strResultMonths = " and 1=1 ";  // on the rows `a` of the result, to stand behind a condition
    std::string strYear;
    std::string strCostItem = "0";  // 0 all, 1 to 6 one item
};

// Without months the item of the months becomes those of a whole year. If an inventory is chosen, asks
// gcnnAccount for its free items.
DetailConditions ReadDetailFilter(ReportFilterObject& objFilter);

// The first combination of free items that the ledger has for an inventory in that year, one field a free item
// behind the inventory; an item that isn't kept for it is empty.
std::string SelectFreeItems(const std::string& inventory, const std::string& year);

}  // namespace kavelin
