#include "embedded/syntax/Position.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

TEST(LineAndColumn, CountsLinesAndCharactersFromOne)
{
    const std::string_view text = "ab\r\nc\nd\r直运x\r\n\r\ny";
    const struct {
        std::string_view before;
        std::size_t line, column;
    } cases[] = {
        {"a", 1, 1},  {"b", 1, 2},  {"\r\n", 1, 3}, {"c", 2, 1}, {"d", 3, 1},
        {"直", 4, 1}, {"运", 4, 2}, {"x", 4, 3},    {"y", 6, 1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(LineAndColumn(text, text.find(c.before)), (LineColumn{c.line, c.column})) << c.before;
}

TEST(LineAndColumn, TakesAnOffsetBeyondTheTextAsItsEnd)
{
    EXPECT_EQ(LineAndColumn("", 0), (LineColumn{1, 1}));
    EXPECT_EQ(LineAndColumn("ab", 2), (LineColumn{1, 3}));
    EXPECT_EQ(LineAndColumn("ab", 99), (LineColumn{1, 3}));
    EXPECT_EQ(LineAndColumn("ab\n", 99), (LineColumn{2, 1}));
}

}  // namespace
}  // namespace kavelin::embedded
