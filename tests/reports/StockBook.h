// What an account's ledger and its unposted documents say of stock, added up line by line and without the
// views that the stock summary reads, for comparison with it.
#pragma once

#include "reports/AccountReport.h"

#include <compare>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kavelin::test {

// Quantity in ten thousandths, money in cents.
struct Stock {
    std::int64_t quantity = 0, money = 0, difference = 0;

    void Add(const Stock& more, int sign = 1);
    bool operator==(const Stock&) const = default;
};

struct StockMove {
    Stock opening, in, out;

    Stock Closing() const;
    bool IsNothing() const { return *this == StockMove(); }
    bool operator==(const StockMove&) const = default;
};

struct StockPlace {
    std::string item, warehouse;
    auto operator<=>(const StockPlace&) const = default;
};

using StockMoves = std::map<StockPlace, StockMove>;  // without those that are nothing

// Days as "2008-03-31"; empty for no end.
struct Days {
    std::string from, to;
};

struct LedgerRow {
    StockPlace place;
    int month = 0;
    std::string day, type, business;
    bool receipt = false;
    Stock amount;
};

// Of a document that is not posted and that will be posted into the ledger, going by which documents of its kind
// the account has posted there.
struct DocumentRow {
    std::string id, kind, type, business, day;
    StockPlace place;
    bool receipt = false;
    Stock amount;
    bool isDirect = false;
};

class StockBook {
  public:
    // Of the ledger and documents that meet `condition`, where it is not empty. In it `l` is a document's line,
    // `h` its head and `i` its item; a ledger row is line and head at once.
    explicit StockBook(AccountReport& report, const std::string& condition = "");

    const std::string& FirstDay() const { return strFirstDay; }
    const std::vector<LedgerRow>& Ledger() const { return lstLedger; }
    const std::vector<DocumentRow>& Documents() const { return lstDocuments; }

    // Of the ledger in that period, which begins on the books' first day at the earliest; of rows that are
    // counted.
    StockMoves Posted(const Days& days, const std::function<bool(const LedgerRow&)>& counts) const;

    // Of the documents up to the period's end that lie in it or before the books.
    std::vector<DocumentRow> Unposted(const Days& days,
                                      const std::function<bool(const DocumentRow&)>& counts) const;

  private:
    std::string strFirstDay;
    std::vector<LedgerRow> lstLedger;
    std::vector<DocumentRow> lstDocuments;
};

// Direct business goes from the vendor to the customer and is never in stock.
bool IsDirect(const std::string& business);

void AddDocuments(StockMoves& turnovers, const std::vector<DocumentRow>& documents);

// What the report's pool holds; with its documents only, or its ledger rows only, by `bacc`.
StockMoves PoolOf(AccountReport& report, const std::string& condition = "1=1");

std::int64_t TenThousandths(const std::string& text);

}  // namespace kavelin::test
