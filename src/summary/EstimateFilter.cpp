#include "summary/EstimateFilter.h"

#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Text.h"

#include <span>
#include <string_view>

namespace kavelin {

namespace {

// Groups of items, each asked for by itself.
constexpr std::int32_t kHandledHere = 0;
constexpr std::int32_t kLeftToTheFilter = 1;
constexpr std::int32_t kVoucherTypes = 2;

constexpr std::string_view kConsigned = "受托代销";

struct Edition {
    std::string_view allTypes;                // for a filter that chooses none
    bool consigns;                            // and then takes consignment in
    std::span<const std::string_view> types;  // that can be chosen, the first before the others
};

constexpr std::string_view kIndustrialTypes[] = {"普通采购", "委外加工", "一般贸易进口", "进料加工"};
constexpr std::string_view kCommercialTypes[] = {"普通采购", "一般贸易进口", "进料加工"};

// An industrial account has no consignment here, whatever its filter says.
constexpr Edition kIndustrial = {"N'普通采购',N'委外加工',N'一般贸易进口',N'进料加工'", false,
                                 kIndustrialTypes};
constexpr Edition kCommercial = {"N'普通采购',N'一般贸易进口',N'进料加工'", true, kCommercialTypes};

void ReadBusTypes(const std::string& chosen, EstimateConditions& conditions)
{
    const Edition& edition = IsIndustrial() ? kIndustrial : kCommercial;
    if (chosen.empty()) {
        conditions.strBusTypes = edition.allTypes;
        conditions.blnEntrust = edition.consigns;
        return;
    }
    const auto isChosen = [&](std::string_view type) { return chosen.find(type) != chosen.npos; };
    for (const std::string_view type : edition.types)
        if (isChosen(type))
            conditions.strBusTypes +=
                (conditions.strBusTypes.empty() ? "N'" : ", N'") + std::string(type) + "'";
    if (edition.consigns && isChosen(kConsigned))
        conditions.blnEntrust = true;
}

void TakeItem(FilterItem& item, EstimateConditions& conditions)
{
    item.SetLngGrouptoken(kLeftToTheFilter);
    const std::string name = item.Name();
    const auto named = [&](std::string_view key) { return EqualsNoCase(name, key); };
    const auto value = [&] { return FilterText(item.varValue()); };

    if (named("ia_subsidiary.iyear")) {
        conditions.strYear = value();
    } else if (named("ia_subsidiary.cvoutype")) {
        item.SetLngGrouptoken(kVoucherTypes);
    } else if (named("ia_subsidiary.imonth")) {
        item.SetLngGrouptoken(kHandledHere);
        conditions.strMonth = MonthDigits(value());
    } else if (named("ia_subsidiary.cbustype")) {
        item.SetLngGrouptoken(kHandledHere);
        ReadBusTypes(value(), conditions);
    } else if (named("bdiszero")) {
        item.SetLngGrouptoken(kHandledHere);
        conditions.blnDisZero = value() == kYes;
    } else if (named("bDispCheckFreeOnly")) {
        item.SetLngGrouptoken(kHandledHere);
        conditions.blnFreeOnly = value() == kYes;
    }
}

}  // namespace

bool IsIndustrial()
{
    return EqualsNoCase(ToText(GetAccInfoValue("AA", "cSysVersion")), "工业");
}

void TranslateEstimateFilter(ReportFilterObject& objFilter, EstimateConditions& conditions)
{
    conditions.blnDisZero = true;
    conditions.blnFreeOnly = false;
    conditions.strBusTypes.clear();
    conditions.blnEntrust = false;

    ForEachItem(objFilter, [&](FilterItem& item) { TakeItem(item, conditions); });

    conditions.strGroupWhere = objFilter.GetWhereWithToken(kLeftToTheFilter);
    conditions.strVouCond = objFilter.GetWhereWithToken(kVoucherTypes);
    if (conditions.strVouCond.empty())
        conditions.strVouCond = " ia_subsidiary.cVouType in (N'01',N'70') ";
}

}  // namespace kavelin
