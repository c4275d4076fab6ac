// What goods cost by the standard, and how far they are from it: rows beside those of the two ledgers.
// Together they are what the ledger row says, to the cent.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/AccountingVouchers.h"
#include "demo/books/Document.h"
#include "demo/profiles/Profile.h"
#include "frame/Value.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kavelin::demo {

// By cost item, in cents.
struct CostSplit {
    std::array<std::int64_t, 5> standard{};  // material, labour, fixed and variable manufacturing, outsourced
    std::array<std::int64_t, 13> difference{};  // in the order of the columns

    CostSplit& operator-=(const CostSplit& other);
};

// So much of the item, which costs `amount`. What is bought has material alone. A difference of amounts at
// the same goods is a difference of the splits: they may be added and taken off.
CostSplit SplitCost(const Item& item, std::int64_t quantity, std::int64_t amount);

class StandardCosts {
  public:
    // Opens the tables if the profile has standard costs; without them nothing is ever written.
    StandardCosts(const Profile& profile, AccountingVouchers& vouchers, RowSink& sink);

    bool Has() const { return blnHas; }

    // A row of the inventory ledger with a quantity, of goods that aren't at planned prices. One in twelve of
    // them is left without.
    void AddStock(std::int32_t autoId, const Document& document, std::string_view voucherType,
                  const Item& item, std::int64_t quantity, std::int64_t amount);

    // A row of the goods in transit, by what its source line had there before and has after it. One source
    // line in twelve is left without.
    void AddTransit(std::int32_t autoId, const Document& document, std::string_view voucherType,
                    std::int32_t sourceLine, const CostSplit& split);

  private:
    void Write(RowTable& standards, RowTable& differences, std::int32_t autoId, const Document& document,
               std::string_view voucherType, const CostSplit& split);

    bool blnHas;
    AccountingVouchers& objVouchers;
    RowTable* objStockStandards = nullptr;
    RowTable* objStockDifferences = nullptr;
    RowTable* objTransitStandards = nullptr;
    RowTable* objTransitDifferences = nullptr;
    std::array<Value, 6> arrStandard;
    std::array<Value, 15> arrDifference;
};

}  // namespace kavelin::demo
