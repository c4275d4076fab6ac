#include "goods/TemplateFilter.h"

#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Text.h"
#include "goods/GoodsClauses.h"

#include <algorithm>

namespace kavelin {

namespace {

constexpr std::int32_t kHandledHere = 1;
constexpr std::int32_t kLeftToTheFilter = 0;

// Each date's conditions up to their values. The second date of a posting period has no N before it.
struct DateKey {
    std::string_view column, both, between;
};

// clang-format off
constexpr DateKey kDates[] = {
    {"Ia_Ensubsidiary.dVouDate",  " Ia_Ensubsidiary.dVouDate Between N'",  "' And N'"},
    {"Ia_Ensubsidiary.dKeepDate", " Ia_Ensubsidiary.dKeepDate Between N'", "' And '" },
};
// clang-format on

const DateKey* DateOf(const std::string& name)
{
    const auto found = std::ranges::find(kDates, name, &DateKey::column);
    return found == std::end(kDates) ? nullptr : found;
}

// The period's condition on a date; nothing if both ends are empty.
std::string InPeriod(const DateKey& date, const std::string& from, const std::string& to)
{
    if (!from.empty() && !to.empty())
        return std::string(date.both) + from + std::string(date.between) + to + "' ";
    if (!from.empty())
        return std::string(date.column) + " >= N'" + from + "'";
    return to.empty() ? "" : std::string(date.column) + " <= N'" + to + "'";
}

// Consignment stands in the ledger by its long or by its short name.
std::string OfBusinessType(const std::string& value)
{
    if (value == "全部")
        return "";
    if (value == "委托代销")
        return "(Ia_Ensubsidiary.cBustype= N'委托代销'"
               " OR Ia_Ensubsidiary.cBustype= N'委托')";
    return "Ia_Ensubsidiary.cBustype= N'" + value + "'";
}

class Walk {
  public:
    Walk(TemplatePass pass, TemplateChoices& choices) : objPass(pass), objChoices(choices) {}

    void Take(FilterItem& item)
    {
        item.SetLngGrouptoken(kHandledHere);
        const std::string name = item.Name();
        const auto value = [&] { return FilterText(item.varValue()); };

        if (name == "Inventory.cInvCCode")
            Add("Inventory.cInvCCode Like N'" + value() + "%'");
        else if (name == "Ia_Ensubsidiary.cBustype")
            Add(OfBusinessType(value()));
        else if (name == "iUnitNumber")
            objChoices.lngUnitNumber = GoodsUnitNumber(item.varValue());
        else if (const DateKey* date = DateOf(name))
            TakeDates(*date, item);
        else if (name == "iYear")
            TakeYear(value());
        else if (name == "IsMerge")
            objChoices.strIsMerge = value();
        else
            item.SetLngGrouptoken(kLeftToTheFilter);
    }

    // The where text with the pass's condition on the month behind it.
    std::string Finish()
    {
        const std::string month = objPass == TemplatePass::Opening
                                      ? " (Isnull(imonth,0)=0 " + strBeforePeriod + ") "
                                      : " Isnull(imonth,0)<>0 ";
        Add(std::string(Trim(month)));
        return strWhere;
    }

  private:
    void Add(const std::string& clause)
    {
        if (!clause.empty())
            strWhere = (strWhere.empty() ? "Where " : strWhere + " And ") + clause;
    }

    void TakeDates(const DateKey& date, FilterItem& item)
    {
        const std::string from = FilterText(item.varValue());
        const std::string to = FilterText(item.varValue2());
        if (objPass == TemplatePass::Movement)
            Add(InPeriod(date, from, to));
        else if (!from.empty())
            strBeforePeriod += " Or " + std::string(date.column) + " < '" + from + "'";
    }

    void TakeYear(const std::string& year)
    {
        InitLedgerParams(year);
        if (!year.empty())
            Add(" iyear =" + year);
    }

    TemplatePass objPass;
    TemplateChoices& objChoices;
    std::string strWhere;
    std::string strBeforePeriod;  // alternatives to a line brought forward
};

}  // namespace

std::string BuildTemplateWhere(ReportFilterObject& objFilter, TemplatePass pass, TemplateChoices& choices)
{
    Walk walk(pass, choices);
    ForEachItem(objFilter, [&](FilterItem& item) { walk.Take(item); });
    const std::string where = walk.Finish();

    const std::string left = objFilter.GetWhereWithToken(kLeftToTheFilter);
    return left.empty() ? where : where + " And " + left;
}

std::int32_t GetGrade(ReportFilterObject& objFilter, std::string_view strKey)
{
    std::int32_t grade = 0;
    ForEachItem(objFilter, [&](FilterItem& item) {
        if (item.Name() != strKey)
            return;
        const std::string value = FilterText(item.varValue());
        grade = value.empty() ? 0 : ToInt32(value);
    });
    return grade;
}

}  // namespace kavelin
