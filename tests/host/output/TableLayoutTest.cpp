#include "host/output/TableLayout.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

using Widths = std::vector<int>;

TEST(FitColumns, GivesEachItsNaturalWidthWhereThereIsRoom)
{
    EXPECT_EQ(FitColumns({{5, 3, true}, {4, 30, false}}, 37), (Widths{5, 30}));
    EXPECT_EQ(FitColumns({{5, 3, true}, {4, 300, false}}, 0), (Widths{5, 300}));
    EXPECT_EQ(FitColumns({{0, 0, false}}, 80), Widths{1});
    EXPECT_EQ(FitColumns({}, 80), Widths{});
}

TEST(FitColumns, ShrinksTheWidestFirst)
{
    // 10 + 2 + 30 + 2 + 20 = 64 becomes 50 once the two wide ones have 18 each.
    EXPECT_EQ(FitColumns({{4, 10, false}, {4, 30, false}, {4, 20, false}}, 50), (Widths{10, 18, 18}));
}

TEST(FitColumns, CutsHeadingsOfTextsBeforeTheTexts)
{
    EXPECT_EQ(FitColumns({{12, 2, false}, {4, 14, false}}, 24), (Widths{8, 14}));
    EXPECT_EQ(FitColumns({{12, 2, false}, {4, 14, false}}, 20), (Widths{6, 12}));
    // The heading of a number says what it is of, so it shrinks with the texts only.
    EXPECT_EQ(FitColumns({{12, 1, true}, {4, 14, false}}, 22), (Widths{10, 10}));
}

TEST(FitColumns, CutsNoNumber)
{
    EXPECT_EQ(FitColumns({{8, 8, false}, {15, 12, true}}, 20), (Widths{6, 12}));
    EXPECT_EQ(FitColumns({{8, 8, false}, {15, 12, true}}, 12), (Widths{8, 0}));
}

TEST(FitColumns, LeavesOutFromTheMiddleAndNeverTheFirst)
{
    const std::vector<ColumnNeed> needs = {{4, 8, false}, {4, 8, false}, {4, 8, false}, {4, 12, true}};
    EXPECT_EQ(FitColumns(needs, 36), (Widths{6, 6, 6, 12}));
    EXPECT_EQ(FitColumns(needs, 35), (Widths{8, 8, 0, 12}));
    EXPECT_EQ(FitColumns(needs, 21), (Widths{7, 0, 0, 12}));
    EXPECT_EQ(FitColumns(needs, 12), (Widths{8, 0, 0, 0}));
    EXPECT_EQ(FitColumns(needs, 3), (Widths{6, 0, 0, 0}));
}

TEST(FitColumns, CutsNoCodeThatIsToStayWhole)
{
    EXPECT_EQ(FitColumns({{4, 10, false, true}, {4, 30, false}}, 24), (Widths{10, 12}));
    EXPECT_EQ(FitColumns({{20, 10, false, true}, {4, 30, false}}, 20), (Widths{10, 8}));
}

TEST(FitColumns, LeavesOutRanksWhereACellWouldBeCutForThem)
{
    const std::vector<ColumnNeed> needs = {
        {4, 8, false}, {4, 8, true, false, 2}, {4, 8, true}, {4, 8, true, false, 2}, {4, 8, false, false, 3}};
    EXPECT_EQ(FitColumns(needs, 48), (Widths{8, 8, 8, 8, 8}));
    EXPECT_EQ(FitColumns(needs, 47), (Widths{8, 8, 8, 8, 0}));
    EXPECT_EQ(FitColumns(needs, 37), (Widths{8, 0, 8, 0, 0})) << "all of a rank together";
    EXPECT_EQ(FitColumns(needs, 17), (Widths{7, 0, 8, 0, 0}));
}

TEST(FitColumns, LeavesOutNamesFromTheLeftBeforeOtherColumns)
{
    const std::vector<ColumnNeed> needs = {
        {4, 8, false}, {4, 8, false, false, kName}, {4, 8, false}, {4, 8, false, false, kName}, {4, 8, true}};
    EXPECT_EQ(FitColumns(needs, 40), (Widths{6, 6, 6, 6, 8})) << "names are cut first";
    EXPECT_EQ(FitColumns(needs, 37), (Widths{7, 0, 8, 8, 8}));
    EXPECT_EQ(FitColumns(needs, 31), (Widths{8, 0, 8, 0, 8}));
    EXPECT_EQ(FitColumns(needs, 20), (Widths{8, 0, 0, 0, 8}));
}

}  // namespace
}  // namespace kavelin::host
