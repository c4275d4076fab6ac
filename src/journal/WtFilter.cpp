#include "journal/WtFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/Text.h"
#include "journal/JournalField.h"
#include "journal/WtCodes.h"

#include <algorithm>
#include <string_view>

namespace kavelin {

namespace {

constexpr std::int32_t kHandledHere = 0;

// Left to the filter's own where.
constexpr std::int32_t kFilterToken = 1;
constexpr std::string_view kFilterKeys[] = {
    "Inventory.cInvCCode", "Customer.cCCCode",   "Vendor.cVCCode", "Customer.cCusCode",
    "Vendor.cVenCode",     "Inventory.cInvCode", "cBatchia",       "NoSub.cRdCode",
};

bool IsFilterKey(const std::string& name)
{
    return std::ranges::any_of(kFilterKeys, [&](std::string_view key) { return EqualsNoCase(name, key); });
}

// Documents in a state are asked for by the state's text in the dialog's language, or in Chinese. A language
// without a text for it, which any value would hold, has the Chinese one only.
bool AsksFor(const std::string& states, const std::string& state)
{
    const std::string shown = Resources().GetEnumName("IA.RepWt", state);
    return (!shown.empty() && states.find(shown) != states.npos) || states.find(state) != states.npos;
}

void ReadStates(const std::string& states, WtConditions& conditions)
{
    if (states.empty())
        return;
    conditions.blnAccounted = AsksFor(states, "已记账单据");
    conditions.blnUnAccounted = AsksFor(states, "未记账单据");
}

bool IsInvDefine(const std::string& name)
{
    return EqualsNoCase(Left(name, 10), "cinvdefine");
}

void TakeItem(FilterItem& item, WtConditions& conditions)
{
    const JournalField field = ReadJournalField(item, kHandledHere);
    const auto named = [&](std::string_view key) { return EqualsNoCase(field.name, key); };

    if (IsFilterKey(field.name))
        item.SetLngGrouptoken(kFilterToken);
    else if (named("edtCAssComUnitNum"))
        conditions.lngAssUnitNo = ReadAssUnitNo(Value(field.from));
    else if (named("vouEstate"))
        ReadStates(field.from, conditions);
    else if (named("cVouType"))
        conditions.strVouTypes = QuoteCodeList(field.from);
    else if (named("NoSub.cBusType"))
        conditions.strBusTypes = QuoteBusTypeList(field.from);
    else if (named("PzNoID"))
        conditions.strPzNoID = field.from;
    else if (named("dVouDate") || named("dKeepDate"))
        conditions.strWhere += CompareDates(" And NoSub.", field);
    else if (named("cWhCode") && field.several && !field.from.empty())
        conditions.strWhere += " And NoSub." + field.name + " in (" + QuoteCodeList(field.from) + ") ";
    else if (IsInvDefine(field.name))
        conditions.strWhere += CompareField(" And inventory.", field);
    else
        conditions.strWhere += CompareField(" And NoSub.", field);
}

}  // namespace

void TranslateWtFilter(ReportFilterObject& objFilter, WtConditions& conditions)
{
    ShowErrors([&] {
        conditions.strVouTypes.clear();
        conditions.strBusTypes.clear();
        conditions.strWhere = " NoSub.cVouType not in (N'33',N'34')";
        conditions.strWhere += BuildPermissionClauses(PermissionColumnsOf("ClsWtInfo"));

        ForEachItem(objFilter, [&](FilterItem& item) { TakeItem(item, conditions); });

        const std::string left = objFilter.GetWhereWithToken(kFilterToken);
        if (!left.empty())
            conditions.strWhere = left + " AND " + conditions.strWhere;
    });
}

}  // namespace kavelin
