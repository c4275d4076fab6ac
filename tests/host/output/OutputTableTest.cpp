#include "host/output/OutputTable.h"

#include "FixedRows.h"
#include "host/output/DisplayWidth.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kavelin::host {
namespace {

std::string Table(Recordset& rows, const TableOptions& options = {})
{
    std::ostringstream out;
    WriteTable(rows, options, out);
    return out.str();
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

TEST(GroupThousands, PutsACommaBetweenThousandsOnly)
{
    const struct {
        std::string_view number, grouped;
    } cases[] = {
        {"0", "0"},
        {"999", "999"},
        {"1000", "1,000"},
        {"-100", "-100"},
        {"-1234567.50", "-1,234,567.50"},
        {"0.123456", "0.123456"},
        {"1E+20", "1E+20"},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GroupThousands(c.number), c.grouped);
}

TEST(OutputTable, AlignsNumbersRightAndWideTextByItsColumns)
{
    FixedRows rows(
        {{"cNo", "int"}, {"cInvName", "nvarchar(60)"}, {"资金占用额", "decimal(38,2)"}, {"b", "bit"}},
        {{1, "六角头螺栓", Dec("1234567.50"), true},
         {2, "Nut", Dec("-0.05"), false},
         {10, Value::Null(), Value::Null(), Value::Null()}});
    EXPECT_EQ(Table(rows),
              "cNo  cInvName      资金占用额  b\n"
              "───  ──────────  ────────────  ─\n"
              "  1  六角头螺栓  1,234,567.50  1\n"
              "  2  Nut                -0.05  0\n"
              " 10\n"
              "3 rows.\n");
}

TEST(OutputTable, ShowsSixDecimalsOfAFloatUnlessTheyWouldSayNothing)
{
    const struct {
        double number;
        const char* shown;
    } cases[] = {
        {3262.49666666667, "3,262.496667"},
        {-1.23456789, "-1.234568"},
        {0.00000123456789, "1.23456789E-06"},
        {0.000987654321, "0.000987654321"},
        {2.9999999996, "3"},
        {99999999999.25, "99,999,999,999.25"},
        {0.5, "0.5"},
        {0, "0"},
    };
    for (const auto& c : cases) {
        FixedRows rows({{"n", "float"}}, {{Value(c.number)}});
        const std::string table = Table(rows);
        EXPECT_NE(table.find(std::string(c.shown) + "\n"), std::string::npos) << c.shown << "\n" << table;
    }
}

TEST(OutputTable, SaysWhenThereAreNoRows)
{
    FixedRows rows({{"a", "int"}, {"b", "nvarchar(9)"}}, {});
    EXPECT_EQ(Table(rows),
              "a  b\n"
              "─  ─\n"
              "No rows.\n");
}

TEST(OutputTable, CutsLongTextToTheWidthButNoNumber)
{
    FixedRows rows({{"code", "nvarchar(20)"}, {"name", "nvarchar(60)"}, {"amount", "money"}},
                   {{"A-01", "a very long name of a thing", Dec("12345.6700")}});
    const auto lines = Lines(Table(rows, {.limit = {}, .width = 30, .colour = false, .whole = false}));
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[2], "A-01  a very lon…  12,345.6700");
}

TEST(OutputTable, FitsItsWidthAndNamesTheColumnsLeftOut)
{
    FixedRows rows({{"code", "nvarchar(20)"},
                    {"first name", "nvarchar(60)"},
                    {"second", "nvarchar(60)"},
                    {"sum", "int"}},
                   {{"A-01", "aaaaaaaaaaaa", "bbbbbbbbbbbb", 1234567}});
    const auto lines = Lines(Table(rows, {.limit = {}, .width = 23, .colour = false, .whole = false}));
    ASSERT_EQ(lines.size(), 5u);
    for (int line = 0; line < 3; ++line)
        EXPECT_LE(DisplayWidth(lines[line]), 23) << lines[line];
    EXPECT_EQ(lines[2], "A-01  aaaaa…  1,234,567");
    EXPECT_EQ(lines[4], "No room for 1 column: second. The csv and json forms show all.");
}

TEST(OutputTable, ShowsTheFirstAndLastRowsOfALongResult)
{
    CountingRows rows(12345);
    const auto lines = Lines(Table(rows));
    ASSERT_EQ(lines.size(), 2u + 20 + 1 + 10 + 1);
    EXPECT_EQ(lines[2], "     1");
    EXPECT_EQ(lines[21], "    20");
    EXPECT_EQ(lines[22], "     …");
    EXPECT_EQ(lines[23], "12,336");
    EXPECT_EQ(lines[32], "12,345");
    EXPECT_EQ(lines[33], "Rows 1 to 20 and the last 10 of 12,345.");
}

TEST(OutputTable, HasNoGapWhereNothingIsLeftOut)
{
    CountingRows rows(30);
    const auto lines = Lines(Table(rows));
    ASSERT_EQ(lines.size(), 33u);
    EXPECT_EQ(lines[31], "30");
    EXPECT_EQ(lines[32], "30 rows.");
    CountingRows one(1);
    EXPECT_EQ(Lines(Table(one)).back(), "1 row.");
}

TEST(OutputTable, TakesALimitAtItsWord)
{
    CountingRows rows(12345);
    auto lines = Lines(Table(rows, {.limit = 40, .width = 0, .colour = false, .whole = false}));
    ASSERT_EQ(lines.size(), 43u);
    EXPECT_EQ(lines[41], "40");
    EXPECT_EQ(lines[42], "The first 40 rows. There are more.");

    CountingRows again(12345);
    lines = Lines(Table(again, {.limit = 5000, .width = 0, .colour = false, .whole = false}));
    ASSERT_EQ(lines.size(), 34u);
    EXPECT_EQ(lines[32], "5,000");
    EXPECT_EQ(lines[33], "Rows 1 to 20 and the last 10 of 5,000 read. There are more.");
}

TEST(OutputTable, ColoursOnlyWhenAsked)
{
    CountingRows rows(1);
    EXPECT_EQ(Table(rows, {.limit = {}, .width = 0, .colour = true, .whole = false}),
              "\x1b[1mn\x1b[0m\n\x1b[2m─\x1b[0m\n1\n\x1b[2m1 row.\x1b[0m\n");
}

TEST(OutputTable, PartsLinesFromOpeningsAndTotals)
{
    FixedRows rows({{"flag", "int"}, {"text", "nvarchar(20)"}},
                   {{0, "opening"}, {1, "a"}, {1, "b"}, {2, "month"}, {3, "so far"}, {1, "c"}});
    TableOptions options;
    options.isLine = [&] { return ToInt32(rows.Field(0)) == 1; };
    EXPECT_EQ(Table(rows, options),
              "flag  text\n"
              "────  ───────\n"
              "   0  opening\n"
              "────  ───────\n"
              "   1  a\n"
              "   1  b\n"
              "────  ───────\n"
              "   2  month\n"
              "   3  so far\n"
              "────  ───────\n"
              "   1  c\n"
              "6 rows.\n");

    options.colour = true;
    rows.MoveFirst();
    const auto lines = Lines(Table(rows, options));
    EXPECT_EQ(lines.at(2), "\x1b[1m   0  opening\x1b[0m");
    EXPECT_EQ(lines.at(4), "   1  a");
}

TEST(OutputTable, LetsNoValueSteerTheTerminal)
{
    FixedRows rows({{"x", "nvarchar(20)"}}, {{"a\x1b[2Jb\nc"}});
    EXPECT_EQ(Lines(Table(rows))[2], "a\uFFFD[2Jb c");
}

TEST(OutputTable, ShowsHeadingsInThePlaceOfNames)
{
    FixedRows rows({{"cInvCode", "nvarchar(20)"}, {"n", "int"}}, {{"A-01", 5}});
    TableOptions options;
    options.columns = {{"CINVCODE", "存货"}};
    EXPECT_EQ(Table(rows, options),
              "存货  n\n"
              "────  ─\n"
              "A-01  5\n"
              "1 row.\n");
}

TEST(OutputTable, LeavesOutColumnsByTheirRankAndNamesThemAsTheMachineFormsDo)
{
    FixedRows rows({{"a", "nvarchar(20)"}, {"b", "nvarchar(20)"}, {"c", "int"}}, {{"first", "second", 3}});
    TableOptions options;
    options.columns = {{"b", "Heading", false, 2}};
    options.width = 14;
    EXPECT_EQ(Table(rows, options),
              "a      c\n"
              "─────  ─\n"
              "first  3\n"
              "1 row.\n"
              "No room for 1 column: b. The csv and json forms show all.\n");
}

// Whatever order its columns have, and however few rows the limit lets through.
TEST(OutputTable, SetsTotalsBelowTheColumnsOfTheirNames)
{
    FixedRows rows({{"code", "nvarchar(20)"}, {"name", "nvarchar(20)"}, {"n", "int"}, {"m", "decimal(9,2)"}},
                   {{"A", "x", 1, Dec("0.50")}, {"B", "y", 2, Dec("0.25")}});
    FixedRows totals({{"M", "decimal(38,2)"}, {"n", "int"}, {"other", "int"}}, {{Dec("1234.75"), 3, 9}});
    TableOptions options;
    options.totals = {&totals, "Total"};
    options.limit = 1;
    EXPECT_EQ(Table(rows, options),
              "code   name  n         m\n"
              "─────  ────  ─  ────────\n"
              "A      x     1      0.50\n"
              "─────  ────  ─  ────────\n"
              "Total        3  1,234.75\n"
              "The first 1 row. There are more.\n");
}

TEST(OutputTable, ShowsNoTotalsOfNoRows)
{
    FixedRows rows({{"n", "int"}}, {});
    FixedRows totals({{"n", "int"}}, {{Value::Null()}});
    TableOptions options;
    options.totals = {&totals, "Total"};
    EXPECT_EQ(Table(rows, options), "n\n─\nNo rows.\n");
}

TEST(OutputTable, KeepsATotalOfTheFirstColumn)
{
    FixedRows rows({{"n", "int"}}, {{1}, {2}});
    FixedRows totals({{"n", "int"}}, {{3}});
    TableOptions options;
    options.totals = {&totals, "Total"};
    EXPECT_EQ(Table(rows, options), "n\n─\n1\n2\n─\n3\n2 rows.\n");
}

}  // namespace
}  // namespace kavelin::host
