#include "frame/Statement.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(JoinLines, PutsALineEndBetweenThePieces)
{
    EXPECT_EQ(JoinLines({"select 1", "  from t "}), "select 1\r\n  from t ");
    EXPECT_EQ(JoinLines({"select 1"}), "select 1");
    EXPECT_EQ(JoinLines({"", ""}), "\r\n");
    EXPECT_EQ(JoinLines({}), "");
}

TEST(EndLines, PutsALineEndBehindEachPiece)
{
    EXPECT_EQ(EndLines({"select 1", "  from t "}), "select 1\r\n  from t \r\n");
    EXPECT_EQ(EndLines({""}), "\r\n");
    EXPECT_EQ(EndLines({}), "");
}

TEST(Numbered, RepeatsThePieceForEachNumber)
{
    EXPECT_EQ(Numbered(1, 3, ",line.free{} as free{}"),
              ",line.free1 as free1,line.free2 as free2,line.free3 as free3");
    EXPECT_EQ(Numbered(9, 10, " {}"), " 9 10");
    EXPECT_EQ(Numbered(2, 1, "{}"), "");
}

}  // namespace kavelin::test
