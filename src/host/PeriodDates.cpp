#include "host/PeriodDates.h"

#include "host/HostErrors.h"
#include "host/HostLedger.h"

#include <fmt/format.h>

#include <algorithm>

namespace kavelin::host {

namespace {

constexpr std::string_view kStateKey = "vouEstate";
constexpr std::string_view kUnposted = "未记账单据";

bool AsksForUnposted(const HostFilter& filter)
{
    const HostFilterItem* state = filter.Find(kStateKey);
    return state && state->From().find(kUnposted) != std::string::npos;
}

bool HasDates(const HostFilterItem& item)
{
    return !item.From().empty() || !item.To().empty();
}

HostFilterItem& Existing(const HostFilter& filter, const std::string& key)
{
    HostFilterItem* item = filter.Find(key);
    if (!item)
        throw Error("The filter has no field " + key + " for the dates of its months.");
    return *item;
}

}  // namespace

void PutMonthsAsDates(HostFilter& filter, const std::vector<std::string>& given, Connection& account,
                      const std::string& accountId)
{
    for (const auto& months : filter.Items()) {
        const std::vector<std::string>& fields = months->Field().dates;
        if (fields.empty())
            continue;
        const std::string from = months->From();
        const std::string to = months->To();
        months->SetvarValue("");
        months->SetvarValue2("");
        if (from.empty() && to.empty())
            continue;

        HostFilterItem& posting = Existing(filter, fields[0]);
        HostFilterItem& document = Existing(filter, fields[1]);
        HostFilterItem& target = AsksForUnposted(filter) ? document : posting;
        const bool chosen = std::ranges::find(given, months->Field().key) != given.end();
        if (!chosen && (HasDates(posting) || HasDates(document)))
            continue;
        if (HasDates(target))
            throw UsageError(fmt::format("{} and {} both tell the days; give one of them.",
                                         months->Field().key, target.Field().key));
        const PeriodDays days = DaysOfPeriods(account, accountId, from, to);
        target.SetvarValue(from.empty() ? "" : days.first);
        target.SetvarValue2(to.empty() ? "" : days.last);
    }
}

}  // namespace kavelin::host
