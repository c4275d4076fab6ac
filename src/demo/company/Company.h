// The demo company's master data: what it stores, where, and with whom it deals.
#pragma once

#include "demo/RowSink.h"
#include "demo/profiles/Profile.h"

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
    std::string id;  // in the permission lists
    std::string_view model;
    std::string_view itemClass;
    std::string_view unit;
    std::string_view valuation;  // of the item, which applies where stock is valued by inventory
    std::int64_t price;          // of one unit in cents; the planned price where there is one
    std::int64_t lot;            // a usual receipt, in hundredths of the unit
    std::int64_t step;           // quantities are multiples of it, in hundredths of the unit
    int weight;                  // how often it moves beside others
    Supply supply = Supply::Bought;
    Kept kept = Kept::Nothing;
    std::string_view warehouse;                // where it belongs
    std::vector<std::string_view> warehouses;  // all where it lies, ascending, `warehouse` among them
};

// All warehouses of a department value stock by the same method.
struct Warehouse {
    std::string_view code, name, department, valuation;
    bool inCost;
};

struct Party {
    std::string_view code, name, shortName, partyClass;
};

struct Person {
    std::string_view code, name, department;
};

struct Project {
    std::string_view projectClass, className, code, name;
};

struct Company {
    std::vector<Item> items;
    std::span<const Warehouse> warehouses;
};

// A company of that profile with about as many items as suit a ledger of that size: some 70 for thousands of
// lines, some 1,000 for a million. In a commercial company nothing is made.
Company MakeCompany(std::int64_t lines, const Profile& profile);

inline constexpr std::string_view kMonthlyAverage = "全月平均法";
inline constexpr std::string_view kMovingAverage = "移动平均法";
inline constexpr std::string_view kFirstIn = "先进先出法";
inline constexpr std::string_view kPlannedPrice = "计划价法";
inline constexpr std::string_view kRetailPrice =
    "售价法";  // of sellers only; works as the planned price does

// The method by which these goods are valued there.
std::string_view ValuationOf(const Profile& profile, const Warehouse& warehouse, const Item& item);

// Throws std::logic_error for a code that the company does not have.
const Warehouse& FindWarehouse(const Company& company, std::string_view code);

// Ordered by class.
std::span<const Party> Vendors();
std::span<const Party> Customers();

inline constexpr std::string_view kConsigning = "04";      // vendors whose goods are sold for them
inline constexpr std::string_view kSubcontractors = "05";  // vendors
inline constexpr std::string_view kVendorManaged = "06";   // vendors whose goods lie in the warehouse 04
inline constexpr std::string_view kImporters = "07";       // vendors
inline constexpr std::string_view kExportCustomers = "03";
inline constexpr std::string_view kAgents = "04";  // customers that goods are entrusted to

// Those of a class.
std::span<const Party> OfClass(std::span<const Party> parties, std::string_view partyClass);

std::span<const Person> Persons();
std::span<const Project> Projects();
std::span<const std::string_view> Colours();

// Null for an unknown code.
const Person* PersonOf(std::string_view code);
const Project* ProjectOf(std::string_view code);

// All tables of the master data, and the months of the accounting years.
void WriteMasterData(const Company& company, RowSink& sink);

}  // namespace kavelin::demo
