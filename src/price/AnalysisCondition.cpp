#include "price/AnalysisCondition.h"

#include "frame/Errors.h"
#include "frame/FilterWalk.h"
#include "frame/Text.h"

#include <vector>

namespace kavelin {

namespace {

std::string TwoDigits(std::string_view number)
{
    const std::string digits = std::to_string(ToInt32(Value(number)));
    return digits.size() < 2 ? "0" + digits : digits;
}

// Year and month are limited each by itself. The bracket opens with the first month and closes with the last.
std::string AverageRange(XmlNode& node)
{
    std::string range;
    const std::string from = FilterText(node.getAttribute("value"));
    if (!from.empty()) {
        const YearAndMonth first = SplitMonth(from);
        range += " and  ( s.iYear >=  " + first.year + " and  s.iMonth >= " + first.month;
    }
    const std::string to = FilterText(node.getAttribute("value1"));
    if (!to.empty()) {
        const YearAndMonth last = SplitMonth(to);
        range += " and s.iYear <=  " + last.year + " and  s.iMonth <= " + last.month + ")";
    }
    return range;
}

void TakeMonth(const std::string& text, AnalysisCondition& condition)
{
    const YearAndMonth month = SplitMonth(text);
    condition.intYear = ToInt16(Value(month.year));
    condition.strMonth = TwoDigits(month.month);
}

std::string OutputFilter(const std::string& text)
{
    const double ratio = ToDouble(Value(text));
    return ratio == 0 ? "" : " where abs(DiffRatio) >= " + ToText(Value(ratio));
}

}  // namespace

YearAndMonth SplitMonth(std::string_view text)
{
    const std::vector<std::string> parts = Split(text, ".");
    if (parts.size() < 2)
        throw Error("Subscript out of range: \"" + std::string(text) + "\" is no year and month");
    return {parts[0], parts[1]};
}

std::string WriteCondition(const ConditionValues& values)
{
    // clang-format off
    return "<condition>"
           "<ShowType> " + values.strShowType + " </ShowType>"
           "<iMonth> " + values.strMonth + " </iMonth>"
           "<isJc> " + (values.blnVoucherLevel ? "1" : "0") + " </isJc>"
           "<BP> " + values.strBasePrice + " </BP>"
           "<avgMonth value = '" + values.strAvgFrom + "' value1 = '" + values.strAvgTo + "'> s </avgMonth> "
           "<avgPrices> " + values.strAvgKind + " </avgPrices>"
           "<DiffRatio> " + ToText(Value(values.dblDiffRatio)) + " </DiffRatio>"
           "</condition>";
    // clang-format on
}

AnalysisCondition ReadCondition(XmlNode& root)
{
    AnalysisCondition condition;
    for (const auto& node : root.childNodes()) {
        const std::string name = node->nodeName();
        if (name == "iMonth")
            TakeMonth(node->text(), condition);
        else if (name == "ShowType")
            condition.strShowType = node->text();
        else if (name == "BP")
            condition.dblBasePrice = LeadingNumber(node->text());
        else if (name == "avgPrices")
            condition.dblAvgKind = LeadingNumber(node->text());
        else if (name == "avgMonth")
            condition.strAvgRange = AverageRange(*node);
        else if (name == "DiffRatio")
            condition.strOutputFilter = OutputFilter(node->text());
        else if (name == "isJc")
            condition.blnVoucherLevel = ToDouble(Value(node->text())) != 0;
    }
    return condition;
}

}  // namespace kavelin
