#include "goods/CostItemColumns.h"

#include "frame/Value.h"

#include <algorithm>
#include <iterator>

namespace kavelin {

namespace {

using enum CostItem;
using enum CostKind;

constexpr std::string_view kAmountType = "IA_EnSubsidiary.iAInPrice";

// The real cost of outsourced processing has the type of a unit cost; that is wanted.
// clang-format off
constexpr CostColumn kColumns[] = {
    // item  amount      per unit        kind        of a ledger line      type of the amount
    {Total,   "StanCost", "UnitCost",     Standard,   "",                   kAmountType },
    {Total,   "Dif",      "UnitDif",      Difference, "",                   kAmountType },
    {Total,   "RealCost", "UnitRealCost", Real,       "",                   kAmountType },

    {M,       "StanCost", "UnitStanCost", Standard,   "s.fInvStdPrice",     kAmountType },
    {M,       "PrcDif",   "UnitPrcDif",   Difference, "p.fInvPriceDif",     kAmountType },
    {M,       "QuaDif",   "UnitQuaDif",   Difference, "p.fInvQuanDif",      kAmountType },
    {M,       "RealCost", "UnitRealCost", Real,       "",                   kAmountType },

    {Labor,   "StanCost", "UnitStanCost", Standard,   "s.fLaborStdPrice",   kAmountType },
    {Labor,   "PrcDif",   "UnitPrcDif",   Difference, "p.fLbrPriceDif",     kAmountType },
    {Labor,   "QuaDif",   "UnitQuaDif",   Difference, "p.fLbrQuanDif",      kAmountType },
    {Labor,   "SemiDif",  "UnitSemiDif",  Difference, "p.fLbrSemiDif",      kAmountType },
    {Labor,   "RealCost", "UnitRealCost", Real,       "",                   kAmountType },

    {ManuFix, "StanCost", "UnitStanCost", Standard,   "s.fManuFixPrice",    kAmountType },
    {ManuFix, "PrcDif",   "UnitPrcDif",   Difference, "p.fmanufixpricedif", kAmountType },
    {ManuFix, "QuaDif",   "UnitQuaDif",   Difference, "p.fManuFixQuanDif",  kAmountType },
    {ManuFix, "SemiDif",  "UnitSemiDif",  Difference, "p.fSemiManuFixDif",  kAmountType },
    {ManuFix, "RealCost", "UnitRealCost", Real,       "",                   kAmountType },

    {ManuVar, "StanCost", "UnitStanCost", Standard,   "s.fManuVarPrice",    kAmountType },
    {ManuVar, "PrcDif",   "UnitPrcDif",   Difference, "p.fManuVarPriceDif", kAmountType },
    {ManuVar, "QuaDif",   "UnitQuaDif",   Difference, "p.fManuVarQuanDif",  kAmountType },
    {ManuVar, "SemiDif",  "UnitSemiDif",  Difference, "p.fSemiManuVarDif",  kAmountType },
    {ManuVar, "RealCost", "UnitRealCost", Real,       "",                   kAmountType },

    {Omp,     "StanCost", "UnitStanCost", Standard,   "s.fOmPrice",         kAmountType },
    {Omp,     "Dif",      "UnitDif",      Difference, "p.fOmCostDif",       kAmountType },
    {Omp,     "SemiDif",  "UnitSemiDif",  Difference, "p.fSemiOmDif",       kAmountType },
    {Omp,     "RealCost", "UnitRealCost", Real,       "",                   kPerUnitType},
};
// clang-format on

constexpr std::string_view kItemNames[] = {"Total", "M", "Labor", "ManuFix", "ManuVar", "Omp"};

// The totals come first.
constexpr std::size_t kTotals = 3;

std::string Name(std::string_view prefix, CostItem item, std::string_view measure)
{
    const std::string_view itemName = kItemNames[static_cast<std::size_t>(item) - 1];
    return std::string(prefix) + "_" + std::string(itemName) + "_" + std::string(measure);
}

}  // namespace

std::string QuantityName(std::string_view prefix)
{
    return std::string(prefix) + "_Qty";
}

std::string AmountName(std::string_view prefix, const CostColumn& column)
{
    return Name(prefix, column.item, column.measure);
}

std::string PerUnitName(std::string_view prefix, const CostColumn& column)
{
    return Name(prefix, column.item, column.perUnit);
}

std::span<const CostColumn> CostColumns()
{
    return kColumns;
}

std::span<const CostColumn> CostTotals()
{
    return CostColumns().first(kTotals);
}

std::span<const CostColumn> CostItems()
{
    return CostColumns().subspan(kTotals);
}

std::vector<CostColumn> ChosenCostColumns(const std::string& strCostItem, bool withDifferences)
{
    const double chosen = ToDouble(strCostItem);
    std::vector<CostColumn> columns;
    std::ranges::copy_if(kColumns, std::back_inserter(columns), [&](const CostColumn& column) {
        return (chosen == 0 || chosen == static_cast<int>(column.item)) &&
               (withDifferences || column.kind != Difference);
    });
    return columns;
}

std::string LineAmount(const CostColumn& column)
{
    if (!column.source.empty())
        return std::string(column.source);
    std::vector<std::string> sources;
    for (const CostColumn& other : kColumns)
        if (other.item == column.item && !other.source.empty())
            sources.emplace_back(other.source);
    return "(" + SumOf(sources) + ")";
}

std::string TotalAmount(std::string_view prefix, const CostColumn& total)
{
    std::vector<std::string> columns;
    for (const CostColumn& column : CostItems())
        if (column.kind == total.kind)
            columns.push_back(AmountName(prefix, column));
    return SumOf(columns);
}

std::string SumOf(const std::vector<std::string>& columns)
{
    std::string sum;
    for (const std::string& column : columns)
        sum += (sum.empty() ? "isnull(" : "+isnull(") + column + ",0)";
    return sum;
}

}  // namespace kavelin
