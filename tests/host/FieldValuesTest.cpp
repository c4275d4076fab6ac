#include "host/FieldValues.h"

#include "host/FilterInput.h"
#include "host/HostErrors.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::host {
namespace {

TEST(FieldValues, TakeAYearAMonthAndAPeriodInTheFormsThatPeopleWrite)
{
    const struct {
        std::string_view text, year, month, period;
    } cases[] = {
        {"2008", "2008", "", ""},
        {" 2008年 ", "2008", "", ""},
        {"08", "", "8月", ""},
        {"7", "", "7月", ""},
        {"7月", "", "7月", ""},
        {"12", "", "12月", ""},
        {"13", "", "", ""},
        {"0", "", "", ""},
        {"-1", "", "", ""},
        {"2008.07", "", "", "2008.07"},
        {"2008.7", "", "", "2008.07"},
        {"2008-07", "", "", "2008.07"},
        {"2008/7", "", "", "2008.07"},
        {"2008年7月", "", "", "2008.07"},
        {"2008.13", "", "", ""},
        {"2008-07-01", "", "", ""},
        {"08.07", "", "", ""},
        {"", "", "", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(YearText(c.text).value_or(""), c.year) << c.text;
        EXPECT_EQ(MonthText(c.text).value_or(""), c.month) << c.text;
        EXPECT_EQ(PeriodText(c.text).value_or(""), c.period) << c.text;
    }
}

const FilterTemplate& Months()
{
    static const FilterTemplate filter = ParseFilterTemplate("test", R"json({"fields": [
        {"key": "iMonth", "caption": {"zh-CN": "月", "en-US": "Month"}, "kind": "month", "range": true},
        {"key": "iPeriod", "caption": {"zh-CN": "期间", "en-US": "Period"}, "kind": "period", "range": true,
         "bothEnds": true},
        {"key": "iYear", "caption": {"zh-CN": "年", "en-US": "Year"}, "kind": "year"},
        {"key": "cType", "caption": {"zh-CN": "类型", "en-US": "Type"}, "kind": "list", "multiple": true}
    ]})json");
    return filter;
}

std::string Refusal(std::string_view assignment)
{
    try {
        FilterInput(Months(), ValuePolicy::Checked).Set(assignment);
    } catch (const UsageError& e) {
        return e.what();
    }
    return "";
}

TEST(FieldValues, MonthsAreHeldWithTheirSignAndComparedAsNumbers)
{
    FilterInput input(Months(), ValuePolicy::Checked);
    input.Set("iMonth=9..10");
    input.Set("iPeriod=2008-09..2008年10月");
    EXPECT_EQ(input.Fields()[0].from + " " + input.Fields()[0].to, "9月 10月");
    EXPECT_EQ(input.Fields()[1].from + " " + input.Fields()[1].to, "2008.09 2008.10");
    EXPECT_TRUE(input.Fields()[0].given);
    EXPECT_FALSE(input.Fields()[2].given);
    EXPECT_EQ(Refusal("iMonth=10..9"), "iMonth: the range begins with 10月 and ends before it, with 9月.");
    EXPECT_EQ(Refusal("iPeriod=2009.01..2008.12"),
              "iPeriod: the range begins with 2009.01 and ends before it, with 2008.12.");
}

TEST(FieldValues, RefuseWhatIsNoMonthOrYearOrLacksAnEnd)
{
    EXPECT_EQ(Refusal("iYear=08"), "iYear: \"08\" is not what it takes, which is an accounting year, YYYY.");
    EXPECT_EQ(
        Refusal("iMonth=March"),
        "iMonth: \"March\" is not what it takes, which is a month, 1 to 12, or a range FROM..TO of which either "
        "end may be missing.");
    EXPECT_EQ(Refusal("iPeriod=2008.01.."),
              "iPeriod: it takes both ends, a month of a year, YYYY.MM, or a range FROM..TO.");
    EXPECT_EQ(Refusal("iPeriod="), "");
}

TEST(FieldValues, AListWithoutEntriesTakesWhatTheDialogWillJudge)
{
    EXPECT_EQ(Refusal("cType=anything"), "");
    EXPECT_EQ(WhatItTakes(*Months().Find("cType")),
              "one of those that the dialog offers, several times if wanted");
}

}  // namespace
}  // namespace kavelin::host
