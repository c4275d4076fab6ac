#include "analysis/ProPortionFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Text.h"

#include <string_view>

namespace kavelin {

namespace {

struct RangeKey {
    std::string_view key, from, to;  // each condition up to its value, which stands between quotes
};

// `imonth` holds dates, in spite of its name.
// clang-format off
constexpr RangeKey kRangeKeys[] = {
    {"cinvcode",  " And " "IA_Subsidiary.cinvcode>='", " And " "IA_Subsidiary.cinvcode<='"},
    {"cwhcode",   " And " "IA_Subsidiary.cWhCode>='",  " And " "IA_Subsidiary.cWhCode<='" },
    {"cinvccode", " And " " cinvccode>='",             " And " " cinvccode<='"            },
    {"imonth",    " and dkeepdate >= '",               " and dkeepdate <= '"              },
};
// clang-format on

constexpr std::int32_t kHandledHere = 1;

std::string Condition(std::string_view head, const std::string& value)
{
    return value.empty() ? "" : std::string(head) + value + "'";
}

}  // namespace

std::string BuildRangeWhere(ReportFilterObject& filter)
{
    std::string where = " 1=1 ";
    ForEachItem(filter, [&](FilterItem& item) {
        item.SetLngGrouptoken(kHandledHere);
        const std::string name = item.Name();
        for (const RangeKey& range : kRangeKeys) {
            if (!EqualsNoCase(name, range.key))
                continue;
            where += Condition(range.from, FilterText(item.varValue()));
            where += Condition(range.to, FilterText(item.varValue2()));
        }
    });
    return where;
}

std::string BuildRankWhere(ReportFilterObject& filter)
{
    std::string where = " 1=1 ";
    ForEachItem(filter, [&](FilterItem& item) {
        item.SetLngGrouptoken(kHandledHere);
        if (!EqualsNoCase(item.Name(), "cNo"))
            return;
        const std::string value = FilterText(item.varValue());
        if (!value.empty())
            where += "   and cNo<=" + value;
    });
    return where;
}

}  // namespace kavelin
