#include "goods/GoodsSumFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Text.h"
#include "goods/GoodsClauses.h"

namespace kavelin {

namespace {

constexpr std::int32_t kHandledHere = 1;
constexpr std::int32_t kLeftToTheFilter = 0;

struct Clauses {
    std::string strBusiness, strInventory;
    GoodsPeriod period;
};

// Whether the item is handled here; all others are left to the filter.
bool Take(FilterItem& item, Clauses& clauses, GoodsSumConditions& conditions)
{
    const std::string name = item.Name();
    const auto named = [&](std::string_view key) { return EqualsNoCase(name, key); };

    if (named("Inventory.cInvCCode")) {
        clauses.strInventory += " and Inventory.cInvCCode Like N'" + FilterText(item.varValue()) + "%'";
    } else if (named("Ia_Ensubsidiary.cBustype")) {
        clauses.strBusiness += GoodsBusinessClause(FilterText(item.varValue()));
    } else if (named("iUnitNumber")) {
        conditions.lngUnitNumber = GoodsUnitNumber(item.varValue());
    } else if (IsGoodsDate(name)) {
        const std::string from = FilterText(item.varValue());
        AddGoodsDates(clauses.period, name, from, FilterText(item.varValue2()));
    } else if (named("iYear")) {
        conditions.strYear = FilterText(item.varValue());
        return false;  // so that the filter limits both passes to the year
    } else {
        return false;
    }
    return true;
}

}  // namespace

void ReadGoodsFilter(ReportFilterObject& objFilter, GoodsSumConditions& conditions)
{
    Clauses clauses;
    ForEachItem(objFilter, [&](FilterItem& item) {
        item.SetLngGrouptoken(Take(item, clauses, conditions) ? kHandledHere : kLeftToTheFilter);
    });

    conditions.strOpenWhere.clear();
    conditions.strMoveWhere.clear();
    const std::string left = objFilter.GetWhereWithToken(kLeftToTheFilter);
    if (left.empty())
        return;
    conditions.strOpenWhere =
        left + clauses.strBusiness + " and  (" + clauses.period.strOpening + ") " + clauses.strInventory;
    conditions.strMoveWhere = left + clauses.strBusiness + clauses.period.strMovement + clauses.strInventory;
}

}  // namespace kavelin
