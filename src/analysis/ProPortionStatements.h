// The statements of the capital share, in the order in which they run.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

constexpr std::string_view kLedgerRows = "ia_ProPortionRpt_temp1";  // a row for each ledger line
constexpr std::string_view kItemSums = "ia_ProPortionRpt_temp2";    // a row for each item
constexpr std::string_view kRankedItems = "ia_ProPortionRpt_temp";  // the same, numbered by falling share

std::string DropIfExists(std::string_view table);

// Ledger lines of the year with their signed amount. Opening estimates (33) and direct shipments are left
// out; a line without a business type stays.
std::string SelectLedgerRows(const std::string& year, const std::string& range,
                             const std::string& permission);

std::string SelectGrandTotal();

// Amount and share of each item; every share is 0 where the total is 0.
std::string SelectItemSums();

std::string SelectRankedItems();
std::string SelectRankedAmounts();
std::string UpdateLargestShare();
std::string SelectResult(const std::string& table, const std::string& rank);

}  // namespace kavelin
