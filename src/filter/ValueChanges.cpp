#include "filter/ValueChanges.h"

#include "filter/CostingBasis.h"
#include "filter/FieldLocks.h"
#include "filter/KeyMatch.h"
#include "filter/LedgerYears.h"
#include "filter/OpeningSteps.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

#include <vector>

namespace kavelin {

namespace {

// A field whose value is a condition on the lookup of another. The host puts the column of the lookup for
// "#FN[...]", its first column for "fld1".
struct LookupRule {
    std::string_view key;
    const char* target;
    const char* before;
    const char* behind;
};

// clang-format off
constexpr LookupRule kStandardCostLookups[] = {
    {"cInvCCode", "cInvCode", " #FN[cInvCCode]='",                                    "'" },
    {"cCCCode",   "cCusCode", " #FN[cCCCode]='",                                      "'" },
    {"cVCCode",   "cVenCode", " #FN[cVCCode]='",                                      "'" },
    {"cWhCode",   "cDepCode", "fld1 in (select cDepCode    from Warehouse  where  cWhCode='", "')"},
};

constexpr LookupRule kEstimateLookups[] = {
    {"inventory.cinvccode", "ia_subsidiary.cInvCode", "#FN[cinvCCode] like N'", "%'"},
    {"vendor.cvccode",      "ia_subsidiary.cVenCode", "#FN[cVCCode] like N'",   "%'"},
};

// A year and the months that follow it.
struct YearRule {
    std::string_view year;   // any case
    std::string_view month;  // the month's item, any case
    const char* enumType;
    std::vector<std::string> boxes;  // of the month; the first is the drop-down that is refreshed
};

const YearRule kEstimateYear = {"ia_subsidiary.iyear", "ia_subsidiary.imonth", "IA.Month",
                                {"ia_subsidiary.iMonth"}};
const YearRule kDetailLedgerYear = {"ia_ensubsidiary.iyear", "ia_ensubsidiary.imonth", "IA.Month",
                                    {"ia_ensubsidiary.iMonth", "ia_ensubsidiary.iMonth__2"}};
const YearRule kAbcYear = {"iyear", "iperiod", "IA.Oth", {"iPeriod"}};
// clang-format on

std::string ValueOfItem(ReportFilterObject& flt, const std::string& key)
{
    return FilterText(Existing(flt.FilterList()->Item(key)).varValue());
}

void Narrow(ReportFilterObject& flt, const LookupRule& rule, const std::string& value)
{
    flt.SetFieldRefCondition(rule.target, "", rule.before + value + rule.behind);
}

// Brings the months of the year that `value` holds; gives the year.
std::string BringMonths(ReportFilterObject& flt, const YearRule& rule, const Value& value)
{
    const std::string year = std::to_string(ToInt32(value));
    const MonthRange months = GetMonthsOfYear(year);
    ForEachItem(flt, [&](FilterItem& item) {
        if (Matches(item.Name(), rule.month, KeyMatch::AnyCase)) {
            item.SetListSource(BuildMonthList(months));
            flt.RefreshFieldList(rule.boxes.front(), rule.enumType, item.ListSource());
        }
    });
    const int month = Existing(ModPub().gobjLogin).Month();
    for (const std::string& box : rule.boxes)
        flt.SetFieldValue(box, MonthText(months.Holds(month) ? month : months.first));
    return year;
}

void LockEachOther(ReportFilterObject& flt, const std::string& first, const std::string& second)
{
    ForEachItem(flt, [&](FilterItem& item) {
        const std::string name = item.Name();
        if (name == first)
            LockWhileFilled(flt, item, second);
        if (name == second)
            LockWhileFilled(flt, item, first);
    });
}

void Exclude(ReportFilterObject& flt, FilterItem& item, const std::string& other)
{
    if (FilterText(item.varValue()) != kYes)
        return;
    flt.SetFieldValue(other, std::string(kNo));
    flt.SetFieldLocked(other, true);
}

}  // namespace

void OnChangeJournal(const std::string& sKey, ReportFilterObject& flt)
{
    flt.GetFieldValue(sKey);
}

void OnChangeStandardCost(const std::string& sKey, ReportFilterObject& flt)
{
    const std::string value = FilterText(flt.GetFieldValue(sKey));
    for (const LookupRule& rule : kStandardCostLookups) {
        if (!Matches(sKey, rule.key, KeyMatch::Exact))
            continue;
        if (value.empty())
            flt.SetFieldRefCondition(rule.target, "", "");
        else
            Narrow(flt, rule, value);
    }
}

void OnChangeEstimate(const std::string& sKey, ReportFilterObject& flt)
{
    for (const LookupRule& rule : kEstimateLookups)
        if (Matches(sKey, rule.key, KeyMatch::AnyCase))
            Narrow(flt, rule, ValueOfItem(flt, sKey));
    if (Matches(sKey, kEstimateYear.year, KeyMatch::AnyCase))
        BringMonths(flt, kEstimateYear, ValueOfItem(flt, sKey));
}

void OnChangeDetailLedger(const std::string& sKey, ReportFilterObject& flt)
{
    if (Matches(sKey, kDetailLedgerYear.year, KeyMatch::AnyCase))
        BringMonths(flt, kDetailLedgerYear, ValueOfItem(flt, sKey));
}

void OnChangeABC(const std::string& sKey, ReportFilterObject& flt)
{
    ForEachItem(flt, [&](FilterItem& item) {
        if (Matches(item.Name(), kAbcYear.year, KeyMatch::AnyCase) &&
            Matches(sKey, kAbcYear.year, KeyMatch::AnyCase))
            SettleCostingBasis(flt, BringMonths(flt, kAbcYear, item.varValue()));
    });
}

void OnChangeGoodsSummary(const std::string& /*sKey*/, ReportFilterObject& flt)
{
    LockEachOther(flt, "DispatchList.cDLCode", "rdrecord32.cCode");
}

void OnChangeCostItem(const std::string& /*sKey*/, ReportFilterObject& flt)
{
    LockEachOther(flt, "cDLCode", "cCode");
}

void OnChangeVoucherPosting(const std::string& /*sKey*/, ReportFilterObject& flt)
{
    ForEachItem(flt, [&](FilterItem& item) {
        const std::string name = item.Name();
        if (name == "bOutJust")
            Exclude(flt, item, "bSaleCost");
        if (name == "bSaleCost")
            Exclude(flt, item, "bOutJust");
    });
}

}  // namespace kavelin
