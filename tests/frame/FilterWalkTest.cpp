#include "frame/FilterWalk.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(FilterText, IsEmptyForAnEmptyAndANullValue)
{
    EXPECT_EQ(FilterText(Value()), "");
    EXPECT_EQ(FilterText(Value::Null()), "");
    EXPECT_EQ(FilterText(""), "");
    EXPECT_EQ(FilterText(20), "20");
    EXPECT_EQ(FilterText("01"), "01");
}

TEST(ForEachItem, WalksTheFilterListFromOneToCount)
{
    RecordingHost host;
    host.SetFilter({{"cNo"}, {"imonth"}});
    std::string names;
    ForEachItem(*host.Filter(), [&](FilterItem& item) { names += item.Name() + " "; });
    EXPECT_EQ(names, "cNo imonth ");
    EXPECT_EQ(host.Events().Text(),
              "RawFilter.FilterList\nFilterList.Count\n"
              "FilterList.Item 1\ncNo.Name\n"
              "FilterList.Item 2\nimonth.Name\n");
}

}  // namespace kavelin::test
