#include "analysis/TurnoverFilter.h"

#include "analysis/TurnoverStatements.h"
#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/Text.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace kavelin {

namespace {

// Which call of GetWhereWithToken takes an item up.
constexpr std::int32_t kLeftToTheService = 0;
constexpr std::int32_t kHandledHere = 1;
constexpr std::int32_t kBusinessTypes = 2;

struct Property {
    std::string_view value, condition;
};
constexpr Property kProperties[] = {
    {"采购", " And Inventory.bPurchase=1 "},
    {"销售", " And Inventory.bSale=1 "},
    {"生产领料", " And Inventory.bComsume=1 "},
};

struct GroupKey {
    std::string_view key;
    bool TurnoverGroups::*flag;
};
constexpr GroupKey kGroupKeys[] = {
    {"bgroupdep", &TurnoverGroups::blnGroupDep},
    {"bgroupcwh", &TurnoverGroups::blnGroupWh},
    {"bgroupinvcc", &TurnoverGroups::blnGroupInvClass},
    {"bgroupcin", &TurnoverGroups::blnGroupInv},
};

TurnoverGroups GroupsOfTheAccount()
{
    const std::string style = ToText(GetAccInfoValue("IA", "cValueStyle"));
    return {.blnGroupDep = style == "按部门核算", .blnGroupWh = style == "按仓库核算"};
}

std::string DateText(const Value& value)
{
    return FormatDate(ToDate(value));
}

// The last posting date of the year; null if the year has no line.
Value LastPostingDate(const std::string& year)
{
    const auto rows = Existing(ModPub().gcnnAccount)
                          .OpenRecordset(SelectLastPostingDate(year), CursorLocation::Client,
                                         CursorType::ForwardOnly, LockType::ReadOnly);
    return rows->Field("MAXDate");
}

void TakeRange(FilterItem& item, TurnoverConditions& conditions)
{
    std::string year = Existing(ModPub().gobjLedgerParams).Year();
    const auto [first, last] =
        Existing(ModPub().gobjLedgerPub).GetYearMonthRange(year, Existing(ModPub().gcnnAccount));
    Value begin, end;
    GetPeriodDates(first, &begin, nullptr, year);
    GetPeriodDates(last, nullptr, &end, year);
    conditions.dtmFirst = DateText(begin);
    conditions.dtmLast = DateText(end);

    const Value from = item.varValue();
    conditions.strDateFrom = conditions.dtmFirst;
    if (!FilterText(from).empty() && ToDate(from) >= ToDate(begin))
        conditions.strDateFrom = DateText(from);

    const Value to = item.varValue2();
    if (!FilterText(to).empty()) {
        conditions.strDateTo = DateText(to);
        return;
    }
    const Value posted = LastPostingDate(year);
    conditions.strDateTo = posted.IsNull() ? conditions.dtmLast : DateText(posted);
}

void TakeYear(const std::string& year, TurnoverConditions& conditions)
{
    InitLedgerParams(year);
    if (!year.empty())
        conditions.strWhere += "And Ia_subsidiary.iyear =" + year;
}

// Whether the key was one of the groups'.
bool TakeGroup(const std::string& name, const std::string& value, TurnoverGroups& groups)
{
    for (const GroupKey& group : kGroupKeys) {
        if (name != group.key)
            continue;
        if (value == kYes)
            groups.*group.flag = true;
        else if (value == kNo)
            groups.*group.flag = false;
        return true;
    }
    return false;
}

void TakeItem(ReportFilterObject& filter, FilterItem& item, TurnoverConditions& conditions)
{
    item.SetLngGrouptoken(kHandledHere);
    const std::string name = ToLower(item.Name());
    const std::string value = FilterText(item.varValue());
    if (name == "iperiod") {
        TakeRange(item, conditions);
    } else if (name == "invproperty") {
        for (const Property& property : kProperties)
            if (value == property.value)
                conditions.strWhere += property.condition;
    } else if (name == "iyear") {
        TakeYear(value, conditions);
    } else if (name == "dismethod") {
        conditions.blnByAmount = value != "按数量";
    } else if (name == "ia_subsidiary.cbustype") {
        item.SetLngGrouptoken(kBusinessTypes);
        if (const std::string types = filter.GetWhereWithToken(kBusinessTypes); !types.empty())
            conditions.strBusWhere = "(" + types + ")";
    } else if (!TakeGroup(name, value, conditions.groups)) {
        item.SetLngGrouptoken(kLeftToTheService);
    }
}

}  // namespace

TurnoverConditions ReadTurnoverFilter(ReportFilterObject& filter)
{
    TurnoverConditions conditions;
    conditions.groups = GroupsOfTheAccount();
    ForEachItem(filter, [&](FilterItem& item) { TakeItem(filter, item, conditions); });
    if (const std::string left = filter.GetWhereWithToken(kLeftToTheService); !left.empty())
        conditions.strWhere += " And " + left;
    return conditions;
}

}  // namespace kavelin
