#include "journal/CostFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/PermissionColumns.h"
#include "frame/Text.h"
#include "journal/JournalField.h"
#include "journal/WtCodes.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace kavelin {

namespace {

constexpr std::int32_t kHandledHere = 1;
constexpr std::int32_t kLeftToTheFilter = 3;
constexpr std::int32_t kAskedFor[] = {2, 3};  // at the end, in this order; no item here gets the first

constexpr std::string_view kFilterKeys[] = {"cpzid", "cworkcentercode", "ccostcentercode", "cdifpzid"};

// This journal has no unposted rows, and the number of a voucher is not among its conditions.
constexpr std::string_view kUnread[] = {"vouEstate", "PzNoID"};

std::string InList(const std::string& before, const JournalField& field)
{
    if (!field.several || field.from.empty())
        return CompareField(before, field);
    return before + field.name + " in (" + QuoteCodeList(field.from) + ")";
}

// A single class stands for its sub-classes too.
std::string InClass(const std::string& before, const JournalField& field)
{
    if (field.range || (field.from.empty() && field.to.empty()))
        return CompareField(before, field);
    return before + field.name + " Like N'" + field.from + "%'";
}

struct CostKey {
    std::string_view name, before;
    std::string (*condition)(const std::string& before, const JournalField& field);
};

// Every key that isn't named here is compared as the last one is.
// clang-format off
constexpr CostKey kKeys[] = {
    {"dVouDate",  " And   ", CompareDates},
    {"dKeepDate", " And   ", CompareDates},
    {"cInvCCode", " And   ", InClass     },
    {"cCCCode",   " And   ", InClass     },
    {"cVCCode",   " And   ", InClass     },
    {"CcCusCode", " And ",   CompareField},  // of the customer, as the dialog spells it
    {"cInvCode",  " And ",   InList      },
    {"cWhCode",   " And   ", InList      },
    {"",          " And ",   CompareField},
};
// clang-format on

bool IsOneOf(std::span<const std::string_view> keys, const std::string& name)
{
    return std::ranges::any_of(keys, [&](std::string_view key) { return EqualsNoCase(name, key); });
}

std::string ConditionOf(const JournalField& field)
{
    const auto key = std::ranges::find_if(
        kKeys, [&](const CostKey& k) { return k.name.empty() || EqualsNoCase(field.name, k.name); });
    return key->condition(std::string(key->before), field);
}

void TakeItem(FilterItem& item, CostConditions& conditions)
{
    const JournalField field = ReadJournalField(item, kHandledHere);
    const auto named = [&](std::string_view key) { return EqualsNoCase(field.name, key); };

    if (IsOneOf(kFilterKeys, field.name))
        item.SetLngGrouptoken(kLeftToTheFilter);
    else if (IsOneOf(kUnread, field.name))
        return;
    else if (named("edtCAssComUnitNum"))
        conditions.lngAssUnitNo = ReadAssUnitNo(Value(field.from));
    else if (named("cVouType"))
        conditions.strVouTypes = QuoteCodeList(field.from);
    else if (named("cBusType"))
        conditions.strBusTypes = QuoteBusTypes(field.from);
    else
        conditions.strWhere += ConditionOf(field);
}

}  // namespace

void TranslateCostFilter(ReportFilterObject& objFilter, CostConditions& conditions)
{
    ShowErrors([&] {
        conditions.strVouTypes.clear();
        conditions.strBusTypes.clear();
        conditions.strWhere = " cVouType not in (N'33',N'34',N'35')";
        conditions.strWhere += BuildPermissionClauses(PermissionColumnsOf("clsStaCostacc"));

        ForEachItem(objFilter, [&](FilterItem& item) { TakeItem(item, conditions); });

        for (const std::int32_t token : kAskedFor) {
            const std::string left = objFilter.GetWhereWithToken(token);
            if (!left.empty())
                conditions.strWhere += " AND " + left;
        }
    });
}

}  // namespace kavelin
