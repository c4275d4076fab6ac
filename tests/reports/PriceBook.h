// The books behind a price analysis, ledger lines and monthly summary row by row.
#pragma once

#include "reports/AccountReport.h"

#include <array>
#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kavelin::test {

using Micro = std::int64_t;  // a price in millionths
using PriceOrNull = std::optional<Micro>;

Micro MicroOf(double price);

// What a row lies in. Free items stand one behind the other; a warehouse or department that is null is empty.
struct Place {
    std::string item, warehouse, department, batch, freeItems;

    auto operator<=>(const Place&) const = default;
};

std::string TextOf(const Place& place);

// The columns of a place in a table that names them as ledger and summary do.
std::string PlaceColumns();

struct Totals {
    double inQuantity = 0, inAmount = 0, outQuantity = 0, outAmount = 0;
    double quantity = 0, amount = 0;  // at the end of the month
};

using Year = std::array<Totals, 13>;  // the opening and twelve months

struct BookLine {
    int number = 0;
    int month = 0;
    std::string vouType, busType;
    Place place;
    Totals moved;
    std::optional<double> inCost, outCost;
};

struct SummaryLine {
    int month = 0;
    bool direct = false;
    bool period = false;  // the total of a quarter, without balances
    Totals totals;
};

class PriceBook {
  public:
    // Reads the ledger, the summary and the master data of 2008 through a report's connection.
    explicit PriceBook(AccountReport& report);

    const std::vector<BookLine>& Lines() const { return arrLines; }
    const std::map<Place, std::vector<SummaryLine>>& Summary() const { return dicSummary; }

    // The months as the lines make them up, by the place that the summary has for them.
    const std::map<Place, Year>& Years() const { return dicYears; }

    // Whether a line counts in the summary: no estimate of the opening, no direct business.
    static bool Counts(const BookLine& line);

    Micro ReferenceCost(const std::string& item) const;

    bool ByDepartment() const { return blnByDepartment; }

    // The place of a row as the report's tables of keys have it: without what no stock is valued by here. The
    // warehouse stays beside the department, and the batch stays.
    Place KeyOf(const Place& place) const;

    // Whether item and warehouse ask for a value of each batch. By department a place without a warehouse
    // doesn't, since nothing tells its method.
    bool BatchCounts(const Place& place) const;

    // Whether the report joins the row in `source` to the one in `place`: the warehouse of the latter tells
    // whether batches have to be equal, and null is equal to nothing.
    bool Meets(const Place& place, const Place& source) const;

  private:
    struct Item {
        std::string method;
        bool keepsBatches = false;
        Micro referenceCost = 0;
    };

    void ReadLines(AccountReport& report);
    void ReadSummary(AccountReport& report);
    void CloseMonths();
    Place SummaryPlaceOf(const Place& place) const;

    bool blnByDepartment = false, blnByInventory = false;
    std::map<std::string, Item> dicItems;
    std::map<std::string, std::string> dicWarehouseMethods;
    std::vector<BookLine> arrLines;
    std::map<Place, std::vector<SummaryLine>> dicSummary;
    std::map<Place, Year> dicYears;
};

}  // namespace kavelin::test
