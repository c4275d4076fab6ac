#include "goods/DetailFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/Statement.h"
#include "frame/Text.h"
#include "goods/CostItemChoice.h"
#include "goods/GoodsClauses.h"

namespace kavelin {

namespace {

constexpr std::int32_t kLeftToTheFilter = 0;
constexpr std::int32_t kHandledHere = 1;
constexpr int kFreeItems = 10;

struct Clauses {
    std::string opening = GoodsPeriod().strOpening;
    std::string months = GoodsPeriod().strMovement;
    std::string business;
    std::string freeItems = " and 1=1 ";
    std::string inventory;  // the one chosen
};

// The second quote of a pair is a plain one.
std::string Months(const std::string& column, const std::string& from, const std::string& to)
{
    if (!from.empty() && !to.empty())
        return " And " + column + " Between N'" + from + "' And '" + to + "' ";
    if (!from.empty())
        return " And " + column + " >= N'" + from + "'";
    return to.empty() ? "" : " And " + column + "  <= N'" + to + "'";
}

void TakeMonths(FilterItem& item, DetailConditions& conditions, Clauses& clauses)
{
    if (FilterText(item.varValue()).empty()) {
        item.SetvarValue("1月");
        item.SetvarValue2("12月");
    }
    const std::string from = MonthDigits(FilterText(item.varValue()));
    const std::string to = MonthDigits(FilterText(item.varValue2()));
    clauses.opening += " or IA_EnSubsidiary.imonth < '" + from + "'";
    clauses.months += Months("IA_EnSubsidiary.imonth", from, to);
    conditions.strResultMonths += Months("a.imonth", from, to);
}

// Whether the item is handled here. Year and inventory stay in the service's text too.
bool TakeItem(FilterItem& item, DetailConditions& conditions, Clauses& clauses)
{
    const std::string name = item.Name();
    const auto named = [&](std::string_view key) { return EqualsNoCase(name, key); };

    if (named("IA_EnSubsidiary.iMonth"))
        TakeMonths(item, conditions, clauses);
    else if (named("CostItem"))
        conditions.strCostItem = ReadCostItem(item);
    else if (named("Ia_Ensubsidiary.cBustype"))
        clauses.business += GoodsBusinessClause(FilterText(item.varValue()));
    else {
        if (named("IA_EnSubsidiary.iYear"))
            conditions.strYear = FilterText(item.varValue());
        if (named("IA_EnSubsidiary.cInvCode"))
            clauses.inventory = FilterText(item.varValue());
        return false;
    }
    return true;
}

// A free item that is kept for the inventory and that the user left empty is that of the first combination
// found, so that an empty one doesn't mean every value.
std::string FreeItemClause(ReportFilterObject& objFilter, const std::string& inventory,
                           const std::string& year)
{
    const auto found = Existing(ModPub().gcnnAccount)
                           .OpenRecordset(SelectFreeItems(inventory, year), CursorLocation::Client,
                                          CursorType::ForwardOnly, LockType::ReadOnly);
    std::string clause;
    for (int number = 1; !found->Eof() && number <= kFreeItems; ++number) {
        const std::string digits = std::to_string(number);
        const std::string value = FilterText(found->Field(number));
        if (value.empty())
            continue;
        if (FilterText(objFilter.GetFieldValue("IA_EnSubsidiary.cFree" + digits)).empty())
            clause += " and cfree" + digits + "=N'" + value + "'";
    }
    found->Close();
    return clause;
}

}  // namespace

DetailConditions ReadDetailFilter(ReportFilterObject& objFilter)
{
    DetailConditions conditions;
    Clauses clauses;
    ForEachItem(objFilter, [&](FilterItem& item) {
        const bool handled = TakeItem(item, conditions, clauses);
        item.SetLngGrouptoken(handled ? kHandledHere : kLeftToTheFilter);
    });
    // Behind the walk, so that the year is known wherever it stands among the items.
    if (!clauses.inventory.empty())
        clauses.freeItems += FreeItemClause(objFilter, clauses.inventory, conditions.strYear);

    const std::string left = objFilter.GetWhereWithToken(kLeftToTheFilter);
    if (!left.empty()) {
        conditions.strOpenWhere =
            left + clauses.business + " and  (" + clauses.opening + ") " + clauses.freeItems;
        conditions.strMoveWhere = left + clauses.business + clauses.months + clauses.freeItems;
    }
    return conditions;
}

// The flag of a free item is compared with the item's own number, which no flag but the first can equal; that
// is wanted.
std::string SelectFreeItems(const std::string& inventory, const std::string& year)
{
    const std::string kept = "case when b.bCheckFree{} = {} then a.cFree{} else N'' end";
    const std::string lastKept = ReplaceAll(kept, "{}", std::to_string(kFreeItems));

    return JoinLines({
        "select top 1 a.cInvCode,",
        Numbered(1, kFreeItems - 1, kept + " as cfree{},") + lastKept + " as cfree10",
        "from IA_Subsidiary a",
        "inner join inventory b on a.cInvCode = b.cInvCode",
        "where a.cInvCode ='" + inventory + "' and a.iYear =" + year,
        "group by a.cInvCode ,",
        Numbered(1, kFreeItems - 1, kept + ",") + lastKept,
    });
}

}  // namespace kavelin
