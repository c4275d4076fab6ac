// A posted row of the inventory ledger, as it waits for its cost.
#pragma once

#include "demo/books/Document.h"
#include "demo/books/Valuation.h"

#include <chrono>
#include <cstdint>
#include <string_view>

namespace kavelin::demo {

struct StockRow {
    std::string_view voucherType, sourceType, businessType;
    const Place* place = nullptr;  // null for direct business
    const Item* item = nullptr;
    std::chrono::sys_days day;  // of posting
    std::int32_t head = 0;      // place of its document among the heads of the month
    std::int32_t line = 0;
    std::int32_t settlement = 0;
    std::int32_t key = 0;      // of costing
    std::int32_t costOf = 0;   // row whose cost this one takes, or kNoRow
    CostPart part;             // ... and which part of it; its total is known when all are posted
    std::int64_t sharers = 0;  // the weight of those that take this row's cost
    std::int64_t quantity = 0;
    std::int64_t cost = 0;        // differences included
    std::int64_t difference = 0;  // the part of the cost that is one
    std::int64_t materialFee = 0;
    std::int64_t processFee = 0;
    std::int8_t flag = 0;
    bool receipt = true;
    bool known = false;  // the cost was given
    bool costed = false;
    bool planned = false;    // at planned prices
    bool balanced = true;    // it changes the balance of its goods
    bool postsLine = false;  // its document line gets its cost

    std::int64_t Amount() const { return cost - difference; }
};

}  // namespace kavelin::demo
