// The columns of goods in transit by cost item. One table holds them all, and every list, sum and total of the
// summary and of the detail ledger by cost item is written from it.
//
// A column's name is PREFIX_ITEM_MEASURE, such as R_Labor_PrcDif, or PREFIX_Qty for the quantity. The prefixes
// are Q opening, R received, D dispatched and E end balance. A measure is an amount, and each amount has a
// second column, the same per unit of quantity.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin {

// In the order of the columns. The number is the filter's `CostItem` that shows the item alone.
enum class CostItem { Total = 1, M, Labor, ManuFix, ManuVar, Omp };

enum class CostKind { Standard, Difference, Real };

struct CostColumn {
    CostItem item;
    std::string_view measure;  // the amount
    std::string_view perUnit;  // the same per unit of quantity
    CostKind kind;
    std::string_view source;  // of one ledger line; empty for what is a sum of other columns
    std::string_view type;    // the column of the ledger whose type the amount has
};

// The ledger's columns that give quantities and amounts per unit their type.
constexpr std::string_view kQuantityType = "IA_EnSubsidiary.iAInQuantity";
constexpr std::string_view kPerUnitType = "IA_EnSubsidiary.iInCost";

std::string QuantityName(std::string_view prefix);
std::string AmountName(std::string_view prefix, const CostColumn& column);
std::string PerUnitName(std::string_view prefix, const CostColumn& column);

// All columns, those of the totals, and those of the five items.
std::span<const CostColumn> CostColumns();
std::span<const CostColumn> CostTotals();
std::span<const CostColumn> CostItems();

// The columns that a result shows for the filter's `CostItem`: 0 for all, 1 to 6 for one item, none for any
// other number. Differences only if the account keeps them. Throws ConversionError for a text that is no
// number.
std::vector<CostColumn> ChosenCostColumns(const std::string& strCostItem, bool withDifferences);

// The amount of one ledger line: the source, or for the real cost the sum of the item's sources.
std::string LineAmount(const CostColumn& column);

// What a total is made of: the sum of all items' columns of its kind.
std::string TotalAmount(std::string_view prefix, const CostColumn& total);

// Adds one behind the other, "isnull(a,0)+isnull(b,0)".
std::string SumOf(const std::vector<std::string>& columns);

}  // namespace kavelin
