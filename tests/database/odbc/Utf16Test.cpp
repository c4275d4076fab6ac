#include "database/odbc/Utf16.h"

#include <gtest/gtest.h>

namespace kavelin::odbc {
namespace {

TEST(Utf16, TextOfAllPlanesGoesThereAndBack)
{
    const std::string text = "A\u00E9\u5B58\uFFFD\uFFFF\U00010000\U0001F4E6\U0010FFFF";
    const std::u16string wide = u"A\u00E9\u5B58\uFFFD\uFFFF\U00010000\U0001F4E6\U0010FFFF";
    EXPECT_EQ(ToUtf16(text).text, wide);
    EXPECT_EQ(ToUtf16(text).badByte, 0u);
    EXPECT_EQ(FromUtf16(wide), text);
}

TEST(Utf16, ZeroIsACharacterLikeOthers)
{
    const std::string text("a\0b", 3);
    EXPECT_EQ(FromUtf16(ToUtf16(text).text), text);
}

TEST(Utf16, TellsTheByteAtWhichATextIsNoUtf8)
{
    const struct {
        std::string_view text;
        std::size_t badByte;
    } cases[] = {
        {"\xC3", 1},      {"ab\xFF", 3},       {"\xE5\xAD", 1},
        {"a\xC0\x80", 2}, {"\xED\xA0\x80", 1}, {"存\xF4\x90\x80\x80", 4},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ToUtf16(c.text).badByte, c.badByte) << c.text;
    EXPECT_EQ(NoUtf8(4), "The text is no UTF-8: its byte 4 begins no character.");
}

TEST(Utf16, HalfAPairBecomesTheReplacementCharacter)
{
    constexpr char16_t kHigh = 0xD83D, kLow = 0xDCE6;
    EXPECT_EQ(FromUtf16(std::u16string{u'a', kHigh, u'b'}), "a\uFFFDb");
    EXPECT_EQ(FromUtf16(std::u16string{kLow}), "\uFFFD");
    EXPECT_EQ(FromUtf16(std::u16string{kLow, kHigh}), "\uFFFD\uFFFD");
}

}  // namespace
}  // namespace kavelin::odbc
