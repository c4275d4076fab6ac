#include "host/output/DisplayWidth.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

TEST(DisplayWidth, CountsWideCharactersTwiceAndCombiningOnesNotAtAll)
{
    const struct {
        std::string_view text;
        int width;
    } cases[] = {
        {"", 0},     {"abc", 3}, {"é", 1},        {"e\u0301", 1}, {"六角头螺栓", 10},
        {"ＡＢ", 4}, {"ｱ", 1},   {"한글", 4},     {"　", 2},      {"，", 2},
        {"…", 1},    {"𠀀", 2},  {"a\u200Bb", 2}, {"×", 1},       {"📦", 2},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DisplayWidth(c.text), c.width) << c.text;
}

TEST(CutToWidth, EndsACutTextInAnEllipsisThatCounts)
{
    const struct {
        std::string_view text;
        int width;
        std::string_view cut;
    } cases[] = {
        {"screws", 6, "screws"},
        {"screws", 5, "scre…"},
        {"screws", 1, "…"},
        {"screws", 0, ""},
        {"", 0, ""},
        {"六角头", 6, "六角头"},
        {"六角头", 5, "六角…"},
        {"六角头", 4, "六…"},  // the second character would leave no place for the ellipsis
        {"e\u0301e\u0301", 2, "e\u0301e\u0301"},
        {"e\u0301bc", 2, "e\u0301…"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CutToWidth(c.text, c.width), c.cut) << c.text << " to " << c.width;
}

TEST(Printable, LeavesNothingThatSteersATerminal)
{
    EXPECT_EQ(Printable("a\r\nb\tc"), "a  b c");
    EXPECT_EQ(Printable("\x1b[31mred"), "\uFFFD[31mred");
    EXPECT_EQ(Printable("\u009b"
                        "1m\x7f"),
              "\uFFFD1m\uFFFD");
    EXPECT_EQ(Printable("a\u202Eb"), "a\uFFFDb");
    EXPECT_EQ(Printable("六角 é"), "六角 é");
}

}  // namespace
}  // namespace kavelin::host
