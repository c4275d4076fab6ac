// The statements of the checks that compare the inventory ledger with the monthly summary.
//
// A costing key is the item with its warehouse or department, the free items that it keeps, and its batch
// where the valuation needs it. Sums of quantities are compared at four decimal places, since they are floats;
// amounts as they are.
#pragma once

#include "demo/check/CheckFacts.h"

#include <string>

namespace kavelin::demo {

// The work tables: #CheckLedger and #CheckSummary, by costing key and month.
std::string GatherLedger(const CheckFacts& facts);
std::string GatherSummary(const CheckFacts& facts);
std::string CountCostingKeys(const CheckFacts& facts);

// Months whose end is not the end of the month before with what came and went.
std::string BrokenBalances(const CheckFacts& facts);

// Months in which ledger and summary differ, openings and differences among it.
std::string SummaryDifferences(const CheckFacts& facts);

// Months with movements but no summary row, and such with several.
std::string SummaryRowsMissingOrDouble(const CheckFacts& facts);

// Costing keys whose months have gaps or end before the others.
std::string MonthsLeftOut(const CheckFacts& facts);

// Direct business: months in which the ledger and the rows of the summary that are marked for it differ.
std::string DirectDifferences();
std::string CountDirectMonths();

}  // namespace kavelin::demo
