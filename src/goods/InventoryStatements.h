// The statements of the summary by cost item, in the order in which they run. `table` is the work table as
// statements name it; a condition may be empty.
#pragma once

#include "goods/CostItemColumns.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kavelin {

// The work table, empty. What is per unit has its columns there and stays null.
std::string CreateInventoryTable(const std::string& table);

// What each source line brings into the period: a row with the Q columns.
std::string InsertInventoryOpening(const std::string& table, std::int32_t lngUnitNumber,
                                   const std::string& where);

// What it received and dispatched in it: a row with the R and D columns. Quantities count whatever direction
// a line has, costs look at the direction.
std::string InsertInventoryMovement(const std::string& table, std::int32_t lngUnitNumber,
                                    const std::string& where);

// The end balance of each row. It is that of the whole only when the rows of a source line are summed.
std::string UpdateInventoryEnd(const std::string& table);
std::string UpdateInventoryTotals(const std::string& table);

// One row a source line, in a table of the connection.
std::string SelectInventorySums(const std::string& table);

// The result: the attributes of the source line in that year, and the columns that the filter chose.
std::string SelectInventoryResult(const std::string& result, const std::string& year,
                                  const std::vector<CostColumn>& chosen);

}  // namespace kavelin
