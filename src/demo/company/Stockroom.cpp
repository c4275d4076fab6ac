#include "demo/company/Stockroom.h"

#include "frame/Decimal.h"

#include <algorithm>
#include <stdexcept>

namespace kavelin::demo {

namespace {

struct Batch {
    std::string_view code;
    int firstMonth;
};

constexpr Batch kBatches[] = {{"P0712", 0}, {"P0803", 3}, {"P0806", 6}, {"P0809", 9}};

// Every so many items lie idle.
constexpr std::size_t kIdleEvery = 13;

constexpr int kTries = 24;

}  // namespace

std::int64_t Share(std::int64_t whole, std::int64_t part, std::int64_t total)
{
    Int128 product = static_cast<Int128>(whole) * part;
    Int128 divisor = total;
    if (divisor < 0) {
        product = -product;
        divisor = -divisor;
    }
    const Int128 half = divisor / 2;
    return static_cast<std::int64_t>((product < 0 ? product - half : product + half) / divisor);
}

std::int64_t AmountOf(std::int64_t quantity, std::int64_t price)
{
    return Share(quantity, price, 100);
}

Stockroom::Stockroom(const Company& company) : objCompany(company)
{
    std::size_t number = 0;
    for (const Item& item : company.items) {
        arrFirstOfItem.push_back(arrPlaces.size());
        const int weight = ++number % kIdleEvery == 0 ? 0 : item.weight;
        for (const std::string_view code : item.warehouses) {
            // Beside the warehouse where it belongs the others hold little of an item.
            const bool home = code == item.warehouse;
            AddPlaces(item, FindWarehouse(company, code), home ? item.lot : item.lot / 3,
                      home ? weight : (weight + 2) / 3);
        }
    }
    arrFirstOfItem.push_back(arrPlaces.size());
    arrOnHand.resize(arrPlaces.size());

    for (const Place& place : arrPlaces)
        if (place.weight > 0) {
            AddToGroup({}, place);
            AddToGroup(place.warehouse->code, place);
        }
}

void Stockroom::AddPlaces(const Item& item, const Warehouse& warehouse, std::int64_t lot, int weight)
{
    Place place;
    place.item = &item;
    place.warehouse = &warehouse;
    place.lot = std::max(lot - lot % item.step, 10 * item.step);
    place.weight = weight;
    const auto add = [&] {
        place.index = static_cast<std::int32_t>(arrPlaces.size());
        arrPlaces.push_back(place);
    };

    switch (item.kept) {
        case Kept::Nothing: add(); break;
        case Kept::Colours:
            for (const std::string_view colour : Colours()) {
                place.colour = colour;
                add();
            }
            break;
        case Kept::Batches:
            for (const Batch& batch : kBatches) {
                place.batch = batch.code;
                place.firstMonth = batch.firstMonth;
                add();
            }
            break;
    }
}

void Stockroom::AddToGroup(std::string_view warehouse, const Place& place)
{
    const Supply supply = place.item->supply;
    auto group = std::ranges::find_if(
        arrGroups, [&](const Group& each) { return each.warehouse == warehouse && each.supply == supply; });
    if (group == arrGroups.end())
        group = arrGroups.insert(arrGroups.end(), Group{warehouse, supply, {}, {}});
    group->places.push_back(place.index);
    group->sums.push_back((group->sums.empty() ? 0 : group->sums.back()) + place.weight);
}

void Stockroom::Put(const Place& place, std::int64_t quantity)
{
    arrOnHand[static_cast<std::size_t>(place.index)] += quantity;
}

void Stockroom::Take(const Place& place, std::int64_t quantity)
{
    std::int64_t& onHand = arrOnHand[static_cast<std::size_t>(place.index)];
    if (quantity > onHand)
        throw std::logic_error("More of " + place.item->code + " is taken than lies in " +
                               std::string(place.warehouse->code) + ".");
    onHand -= quantity;
}

const Place* Stockroom::Pick(Random& random, std::string_view warehouse, Supply supply, int month,
                             bool stocked) const
{
    const auto group = std::ranges::find_if(
        arrGroups, [&](const Group& each) { return each.warehouse == warehouse && each.supply == supply; });
    if (group == arrGroups.end())
        return nullptr;
    for (int i = 0; i < kTries; ++i) {
        const auto at = std::ranges::upper_bound(group->sums, random.Between(0, group->sums.back() - 1));
        const Place& place = arrPlaces[static_cast<std::size_t>(
            group->places[static_cast<std::size_t>(at - group->sums.begin())])];
        if (place.firstMonth <= month && (!stocked || OnHand(place) >= place.item->step))
            return &place;
    }
    return nullptr;
}

const Place* Stockroom::Sibling(const Place& place, std::string_view warehouse) const
{
    const auto item = static_cast<std::size_t>(place.item - objCompany.items.data());
    for (std::size_t i = arrFirstOfItem[item]; i < arrFirstOfItem[item + 1]; ++i) {
        const Place& other = arrPlaces[i];
        if (other.warehouse->code == warehouse && other.colour == place.colour && other.batch == place.batch)
            return &other;
    }
    return nullptr;
}

std::int64_t Stockroom::SomeOf(Random& random, const Place& place) const
{
    const std::int64_t step = place.item->step;
    const std::int64_t wanted = place.lot * random.Between(20, 100) / 100;
    const std::int64_t some = std::min(std::max(wanted, step), OnHand(place));
    return std::max<std::int64_t>(some - some % step, 0);
}

}  // namespace kavelin::demo
