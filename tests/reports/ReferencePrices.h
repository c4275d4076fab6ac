// The reference prices of a price analysis worked out from the books.
#pragma once

#include "reports/PriceBook.h"

#include <map>
#include <set>
#include <vector>

namespace kavelin::test {

enum class AverageOf { Receipts = 1, Issues = 2, Balances = 3 };

struct PricesAsked {
    AverageOf average;
    int firstMonth, lastMonth;  // of the average
    int balanceMonth;           // at whose end the balance stands, 0 for the opening
};

// What one update of the report writes to a row, from one and the same key.
struct RowPrices {
    Micro lastReceipt = 0, lastIssue = 0, average = 0;
};

// The report finds its prices once for each key that occurs in its rows, and an update that finds several
// rows takes one of them, any. By warehouse and by item there are several with equal figures at most. By
// department the joins ask for the department only, while keys hold their warehouse: each warehouse of it
// has its newest line, and the key of a summary row, without a warehouse, meets the keys of all batches
// and is met by each. So what is told here is the set of all figures that can come out.
class ReferencePrices {
  public:
    // `shown` are the places of all rows of the run, which its keys are made from. The book outlives this.
    ReferencePrices(const PriceBook& book, const std::vector<Place>& shown, const PricesAsked& asked);

    std::vector<RowPrices> Of(const Place& row) const;

    // Unit prices of the balance; null where no key has a quantity.
    std::set<PriceOrNull> BalancesOf(const Place& row) const;

  private:
    struct Newest {
        int number = 0;
        Micro cost = 0;
    };
    using NewestCosts = std::map<Place, Newest>;

    struct Key {
        PriceOrNull ownAverage, balance;
        std::set<Micro> receipts, issues, averages;  // what the updates can leave in it, null as 0
    };

    void TakeNewest();
    std::set<Micro> CostsOf(const NewestCosts& costs, const Place& key) const;
    PriceOrNull AverageIn(const Place& key) const;
    PriceOrNull BalanceIn(const Place& key) const;

    const PriceBook& objBook;
    PricesAsked objAsked;
    NewestCosts dicReceipts, dicIssues;
    std::map<Place, Key> dicKeys;
};

}  // namespace kavelin::test
