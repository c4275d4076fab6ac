#include "demo/Scripts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::demo {
namespace {

TEST(Scripts, AreSplitAtLinesThatHoldGoAlone)
{
    EXPECT_EQ(Batches("-- head\ncreate table T (a int)\nGO\n\ncreate view V as\nselect a from T\n"),
              (std::vector<std::string>{"-- head\ncreate table T (a int)\n",
                                        "\ncreate view V as\nselect a from T\n\n"}));
    EXPECT_EQ(Batches("select 1\n  go \nselect 2").size(), 2u);
    EXPECT_EQ(Batches("select go from T\nselect 'a\n-- GO\nGOTO'").size(), 1u);
}

TEST(Scripts, HaveNoBlankBatches)
{
    EXPECT_TRUE(Batches("").empty());
    EXPECT_EQ(Batches("GO\nselect 1\nGO\n\nGO\n").size(), 1u);
}

TEST(Scripts, NameTheTablesOfTheSchema)
{
    const std::vector<std::string> tables = SchemaTables();
    EXPECT_EQ(tables.size(), 34u);
    for (const char* table : {"VosSystem..UA_Period", "AccInformation", "IA_Subsidiary", "Demo_DocumentLine"})
        EXPECT_EQ(std::ranges::count(tables, table), 1) << table;
}

}  // namespace
}  // namespace kavelin::demo
