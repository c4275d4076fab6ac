// The statement of the area table.
#pragma once

#include <string>

namespace kavelin {

// Receipts and issues of the rows of `dataTable` that `areaTable` names, both tables of tempdb. Unless both
// names are given, the account's own tables take their place. A row number that stands twice in the area
// counts once; rows of an unknown item are left out, rows of an unknown warehouse stay.
std::string SelectAreaRows(const std::string& table, const std::string& dataTable,
                           const std::string& areaTable);

}  // namespace kavelin
