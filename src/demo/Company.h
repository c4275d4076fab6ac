// The demo company's master data: what it stores, where, and with whom it deals.
#pragma once

#include "demo/RowSink.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

enum class Supply { Bought, Made };

// What an item keeps beside its quantity.
enum class Kept { Nothing, Colours, Batches };

struct Item {
    std::string code;
    std::string name;
    std::string_view model;
    std::string_view itemClass;
    std::string_view unit;
    std::int64_t price;  // of one unit in cents; the planned price where the warehouse uses one
    std::int64_t lot;    // a usual receipt, in hundredths of the unit
    std::int64_t step;   // quantities are multiples of it, in hundredths of the unit
    int weight;          // how often it moves beside others
    Supply supply = Supply::Bought;
    Kept kept = Kept::Nothing;
    std::string_view warehouse;  // where it belongs
};

struct Warehouse {
    std::string_view code, name, department, valuation;
    bool inCost;
};

struct Party {
    std::string_view code, name, shortName, partyClass;
};

struct Company {
    std::vector<Item> items;
};

// A company with about as many items as suit a ledger of that size: some 50 for thousands of lines, some
// 1,000 for a million.
Company MakeCompany(std::int64_t lines);

std::string_view ValuationOf(std::string_view warehouse);

inline constexpr std::string_view kPlannedPrice = "计划价法";
inline constexpr std::string_view kMovingAverage = "移动平均法";

std::span<const Warehouse> Warehouses();
std::span<const Party> Vendors();
std::span<const Party> Customers();
std::span<const std::string_view> Colours();

// All tables of the master data, and the months of the accounting years.
void WriteMasterData(const Company& company, RowSink& sink);

}  // namespace kavelin::demo
