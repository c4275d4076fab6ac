// Where goods lie, and how many of them are really there.
//
// What lies on the shelf differs from what the ledger says: documents move goods when they are written, the
// ledger follows when they are posted. Quantities are in hundredths of the unit.
#pragma once

#include "demo/Random.h"
#include "demo/company/Company.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

// An item in a warehouse; one place a colour or a batch where the item keeps them.
struct Place {
    std::int32_t index = 0;
    const Item* item = nullptr;
    const Warehouse* warehouse = nullptr;
    std::string_view colour;  // empty unless kept
    std::string_view batch;   // empty unless kept
    int firstMonth = 0;       // nothing moves before
    std::int64_t lot = 0;     // a usual receipt
    int weight = 0;           // how often it moves beside others; 0: the goods lie idle
};

class Stockroom {
  public:
    // All places are empty. `company` must outlive the room.
    explicit Stockroom(const Company& company);

    // Ordered by item, then warehouse, then colour or batch; the oldest batch first.
    const std::vector<Place>& Places() const { return arrPlaces; }
    std::int64_t OnHand(const Place& place) const { return arrOnHand[static_cast<std::size_t>(place.index)]; }
    void Put(const Place& place, std::int64_t quantity);
    // Throws std::logic_error for more than there is.
    void Take(const Place& place, std::int64_t quantity);

    // A place of `warehouse` (empty: any) that moves in `month`, by weight; with `stocked`, one that holds at
    // least one step of its item. Null if none was found in a fair number of tries.
    const Place* Pick(Random& random, std::string_view warehouse, Supply supply, int month,
                      bool stocked) const;

    // The place of the same goods in another warehouse, null if there is none.
    const Place* Sibling(const Place& place, std::string_view warehouse) const;

    // From a fifth of a lot to a whole one, a multiple of the step, at most what is there; 0 if nothing is.
    std::int64_t SomeOf(Random& random, const Place& place) const;

  private:
    // Places that are picked from together, with the sums of their weights.
    struct Group {
        std::string_view warehouse;  // empty: those of all warehouses
        Supply supply;
        std::vector<std::int32_t> places;
        std::vector<std::int64_t> sums;
    };

    void AddPlaces(const Item& item, const Warehouse& warehouse, std::int64_t lot, int weight);
    void AddToGroup(std::string_view warehouse, const Place& place);

    const Company& objCompany;
    std::vector<Place> arrPlaces;
    std::vector<std::int64_t> arrOnHand;
    std::vector<std::size_t> arrFirstOfItem;  // by the item's number in the company; one more at the end
    std::vector<Group> arrGroups;
};

// The amount of a quantity at a price in cents, rounded half away from zero to the cent.
std::int64_t AmountOf(std::int64_t quantity, std::int64_t price);

// `whole` times `part` by `total`, rounded half away from zero. `total` is not 0.
std::int64_t Share(std::int64_t whole, std::int64_t part, std::int64_t total);

}  // namespace kavelin::demo
