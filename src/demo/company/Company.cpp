#include "demo/company/Company.h"

#include "demo/company/ItemFamilies.h"

#include <algorithm>
#include <stdexcept>

namespace kavelin::demo {

namespace {

constexpr Warehouse kIndustrial[] = {
    {"01", "原材料库", "0401", kMonthlyAverage, true}, {"02", "产成品库", "0402", kMovingAverage, true},
    {"03", "辅料库", "0403", kPlannedPrice, true},     {"04", "代保管库", "0401", kMonthlyAverage, false},
    {"05", "门市部", "0301", kFirstIn, true},          {"06", "备件库", "0402", kMovingAverage, true},
};

constexpr Warehouse kCommercial[] = {
    {"01", "商品一库", "0401", kMonthlyAverage, true}, {"02", "商品二库", "0402", kMovingAverage, true},
    {"03", "辅料库", "0403", kPlannedPrice, true},     {"04", "代保管库", "0401", kMonthlyAverage, false},
    {"05", "门市部", "0301", kFirstIn, true},          {"06", "卖场", "0302", kRetailPrice, true},
};

// The method of an item, by its class; the first that fits.
struct ClassValuation {
    std::string_view itemClass, industrial, commercial;
};

constexpr ClassValuation kValuations[] = {
    {"0102", kMovingAverage, kMovingAverage},
    {"0103", kFirstIn, kFirstIn},
    {"0201", kPlannedPrice, kPlannedPrice},
    {"0202", kMovingAverage, kMovingAverage},
    {"0203", kFirstIn, kFirstIn},
    {"03", kPlannedPrice, kPlannedPrice},
    {"0402", kMovingAverage, kRetailPrice},
    {"", kMonthlyAverage, kMonthlyAverage},
};

constexpr std::string_view kColours[] = {"蓝", "灰", "红"};

std::string_view ValuationOfClass(std::string_view itemClass, Edition edition)
{
    const auto found = std::ranges::find_if(
        kValuations, [&](const ClassValuation& row) { return itemClass.starts_with(row.itemClass); });
    return edition == Edition::Industrial ? found->industrial : found->commercial;
}

std::string_view WarehouseOf(std::string_view itemClass)
{
    if (itemClass.starts_with("03"))
        return "03";
    return itemClass.starts_with("04") ? "02" : "01";
}

// `number` counts the items from 1.
std::vector<std::string_view> WarehousesOf(std::string_view itemClass, std::int64_t number, Edition edition)
{
    if (itemClass.starts_with("03"))
        return {"03"};
    const bool industrial = edition == Edition::Industrial;
    if (itemClass.starts_with("04"))
        return industrial ? std::vector<std::string_view>{"02", "05"}
                          : std::vector<std::string_view>{"02", "05", "06"};

    std::vector<std::string_view> warehouses = {"01"};
    const bool sparePart = itemClass.starts_with("0202");
    if (sparePart)
        warehouses.push_back("02");
    if (number % 4 == 0)
        warehouses.push_back("04");
    if (sparePart)
        warehouses.push_back(industrial ? "06" : "05");
    return warehouses;
}

std::string ThreeDigits(std::int64_t number)
{
    std::string digits = std::to_string(number);
    return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

// The first of a family is as the table says; each further one is another model of it, dearer and rarer.
Item MakeItem(const ItemFamily& family, std::int64_t variant, std::int64_t number, Edition edition)
{
    const bool counted = family.unit == "PCS" || family.unit == "SET" || family.unit == "PAIR";

    Item item;
    item.code = std::string(family.code) + "-" + ThreeDigits(variant + 1);
    item.name = std::string(family.name);
    if (variant > 0)
        item.name += " " + std::to_string(variant + 1) + "型";
    item.id = std::to_string(1000 + number);
    item.model = family.model;
    item.itemClass = family.itemClass;
    item.unit = family.unit;
    item.valuation = ValuationOfClass(family.itemClass, edition);
    item.price = family.price + family.price * (variant % 7) / 10;
    item.step = counted ? 100 : 10;
    item.lot = std::max<std::int64_t>(family.lot * 100 * 3 / (3 + variant), 10 * item.step);
    item.lot -= item.lot % item.step;
    item.weight = static_cast<int>(std::max<std::int64_t>(family.weight * 12 / (12 + variant), 1));
    item.supply =
        family.itemClass.starts_with("04") && edition == Edition::Industrial ? Supply::Made : Supply::Bought;
    item.kept = family.kept;
    item.warehouse = WarehouseOf(family.itemClass);
    item.warehouses = WarehousesOf(family.itemClass, number, edition);
    return item;
}

}  // namespace

std::span<const std::string_view> Colours()
{
    return kColours;
}

std::string_view ValuationOf(const Profile& profile, const Warehouse& warehouse, const Item& item)
{
    return profile.valueStyle == ValueStyle::ByInventory ? item.valuation : warehouse.valuation;
}

const Warehouse& FindWarehouse(const Company& company, std::string_view code)
{
    const auto found = std::ranges::find(company.warehouses, code, &Warehouse::code);
    if (found == company.warehouses.end())
        throw std::logic_error("There is no warehouse " + std::string(code) + ".");
    return *found;
}

Company MakeCompany(std::int64_t lines, const Profile& profile)
{
    const std::span<const ItemFamily> families = ItemFamilies();
    const auto familyCount = static_cast<std::int64_t>(families.size());
    const std::int64_t itemCount = familyCount + std::max<std::int64_t>(lines - 6000, 0) / 1050;

    Company company;
    company.warehouses = profile.edition == Edition::Industrial ? std::span<const Warehouse>(kIndustrial)
                                                                : std::span<const Warehouse>(kCommercial);
    for (std::int64_t i = 0; i < itemCount; ++i)
        company.items.push_back(MakeItem(families[static_cast<std::size_t>(i % familyCount)], i / familyCount,
                                         i + 1, profile.edition));
    return company;
}

}  // namespace kavelin::demo
