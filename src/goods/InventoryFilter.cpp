#include "goods/InventoryFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Text.h"
#include "goods/CostItemChoice.h"
#include "goods/GoodsClauses.h"

namespace kavelin {

namespace {

constexpr std::int32_t kLeftToTheFilter = 0;
constexpr std::int32_t kHandledHere = 1;

struct Clauses {
    GoodsPeriod period;
    std::string business;
};

// Whether the item is handled here. The year stays in the service's text too.
bool TakeItem(FilterItem& item, InventoryConditions& conditions, Clauses& clauses)
{
    const std::string name = item.Name();
    const auto named = [&](std::string_view key) { return EqualsNoCase(name, key); };

    if (named("IA_EnSubsidiary.iYear")) {
        conditions.strYear = FilterText(item.varValue());
        return false;
    }
    if (named("CostItem"))
        conditions.strCostItem = ReadCostItem(item);
    else if (named("Ia_Ensubsidiary.cBustype"))
        clauses.business += GoodsBusinessClause(FilterText(item.varValue()));
    else if (named("iUnitNumber"))
        conditions.lngUnitNumber = GoodsUnitNumber(item.varValue());
    else if (IsGoodsDate(name))
        AddGoodsDates(clauses.period, name, FilterText(item.varValue()), FilterText(item.varValue2()));
    else
        return false;
    return true;
}

}  // namespace

InventoryConditions ReadCostFilter(ReportFilterObject& objFilter)
{
    InventoryConditions conditions;
    Clauses clauses;
    ForEachItem(objFilter, [&](FilterItem& item) {
        const bool handled = TakeItem(item, conditions, clauses);
        item.SetLngGrouptoken(handled ? kHandledHere : kLeftToTheFilter);
    });

    const std::string left = objFilter.GetWhereWithToken(kLeftToTheFilter);
    if (!left.empty()) {
        conditions.strOpenWhere = left + clauses.business + " and  (" + clauses.period.strOpening + ") ";
        conditions.strMoveWhere = left + clauses.business + clauses.period.strMovement;
    }
    return conditions;
}

}  // namespace kavelin
