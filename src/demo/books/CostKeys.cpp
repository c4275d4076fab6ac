#include "demo/books/CostKeys.h"

#include "demo/books/Valuation.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace kavelin::demo {

namespace {

CostKey KeyOf(const Profile& profile, const Place& place)
{
    CostKey key;
    key.item = place.item;
    key.method = ValuationOf(profile, *place.warehouse, *place.item);
    if (profile.valueStyle == ValueStyle::ByWarehouse)
        key.warehouse = place.warehouse->code;
    if (profile.valueStyle == ValueStyle::ByDepartment)
        key.department = place.warehouse->department;
    key.colour = place.colour;
    if (!IsPlanned(key.method))
        key.batch = place.batch;
    key.place = &place;
    key.inCost = place.warehouse->inCost;
    return key;
}

}  // namespace

CostKeys::CostKeys(const Profile& profile, const Company& company, const Stockroom& stock)
    : objCompany(company), arrOfPlace(stock.Places().size())
{
    std::vector<const Place*> places;
    for (const Place& place : stock.Places())
        places.push_back(&place);
    std::ranges::stable_sort(places, {}, [](const Place* place) { return place->warehouse->code; });

    using Parts =
        std::tuple<std::string_view, std::string_view, std::string_view, std::string_view, std::string_view>;
    std::map<Parts, std::int32_t> found;
    for (const Place* place : places) {
        const CostKey key = KeyOf(profile, *place);
        const auto [entry, isNew] =
            found.try_emplace({key.item->code, key.warehouse, key.department, key.colour, key.batch},
                              static_cast<std::int32_t>(arrKeys.size()));
        if (isNew)
            arrKeys.push_back(key);
        else if (key.inCost)
            arrKeys[static_cast<std::size_t>(entry->second)].inCost = true;
        arrOfPlace[static_cast<std::size_t>(place->index)] = entry->second;
    }

    lngFirstDirect = static_cast<std::int32_t>(arrKeys.size());
    for (const Item& item : company.items) {
        CostKey key;
        key.item = &item;
        key.method = kMovingAverage;
        arrKeys.push_back(key);
    }
}

std::int32_t CostKeys::OfDirect(const Item& item) const
{
    return lngFirstDirect + static_cast<std::int32_t>(&item - objCompany.items.data());
}

}  // namespace kavelin::demo
