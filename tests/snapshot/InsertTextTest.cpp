#include "snapshot/InsertText.h"

#include <gtest/gtest.h>

namespace kavelin::snapshot {
namespace {

const std::vector<std::string> kColumns = {"a", "b"};
const std::vector<std::string> kRow = {"1", "N'x'"};

TEST(InsertText, HoldsTheRowsInOneStatement)
{
    InsertText text("T", kColumns);
    text.Add(kRow);
    text.Add(std::vector<std::string>{"null", "N''"});
    EXPECT_EQ(text.Take(), "insert into T (a, b) values\r\n(1, N'x'),\r\n(null, N'')");
    EXPECT_TRUE(text.IsEmpty());
    text.Add(kRow);
    EXPECT_EQ(text.Take(), "insert into T (a, b) values\r\n(1, N'x')");
}

TEST(InsertText, IsFullAtTheRowsThatAServerTakes)
{
    InsertText text("T", kColumns);
    for (int row = 1; row <= 1000; ++row) {
        EXPECT_FALSE(text.IsFull()) << row;
        text.Add(kRow);
    }
    EXPECT_TRUE(text.IsFull());
}

TEST(InsertText, IsFullEarlierWhereRowsAreWide)
{
    InsertText many("T", kColumns);
    const std::vector<std::string> row(117, "null");
    for (; !many.IsFull(); many.Add(row)) {
    }
    EXPECT_LT(many.Take().size(), 100'000u);

    InsertText large("T", kColumns);
    large.Add(std::vector<std::string>{std::string(300'000, 'x'), "1"});
    EXPECT_TRUE(large.IsFull());
}

}  // namespace
}  // namespace kavelin::snapshot
