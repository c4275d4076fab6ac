#include "filter/OpeningSteps.h"

#include "filter/AccountMonths.h"
#include "filter/FieldLocks.h"
#include "filter/FilterIdentities.h"
#include "filter/LedgerYears.h"
#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

#include <utility>

namespace kavelin {

namespace {

bool IsEmpty(FilterItem& item)
{
    return FilterText(item.varValue()).empty();
}

// Offers the months of the leading year; gives the one that an empty field takes.
std::string OfferMonths(OpenDialog& dialog, FilterItem& item)
{
    const MonthRange months = GetMonthsOfYear(dialog.state.strCurYear);
    item.SetListSource(BuildMonthList(months));
    if (!IsEmpty(item))
        return "";
    const int month = Existing(ModPub().gobjLogin).Month();
    return MonthText(months.Holds(month) ? month : months.last);
}

}  // namespace

void PrepareFields(OpenDialog dialog, KeyMatch match, const std::vector<OpeningField>& fields)
{
    ForEachItem(dialog.filter, [&](FilterItem& item) {
        const std::string name = item.Name();
        for (const OpeningField& field : fields)
            if (Matches(name, field.key, match))
                for (const OpeningStep& step : field.steps)
                    step(dialog, item);
    });
}

OpeningStep Default(std::string_view value)
{
    return [value = std::string(value)](OpenDialog&, FilterItem& item) {
        if (IsEmpty(item))
            item.SetvarValue(value);
    };
}

OpeningStep DefaultText(std::string enumType, std::string code)
{
    return [enumType = std::move(enumType), code = std::move(code)](OpenDialog&, FilterItem& item) {
        if (IsEmpty(item))
            item.SetvarValue(Resources().GetEnumName(enumType, code));
    };
}

OpeningStep SetValue(std::string value)
{
    return [value = std::move(value)](OpenDialog&, FilterItem& item) { item.SetvarValue(value); };
}

void Unlock(OpenDialog& dialog, FilterItem& item)
{
    dialog.filter.SetFieldLocked(item.ControlKey(), false);
}

OpeningStep LockOtherWhileFilled(std::string other)
{
    return [other = std::move(other)](OpenDialog& dialog, FilterItem& item) {
        LockWhileFilled(dialog.filter, item, other);
    };
}

void ClearFlag(OpenDialog& dialog, FilterItem& item)
{
    dialog.filter.SetFieldFlag(item.ControlKey(), false);
}

void ClearFlagOfSecondBox(OpenDialog& dialog, FilterItem& item)
{
    dialog.filter.SetFieldFlag(item.ControlKey() + "__2", false);
}

OpeningStep List(std::string entries)
{
    return [entries = std::move(entries)](OpenDialog&, FilterItem& item) { item.SetListSource(entries); };
}

OpeningStep ListByParameter(std::string system, std::string name, std::string value, std::string list,
                            std::string otherwise)
{
    return [=](OpenDialog&, FilterItem& item) {
        item.SetListSource(ToText(GetAccInfoValue(system, name)) == value ? list : otherwise);
    };
}

void OpenMonths(OpenDialog& dialog, FilterItem& item)
{
    InitAccMonth();
    dialog.filter.SetFieldRangeList(item.ControlKey(), PairedMonthList());
    if (IsEmpty(item)) {
        item.SetvarValue(ModPub().gstrCurrentPeriod);
        item.SetvarValue2(ModPub().gstrCurrentPeriod);
    }
}

void Years(OpenDialog& dialog, FilterItem& item)
{
    item.SetListSource(GetAccYearList(dialog.state));
    if (IsEmpty(item))
        item.SetvarValue(dialog.state.strCurYear);
}

void YearsThatLead(OpenDialog& dialog, FilterItem& item)
{
    Years(dialog, item);
    dialog.state.strCurYear = FilterText(item.varValue());
}

void MonthsOfYear(OpenDialog& dialog, FilterItem& item)
{
    const std::string month = OfferMonths(dialog, item);
    if (!month.empty())
        item.SetvarValue(month);
}

void MonthPairOfYear(OpenDialog& dialog, FilterItem& item)
{
    const std::string month = OfferMonths(dialog, item);
    if (!month.empty()) {
        item.SetvarValue(month);
        item.SetvarValue2(month);
    }
}

OpeningStep LookUp(const ReferenceLookup& lookup)
{
    return [&lookup](OpenDialog&, FilterItem& item) { item.SetListSource(SelectReferences(lookup)); };
}

OpeningStep LookUpOfWarehouse(const ReferenceLookup& lookup)
{
    return [&lookup](OpenDialog& dialog, FilterItem& item) {
        const auto warehouse = dialog.filter.FilterList()->Item("cWhCode");
        const std::string value = warehouse ? FilterText(warehouse->varValue()) : "";
        const std::string condition = value.empty() ? "" : " and  WareHouse.cWhCode='" + value + "' ";
        item.SetListSource(SelectReferences(lookup, condition));
    };
}

OpeningStep LookUpVoucherTypes(const VoucherTypeLists& lists)
{
    return [&lists](OpenDialog& dialog, FilterItem& item) {
        const bool priceAnalysis = dialog.filter.FilterID() == kPriceAnalysis;
        item.SetListSource(SelectVoucherTypes(lists, priceAnalysis ? kVoucherTypesOfPriceAnalysis : ""));
    };
}

}  // namespace kavelin
