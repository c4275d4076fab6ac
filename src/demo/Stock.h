// The stock of the demo company, place by place, and what receipts and issues do to it.
//
// All arithmetic is in whole numbers, so that it is the same everywhere: quantities in hundredths of the
// unit, amounts in cents.
#pragma once

#include "demo/Company.h"
#include "demo/RowSink.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

// The numbers of one ledger line. A line that gives goods back has a negative quantity and amount.
struct Movement {
    bool receipt = true;
    std::int64_t quantity = 0;
    std::int64_t amount = 0;
    std::int64_t debitDifference = 0;  // both 0 unless the place is kept at planned prices
    std::int64_t creditDifference = 0;
};

struct MonthTotals {
    std::int64_t inQuantity = 0;
    std::int64_t inAmount = 0;
    std::int64_t outQuantity = 0;
    std::int64_t outAmount = 0;
    std::int64_t difference = 0;  // debit less credit
};

// An item in a warehouse; one place a colour or a batch where the item keeps them.
struct Place {
    const Item* item = nullptr;
    std::string_view warehouse;
    std::string_view colour;  // empty unless kept
    std::string batch;        // empty unless kept
    int firstMonth = 0;       // nothing moves before
    std::int64_t lot = 0;
    int weight = 0;

    std::int64_t quantity = 0;
    std::int64_t amount = 0;
    std::int64_t difference = 0;
    std::array<MonthTotals, 13> months{};  // by month, 0 for the opening

    bool IsPlanned() const { return ValuationOf(warehouse) == kPlannedPrice; }
};

// The places of all items, empty. The batches of an item stand together, the oldest first. `company` must
// outlive them.
std::vector<Place> MakePlaces(const Company& company);

// The amount of a quantity at a price, both as above, rounded to the cent.
std::int64_t AmountOf(std::int64_t quantity, std::int64_t price);

// Takes goods in that cost `cost`. At planned prices the amount is the plan's and the rest a difference.
Movement Receive(Place& place, int month, std::int64_t quantity, std::int64_t cost);

// Issues at the moving average, or at planned prices with the part of the differences that belongs to the
// goods. `quantity` is at most the place's.
Movement Issue(Place& place, int month, std::int64_t quantity);

// Goods go back to their vendor: a receipt with negative numbers. `quantity` is at most the place's.
Movement SendBack(Place& place, int month, std::int64_t quantity);

// Goods come back from a customer: an issue with negative numbers. `quantity` is at most the place's.
Movement TakeBack(Place& place, int month, std::int64_t quantity);

// IA_Summary of the year: thirteen rows a place.
void WriteSummary(const std::vector<Place>& places, int year, RowSink& sink);

}  // namespace kavelin::demo
