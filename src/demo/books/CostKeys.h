// Which goods are valued together: those of one costing key.
#pragma once

#include "demo/company/Stockroom.h"
#include "demo/profiles/Profile.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace kavelin::demo {

// A costing key, as the monthly summary shows it. Parts that don't belong to the key are empty.
struct CostKey {
    const Item* item = nullptr;
    std::string_view warehouse;
    std::string_view department;
    std::string_view colour;
    std::string_view batch;  // no part of it at planned prices, even where the item keeps batches
    std::string_view method;
    const Place* place = nullptr;  // the first of its places; null for direct business
    bool inCost = true;            // one of its places takes part in costing
};

class CostKeys {
  public:
    // Keys of all places, ordered by their first warehouse, and of direct business, one for each item, behind
    // them. The arguments outlive the keys.
    CostKeys(const Profile& profile, const Company& company, const Stockroom& stock);

    const std::vector<CostKey>& All() const { return arrKeys; }
    std::int32_t Of(const Place& place) const { return arrOfPlace[static_cast<std::size_t>(place.index)]; }
    std::int32_t OfDirect(const Item& item) const;
    bool IsDirect(std::int32_t key) const { return key >= lngFirstDirect; }

  private:
    const Company& objCompany;
    std::vector<CostKey> arrKeys;
    std::vector<std::int32_t> arrOfPlace;
    std::int32_t lngFirstDirect = 0;
};

}  // namespace kavelin::demo
