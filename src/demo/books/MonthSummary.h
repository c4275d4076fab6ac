// The monthly summary, IA_Summary.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/CostKeys.h"

#include <array>
#include <cstdint>
#include <vector>

namespace kavelin::demo {

class MonthSummary {
  public:
    // `keys` outlive the summary.
    explicit MonthSummary(const CostKeys& keys);

    // A row of the ledger in the month, 0 for an opening. `difference` is the part of its cost that is one.
    void Add(std::int32_t key, int month, bool receipt, std::int64_t quantity, std::int64_t amount,
             std::int64_t difference);

    // Thirteen rows a key, the opening and each month, moved or not; of direct business, those items alone
    // that had some. Of some keys also a total of each quarter, marked as the row of a period, without
    // balances.
    void Write(RowSink& sink) const;

  private:
    struct Totals {
        std::int64_t inQuantity = 0, inAmount = 0, outQuantity = 0, outAmount = 0;
        std::int64_t difference = 0;  // received less issued
    };

    const CostKeys& objKeys;
    std::vector<std::array<Totals, 13>> arrMonths;  // by key
    std::vector<bool> arrMoved;                     // by key
};

}  // namespace kavelin::demo
