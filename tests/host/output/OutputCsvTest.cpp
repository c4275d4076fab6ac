#include "host/output/OutputCsv.h"

#include "FixedRows.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kavelin::host {
namespace {

std::string Csv(Recordset& rows, std::optional<std::int64_t> limit = std::nullopt)
{
    std::ostringstream out;
    WriteCsv(rows, limit, out);
    return out.str();
}

TEST(OutputCsv, TellsNullFromAnEmptyText)
{
    FixedRows rows({{"a", "nvarchar(5)"}, {"b", "nvarchar(5)"}}, {{Value::Null(), ""}, {"", Value::Null()}});
    EXPECT_EQ(Csv(rows),
              "a,b\r\n"
              ",\"\"\r\n"
              "\"\",\r\n");
}

TEST(OutputCsv, QuotesWhatWouldBreakALine)
{
    const struct {
        std::string_view text, field;
    } cases[] = {
        {"Bolt", "Bolt"},   {"a,b", "\"a,b\""},   {"M6 \"long\"", "\"M6 \"\"long\"\"\""},
        {"\"", "\"\"\"\""}, {"a\nb", "\"a\nb\""}, {"a\rb", "\"a\rb\""},
        {" a", "\" a\""},   {"a ", "\"a \""},     {"六角,螺栓", "\"六角,螺栓\""},
        {"NULL", "NULL"},   {"a;b'c", "a;b'c"},
    };
    for (const auto& c : cases) {
        FixedRows rows({{"x", "nvarchar(20)"}}, {{c.text}});
        EXPECT_EQ(Csv(rows), "x\r\n" + std::string(c.field) + "\r\n");
    }
}

TEST(OutputCsv, WritesValuesExactly)
{
    FixedRows rows(
        {{"资金占用额", "decimal(38,2)"}, {"f", "float"}, {"d", "datetime"}, {"b", "bit"}, {"n", "int"}},
        {{Dec("1234567.50"), 0.1, Day(2008, 2, 29), true, 1234567}});
    EXPECT_EQ(Csv(rows),
              "资金占用额,f,d,b,n\r\n"
              "1234567.50,0.1,2008-02-29,1,1234567\r\n");
}

TEST(OutputCsv, HasAHeaderLineAlsoWithoutRows)
{
    FixedRows rows({{"a", "int"}, {"b,c", "int"}}, {});
    EXPECT_EQ(Csv(rows), "a,\"b,c\"\r\n");
}

TEST(OutputCsv, ReadsNoFurtherThanItsLimit)
{
    CountingRows rows(1000);
    EXPECT_EQ(Csv(rows, 2), "n\r\n1\r\n2\r\n");
    EXPECT_EQ(rows.Field(0), Value(std::int64_t{3}));
    EXPECT_EQ(Csv(rows, 0), "n\r\n");
}

TEST(OutputCsv, IsNeverCutHoweverManyRowsThereAre)
{
    CountingRows rows(100000);
    const std::string csv = Csv(rows);
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 100001);
    EXPECT_TRUE(csv.ends_with("\r\n99999\r\n100000\r\n"));
}

}  // namespace
}  // namespace kavelin::host
