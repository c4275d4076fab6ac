// Rows of a generated inventory ledger, as the tests of the events look at them.
#pragma once

#include "demo/MemorySink.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::demo {

struct LedgerRow {
    std::string type, source, business, item, warehouse;
    std::int64_t line = 0;  // of its document
    int month = 0;
    int flag = 0;
    bool receipt = true;
    std::int64_t quantity = 0;
    std::int64_t cost = 0;  // the amount and what is beside the planned price
    std::int64_t materialFee = 0;
    std::int64_t settlement = 0;  // 0: none
    DateTime documentDay, postingDay;
};

struct Settlement {
    std::int64_t quantity = 0, amount = 0, materialFee = 0;
};

struct PlayedYear {
    std::vector<LedgerRow> rows;  // in the order of their posting
    std::map<std::int64_t, Settlement> settlements;
};

// The ledger of a company with that profile. Each is made once.
const PlayedYear& YearOf(std::string_view profile, std::int64_t lines = 6000);

// A receipt line with the voucher type of its document.
using ReceiptLine = std::pair<std::int64_t, std::string>;

// Quantity and estimated money; of subcontracted work the part that is not material.
struct Estimated {
    std::int64_t quantity = 0, money = 0;

    Estimated operator+(const Estimated& other) const;
    Estimated operator-(const Estimated& other) const;
    bool operator==(const Estimated&) const = default;
};

Estimated EstimateOf(const LedgerRow& row);

}  // namespace kavelin::demo
