#include "analysis/ProPortionFilter.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(BuildRangeWhere, AddsAConditionForEachEndThatHasAValue)
{
    const struct {
        FakeField field;
        std::string_view where;
    } cases[] = {
        {{"cinvcode", "A", "B"}, " 1=1  And IA_Subsidiary.cinvcode>='A' And IA_Subsidiary.cinvcode<='B'"},
        {{"cinvcode", "A"}, " 1=1  And IA_Subsidiary.cinvcode>='A'"},
        {{"cinvcode", "", "B"}, " 1=1  And IA_Subsidiary.cinvcode<='B'"},
        {{"cwhcode", "01", "02"}, " 1=1  And IA_Subsidiary.cWhCode>='01' And IA_Subsidiary.cWhCode<='02'"},
        {{"cinvccode", "1", "2"}, " 1=1  And  cinvccode>='1' And  cinvccode<='2'"},
        {{"imonth", "2008-01-01", "2008-07-31"},
         " 1=1  and dkeepdate >= '2008-01-01' and dkeepdate <= '2008-07-31'"},
        {{"cNo", "10", "20"}, " 1=1 "},
        {{"other", "x", "y"}, " 1=1 "},
        {{"cinvcode"}, " 1=1 "},
        {{"cinvcode", Value::Null(), Value::Null()}, " 1=1 "},
        {{"CINVCODE", "A"}, " 1=1  And IA_Subsidiary.cinvcode>='A'"},
        {{"cWhCode", "O'Neil"}, " 1=1  And IA_Subsidiary.cWhCode>='O'Neil'"},
        {{"cinvcode", " "}, " 1=1  And IA_Subsidiary.cinvcode>=' '"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.SetFilter({c.field});
        EXPECT_EQ(BuildRangeWhere(*host.Filter()), c.where) << c.field.name;
    }
}

TEST(BuildRangeWhere, FollowsTheOrderOfTheItems)
{
    RecordingHost host;
    host.SetFilter({{"imonth", "2008-01-01"}, {"cNo", "3"}, {"cinvcode", "A"}, {"imonth", "", "2008-12-31"}});
    EXPECT_EQ(
        BuildRangeWhere(*host.Filter()),
        " 1=1  and dkeepdate >= '2008-01-01' And IA_Subsidiary.cinvcode>='A' and dkeepdate <= '2008-12-31'");
}

TEST(BuildRangeWhere, StoresTheTokenInEveryItemBeforeItReadsIt)
{
    RecordingHost host;
    host.SetFilter({{"cinvcode", "A"}, {"other"}});
    BuildRangeWhere(*host.Filter());
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{1, 1}));
    EXPECT_EQ(host.Events().Text(),
              "RawFilter.FilterList\n"
              "FilterList.Count\n"
              "FilterList.Item 1\n"
              "cinvcode.LngGrouptoken = 1\n"
              "cinvcode.Name\n"
              "cinvcode.varValue\n"
              "cinvcode.varValue2\n"
              "FilterList.Item 2\n"
              "other.LngGrouptoken = 1\n"
              "other.Name\n");
}

TEST(BuildRankWhere, CutsByCNoOnlyIfItHasAValue)
{
    const struct {
        std::vector<FakeField> fields;
        std::string_view where;
    } cases[] = {
        {{}, " 1=1 "},
        {{{"cNo"}}, " 1=1 "},
        {{{"cNo", ""}}, " 1=1 "},
        {{{"cNo", Value::Null()}}, " 1=1 "},
        {{{"cNo", "10"}}, " 1=1    and cNo<=10"},
        {{{"CNO", 10}}, " 1=1    and cNo<=10"},
        {{{"cNo", "", "10"}}, " 1=1 "},
        {{{"cinvcode", "A", "B"}, {"cNo", "5"}}, " 1=1    and cNo<=5"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.SetFilter(c.fields);
        EXPECT_EQ(BuildRankWhere(*host.Filter()), c.where);
        for (const std::int32_t token : host.Filter()->Tokens())
            EXPECT_EQ(token, 1);
    }
}

}  // namespace kavelin::test
