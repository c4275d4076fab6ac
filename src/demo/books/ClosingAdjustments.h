// What a month leaves behind by its valuation, such as an amount without goods, is taken off on its last day.
#pragma once

#include "demo/books/CostKeys.h"
#include "demo/books/Documents.h"
#include "demo/books/StockLedger.h"

#include <chrono>
#include <cstdint>

namespace kavelin::demo {

// Issue adjustments, documents of up to eight lines of a warehouse, for all keys whose goods are worth what
// they shouldn't be; at most `rows` of them. The rows of the month are costed.
void PostClosingAdjustments(const CostKeys& keys, Documents& documents, StockLedger& ledger,
                            std::chrono::sys_days day, std::int64_t rows);

}  // namespace kavelin::demo
