#include "analysis/AbcFilter.h"

#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/Text.h"

#include <cstdint>
#include <string_view>

namespace kavelin {

namespace {

constexpr std::int32_t kLeftToTheService = 0;
constexpr std::int32_t kHandledHere = 1;

struct ClassKey {
    std::string_view key;
    bool AbcConditions::*included;
};
constexpr ClassKey kClassKeys[] = {
    {"inclua", &AbcConditions::blnIncludeA},
    {"inclub", &AbcConditions::blnIncludeB},
    {"incluc", &AbcConditions::blnIncludeC},
};

void TakeYear(ReportFilterObject& filter, std::string year, bool fromDialog, AbcConditions& conditions)
{
    const std::string loginYear = Existing(ModPub().gobjLogin).Year();
    if (year.empty() && filter.ContextArgs()->Count() == 1)
        year = loginYear;
    InitLedgerParams(year);
    if (!year.empty())
        conditions.strWhere += " And IA_summary.iyear =" + (fromDialog ? year : loginYear);
}

void TakeItem(ReportFilterObject& filter, FilterItem& item, bool fromDialog, AbcConditions& conditions)
{
    item.SetLngGrouptoken(kHandledHere);
    const std::string name = ToLower(item.Name());
    const std::string value = FilterText(item.varValue());
    if (name == "iperiod") {
        conditions.strPeriod =
            fromDialog ? MonthDigits(value) : std::to_string(Existing(ModPub().gobjLogin).Month());
        return;
    }
    if (name == "iyear") {
        TakeYear(filter, value, fromDialog, conditions);
        return;
    }
    for (const ClassKey& classKey : kClassKeys)
        if (name == classKey.key) {
            conditions.*classKey.included = value == kYes;
            return;
        }
    item.SetLngGrouptoken(kLeftToTheService);
}

}  // namespace

AbcConditions ReadAbcFilter(ReportFilterObject& filter, bool fromDialog)
{
    AbcConditions conditions;
    ForEachItem(filter, [&](FilterItem& item) { TakeItem(filter, item, fromDialog, conditions); });
    if (const std::string left = filter.GetWhereWithToken(kLeftToTheService); !left.empty())
        conditions.strWhere += " And " + left;
    return conditions;
}

}  // namespace kavelin
