#include "filter/ReportViews.h"

#include "frame/AccountParameters.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/Text.h"

#include <string_view>

namespace kavelin {

namespace {

// The templates call it "rdGrade": keys of the filter's list are found without regard to case.
constexpr std::string_view kViewSelector = "rdgrade";

void TakeView(std::string_view selected, DialogState& state, Value& ReturnViewClass)
{
    state.strViewClass = LeadingNumber(selected) == 0 ? "ordin" : "cross";
    ReturnViewClass = state.strViewClass;
}

}  // namespace

void StockSummaryFirstView(ReportFilterObject& flt, DialogState& state, Value& ReturnViewClass)
{
    TakeView(FilterText(Existing(flt.FilterList()->Item(kViewSelector)).varValue()), state, ReturnViewClass);
}

void StockSummaryViewChange(const std::string& sKey, ReportFilterObject& flt, DialogState& state,
                            Value& ReturnViewClass)
{
    const auto item = flt.FilterList()->Item(sKey);
    const std::string selected = item ? FilterText(item->varValue()) : "";
    if (EqualsNoCase(sKey, kViewSelector))
        TakeView(Trim(selected), state, ReturnViewClass);
}

void StandardCostFirstView(ReportFilterObject& /*flt*/, DialogState& /*state*/, Value& ReturnViewClass)
{
    const bool pro = ToText(GetAccInfoValue("CA", "iCyFtMethod")) == "0";
    ReturnViewClass = pro ? "Income_Standard_Cost_Pro" : "Income_Standard_Cost";
}

void StandardCostViewChange(const std::string& /*sKey*/, ReportFilterObject& flt, DialogState& state,
                            Value& ReturnViewClass)
{
    StandardCostFirstView(flt, state, ReturnViewClass);
}

}  // namespace kavelin
