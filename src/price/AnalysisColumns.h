// The columns of the price analysis, and where each comes from.
#pragma once

#include <string>

namespace kavelin {

// The columns of the result table with their types, in order. `strRatioScale` is the number of decimal places
// of the two ratios.
std::string ResultColumnTypes(const std::string& strRatioScale);

// What a fill of the work table writes, and the values of it: from a ledger line, from a summary row. Each
// list in the order of the other.
std::string LineColumns();
std::string LineValues();
std::string SummaryColumns();
std::string SummaryValues();

// What goes from the work table to the result.
std::string ShownColumns();

// ",cDefine1,cDefine2" and so on: the user fields and free items, which stand behind all other columns.
std::string ExtraColumns();

}  // namespace kavelin
