// What the events of a day post into the ledgers.
#pragma once

#include "demo/books/Document.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kavelin::demo {

inline constexpr int kLedgerYear = 2008;
inline constexpr std::int32_t kNoRow = -1;

// A row for the inventory ledger, IA_Subsidiary.
struct StockEntry {
    std::string_view voucherType;   // of the row: "01", "24", "30", "20", "33", "3201" ...
    std::string_view sourceType;    // cSrcVouType, empty for NULL
    std::string_view businessType;  // empty: the document's
    Document document;              // gives the attributes of the head; of a reversal the receipt's
    std::int32_t line = 0;          // ID; 0 is NULL
    const Place* place = nullptr;   // null for direct business
    const Item* item = nullptr;     // where there is no place
    std::chrono::sys_days day;      // of posting
    bool receipt = true;
    int flag = 0;  // bFlag: 1 an estimate, 2 the settlement of an earlier one

    std::optional<std::int64_t> quantity;  // nothing: an amount alone
    // What the goods cost. Of a receipt it is given (else the item's price counts); of an issue the valuation
    // tells it unless it is given. At planned prices the books part it into the plan's amount and a
    // difference.
    std::optional<std::int64_t> cost;
    // Instead: the cost of that row of this month, of a transfer's other side. Several that name one row
    // share its cost by what they are worth at their items' prices.
    std::int32_t costOf = kNoRow;
    std::int64_t materialFee = 0;
    std::int64_t processFee = 0;
    std::int32_t settlement = 0;  // psvsid; 0 is NULL
    bool revaluesOnly = false;    // memo row (33): changes no balance
};

// A row for the goods-in-transit ledger, IA_EnSubsidiary.
struct TransitEntry {
    std::string_view voucherType;  // "05", "06", "3201", "26" ... "29", "65", "66"
    std::string_view sourceType;   // voucher type and line that put the goods in transit
    std::int32_t sourceLine = 0;
    Document document;
    std::int32_t line = 0;          // inid; 0: the books give one
    std::int32_t dispatchLine = 0;  // iDLsID; 0 is NULL
    const Place* place = nullptr;
    std::chrono::sys_days day;
    bool in = true;
    std::optional<std::int64_t> quantity;
    // Of goods going in: `cost`, or the cost of the stock row `costOf` of this month. Of goods going out
    // nothing: their part of what the source line still has there, the whole rest for the last of it. Of an
    // amount alone `cost`, of which no more is taken out than there is.
    std::optional<std::int64_t> cost;
    std::int32_t costOf = kNoRow;
    bool broughtForward = false;  // month 0
};

}  // namespace kavelin::demo
