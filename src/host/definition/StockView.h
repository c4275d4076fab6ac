// What the host's definition of the stock summary makes of its pool, which holds a row for each line of the
// ledger and for each unposted document line: rows by the dimensions that the reader asks for, with a balance
// at the end, and totals.
#pragma once

#include "host/definition/ReportDefinition.h"

#include <string_view>

namespace kavelin::host {

// `groups` are dimensions of StockDimensions.h. The conditions on balances and movements, the second unit and
// the view by classes of receipts and issues are those of the filter. Throws UsageError.
std::unique_ptr<ReportView> MakeStockView(const FilterInput& input, std::string_view groups);

extern const ReportDefinition kStockDefinition;

}  // namespace kavelin::host
