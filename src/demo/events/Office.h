// What the activities have in common: days, people, prices, and the shape of documents.
#pragma once

#include "demo/events/Activity.h"

#include <chrono>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace kavelin::demo {

inline constexpr std::string_view kPurchasingDepartment = "01";

// 1 to 12.
int MonthNumber(std::chrono::sys_days day);
std::chrono::sys_days FirstOfNextMonth(std::chrono::sys_days day);

// The day of a document that is posted on `posting`: mostly the same, else up to three days earlier, but in
// the same month and on a working day.
std::chrono::sys_days DocumentDay(Random& random, std::chrono::sys_days posting);

// The head of a document about goods at `place`, without an order. `department` is that of the business;
// where stock is valued by department it is the warehouse's instead.
Document HeadOf(Business& business, const DocumentType& type, std::chrono::sys_days posting,
                const Place& place, std::string_view department);

// A vendor who sells items of this class.
const Party* VendorOf(Random& random, std::string_view itemClass);
const Party* OneOfClass(Random& random, std::span<const Party> parties, std::string_view partyClass);

// Lines of a document, from one to six, mostly few.
int LineCount(Random& random);

// From `least` to `most` per cent of the place's usual lot: a multiple of the item's step, at least one.
std::int64_t PartOfLot(Random& random, const Place& place, int least, int most);

// What goods of the place are bought for: around the item's price, dearer towards the end of the year.
std::int64_t PurchaseCost(Random& random, const Place& place, std::int64_t quantity, int month);

// A quantity cut to a multiple of the item's step.
std::int64_t WholeSteps(const Item& item, std::int64_t quantity);

// Whether a document that issues goods is left lying, unposted, though it could be posted: now and then in
// the last month.
bool IsHeldBack(Random& random, std::chrono::sys_days day);

// Whether just so few rows are left that `rows` don't fit together. What needs several rows is then left
// undone, so that no issue is posted of goods whose receipt is not.
bool IsLedgerEnding(const Books& books, int rows);

// A place of the company's own goods, as Stockroom::Pick gives it; null if none was found.
const Place* PickOwn(Business& business, std::string_view warehouse, Supply supply, int month, bool stocked);

// Of a few such places the one that is emptiest beside its lot.
const Place* PickScarce(Business& business, std::string_view warehouse, Supply supply, int month);

// Whether so much lies there that nobody would get more.
bool IsPlenty(const Stockroom& stock, const Place& place);

// Further places for the lines of one document: not yet among `places`.
bool AddOther(std::vector<const Place*>& places, const Place* place);

// The ledger row that posts a document line, without quantity and cost.
StockEntry RowOf(const Document& document, std::int32_t line, const Place& place,
                 std::chrono::sys_days posting);

// Adds a line of a receipt or, with a negative quantity, of one sent back, moves the goods and posts the line
// while rows are left. Gives the line. `flag` as in StockEntry.
std::int32_t Receive(Business& business, const Document& document, const LineEntry& entry,
                     std::chrono::sys_days posting, int flag = 0);

// The same of an issue, whose cost the ledger tells. Not posted if `posted` is false.
std::int32_t Issue(Business& business, const Document& document, const Place& place, std::int64_t quantity,
                   std::chrono::sys_days posting, bool posted = true);

// Whose turn it is among kinds of events: first each in its order, twice, then at random by weight. It is
// never the turn of a kind without weight; at least one has some.
class Rota {
  public:
    explicit Rota(const std::vector<int>& weights);

    // Kinds are anything with a `weight`.
    template <class Kinds>
    explicit Rota(const Kinds& kinds)
    {
        for (const auto& kind : kinds)
            Add(kind.weight);
    }

    std::size_t Next(Random& random);

  private:
    void Add(int weight);

    std::vector<int> arrSums;
    std::size_t intTurns = 0;
};

}  // namespace kavelin::demo
