// Colours and bars of a table's cells.
#include "FixedRows.h"
#include "host/output/DisplayWidth.h"
#include "host/output/OutputTable.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kavelin::host {
namespace {

constexpr ColumnMark kMarks[] = {
    {"class", MarkKind::Class},
    {"SHARE", MarkKind::Share},
    {"deviation", MarkKind::Deviation},
};

// Escapes as their numbers in braces: "{94}A{0}".
std::string Table(Recordset& rows, TableOptions options)
{
    options.marks = kMarks;
    std::ostringstream out;
    WriteTable(rows, options, out);
    std::string text = out.str(), shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\x1b') {
            shown += text[at];
            continue;
        }
        const std::size_t end = text.find('m', at);
        shown += "{" + text.substr(at + 2, end - at - 2) + "}";
        at = end;
    }
    return shown;
}

FixedRows Shares()
{
    return FixedRows(
        {{"share", "decimal(38,2)"}, {"class", "nvarchar(10)"}},
        {{Dec("60.00"), "A"}, {Dec("15.00"), "B"}, {Dec("0.00"), "C"}, {Value::Null(), Value::Null()}});
}

}  // namespace

TEST(Bar, IsAsLongAsItsNumberToAnEighthOfAColumn)
{
    const struct {
        double number, largest;
        const char* bar;
    } cases[] = {
        {8, 8, "████████"},      {4, 8, "████    "},   {1.5, 8, "█▌      "}, {0.125, 8, "▏       "},
        {0.0001, 8, "▏       "}, {0, 8, "        "},   {0, 0, "        "},   {-4, 8, "████    "},
        {9, 8, "████████"},      {7.9, 8, "███████▉"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Bar(c.number, c.largest), c.bar) << c.number;
        EXPECT_EQ(DisplayWidth(Bar(c.number, c.largest)), kBarWidth);
    }
}

TEST(OutputTable, ShowsSharesAsBarsAndClassesInColours)
{
    FixedRows rows = Shares();
    EXPECT_EQ(Table(rows, {.colour = true}),
              "{1}share           class{0}\n"
              "{2}──────────────  ─────{0}\n"
              "60.00 {94}████████{0}  {94}A{0}\n"
              "15.00 {94}██{0}        {33}B{0}\n"
              " 0.00           {90}C{0}\n"
              "\n"
              "{2}4 rows.{0}\n");
}

TEST(OutputTable, MarksNothingWithoutColours)
{
    FixedRows rows = Shares();
    EXPECT_EQ(Table(rows, {}), "share  class\n─────  ─────\n60.00  A\n15.00  B\n 0.00  C\n\n4 rows.\n");
}

TEST(OutputTable, LeavesABarOutThatHasNoRoom)
{
    FixedRows enough = Shares();
    EXPECT_NE(Table(enough, {.width = 21, .colour = true}).find("██"), std::string::npos);
    FixedRows narrow = Shares();
    EXPECT_EQ(
        Table(narrow, {.width = 20, .colour = true}),
        "{1}share  class{0}\n{2}─────  ─────{0}\n60.00  {94}A{0}\n15.00  {33}B{0}\n 0.00  {90}C{0}\n\n{2}4 rows.{0}\n");
}

TEST(OutputTable, ColoursDeviationsByTheirSide)
{
    FixedRows rows({{"deviation", "decimal(38,1)"}}, {{Dec("5.0")}, {Dec("-10.0")}, {Dec("0.0")}});
    EXPECT_EQ(Table(rows, {.colour = true}),
              "{1}deviation{0}\n"
              "{2}──────────────────{0}\n"
              "      {31}5.0{0} {31}████{0}\n"
              "    {32}-10.0{0} {32}████████{0}\n"
              "      0.0\n"
              "{2}3 rows.{0}\n");
}

TEST(OutputTable, MarksNoTotals)
{
    FixedRows rows({{"name", "nvarchar(9)"}, {"share", "int"}}, {{"x", 8}, {"y", 4}});
    FixedRows totals({{"share", "int"}}, {{12}});
    EXPECT_EQ(Table(rows, {.colour = true, .totals = {&totals, "Total"}}),
              "{1}name   share{0}\n"
              "{2}─────  ──────────────{0}\n"
              "x          8 {94}████████{0}\n"
              "y          4 {94}████{0}\n"
              "{2}─────  ──────────────{0}\n"
              "{1}Total     12{0}\n"
              "{2}2 rows.{0}\n");
}

}  // namespace kavelin::host
