// The statements of the ABC analysis, in the order in which they run.
#pragma once

#include "analysis/AbcOptions.h"

#include <string>

namespace kavelin {

// What one run puts into its statements.
struct AbcRun {
    std::string strInvTable;   // the month's items
    std::string strABCTable;   // a row an item, with its shares, grades and class
    std::string strQualifier;  // stands in front of the inventory table's name; may be empty
    std::string strPeriod;     // month, as digits
    std::string strWhere;      // begins with " And ", or is empty
};

// Sums of what lies above zero; null where nothing does.
std::string SelectTotalQuantity(const AbcRun& run);  // nums
std::string SelectTotalMoney(const AbcRun& run);     // nums, moneys

std::string SelectItems(const AbcRun& run);
std::string SelectAbcTable(const AbcRun& run);

// Share = value / total, 0 for a value that isn't above zero. A total that isn't above zero makes all shares
// 0.
std::string UpdateShares(const AbcRun& run, double quantity, double money);

// The largest share takes what rounding left over, so that the shares of the column add up to 1.
std::string UpdateLargestOf(const AbcRun& run, const std::string& shareColumn);

// By quantity the grades rise with the share from A to C, by money from C to A.
std::string UpdateGrades(const AbcRun& run, const AbcThresholds& thresholds);

// B outranks C, and C outranks A.
std::string UpdateClasses(const AbcRun& run);

std::string DropAbcResult(const std::string& table);

struct AbcClasses {
    bool a, b, c;
};
std::string SelectAbcResult(const AbcRun& run, const AbcClasses& shown, const std::string& table);

}  // namespace kavelin
