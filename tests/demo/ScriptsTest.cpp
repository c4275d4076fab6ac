#include "demo/Scripts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::demo {
namespace {

TEST(Scripts, LoseTheirCommentsAndKeepTheirLines)
{
    const struct {
        std::string_view script, text;
    } cases[] = {
        {"-- head\ncreate table T (\n    a int, -- it's a\n    b int\n)\n",
         "\ncreate table T (\n    a int, \n    b int\n)\n"},
        {"insert into T values ('--', 'it''s -- one')", "insert into T values ('--', 'it''s -- one')"},
        {"select 1 -- end", "select 1 "},
        {"select 3 - -2", "select 3 - -2"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WithoutComments(c.script), c.text);
}

TEST(Scripts, NameTheTablesOfTheSchema)
{
    const std::vector<std::string> tables = SchemaTables();
    EXPECT_EQ(tables.size(), 25u);
    for (const char* table : {"VosSystem..UA_Period", "AccInformation", "IA_Subsidiary", "ia_accountarea"})
        EXPECT_EQ(std::ranges::count(tables, table), 1) << table;
}

}  // namespace
}  // namespace kavelin::demo
