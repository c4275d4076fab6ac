#include "frame/Text.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(EqualsNoCase, KnowsTheCaseOfLettersAndOfNothingElse)
{
    EXPECT_TRUE(EqualsNoCase("cInvCode", "CINVCODE"));
    EXPECT_TRUE(EqualsNoCase("Ärger", "äRGER"));
    EXPECT_TRUE(EqualsNoCase("ΑΒΓ", "αβγ"));
    EXPECT_TRUE(EqualsNoCase("Склад", "СКЛАД"));
    EXPECT_TRUE(EqualsNoCase("ＡＢ", "ａｂ"));
    EXPECT_TRUE(EqualsNoCase("仓库", "仓库"));
    EXPECT_FALSE(EqualsNoCase("仓库", "仓厍"));
    EXPECT_FALSE(EqualsNoCase("A", "Ａ"));
    EXPECT_FALSE(EqualsNoCase("[", "{"));
    EXPECT_FALSE(EqualsNoCase("abc", "ab"));
    EXPECT_TRUE(EqualsNoCase("", ""));
}

TEST(LessNoCase, OrdersWithoutRegardToCase)
{
    const LessNoCase less;
    EXPECT_FALSE(less("cNo", "CNO"));
    EXPECT_FALSE(less("CNO", "cNo"));
    EXPECT_TRUE(less("a", "B"));
    EXPECT_FALSE(less("b", "A"));
    EXPECT_TRUE(less("a", "ab"));
}

TEST(ToUpperAndToLower, ChangeTheCaseOfLetters)
{
    EXPECT_EQ(ToUpper("true 仓库 äя"), "TRUE 仓库 ÄЯ");
    EXPECT_EQ(ToLower("TRUE 仓库 ÄЯ"), "true 仓库 äя");
    EXPECT_EQ(ToUpper("×÷"), "×÷");
}

TEST(Trim, TakesBlanksOnly)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim("　a"), "　a");
}

TEST(Length, CountsCharacters)
{
    EXPECT_EQ(Length(""), 0U);
    EXPECT_EQ(Length("按仓库核算"), 5U);
    EXPECT_EQ(Length("a仓😀"), 3U);
    EXPECT_EQ(Length("\xff\xe4\xbb"), 3U);
}

TEST(LeftAndRight, CutBetweenCharacters)
{
    EXPECT_EQ(Left("按仓库核算", 2), "按仓");
    EXPECT_EQ(Right("按仓库核算", 2), "核算");
    EXPECT_EQ(Left("ab", 5), "ab");
    EXPECT_EQ(Right("ab", 5), "ab");
    EXPECT_EQ(Left("ab", 0), "");
    EXPECT_EQ(Right("ab", 0), "");
}

TEST(Split, KeepsEmptyPieces)
{
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(Split("a,b,,c", ","), (Pieces{"a", "b", "", "c"}));
    EXPECT_EQ(Split(",", ","), (Pieces{"", ""}));
    EXPECT_EQ(Split("", ","), (Pieces{""}));
    EXPECT_EQ(Split("a\tb", "\t"), (Pieces{"a", "b"}));
}

TEST(ReplaceAll, DoesNotLookAtWhatItPutIn)
{
    EXPECT_EQ(ReplaceAll("a-b-c", "-", ""), "abc");
    EXPECT_EQ(ReplaceAll("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("仓库", "库", "x"), "仓x");
    EXPECT_EQ(ReplaceAll("", "a", "b"), "");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

TEST(NextCharacter, GivesTheReplacementCharacterForABadByteAndMovesByOne)
{
    const struct {
        std::string_view text;
        char32_t character;
        std::size_t length;
    } cases[] = {
        {"a", U'a', 1},
        {"仓", U'仓', 3},
        {"😀", U'😀', 4},
        {"é", U'é', 2},
        {"\x80", 0xFFFD, 1},
        {"\xC0\x80", 0xFFFD, 1},
        {"\xE4\xBB", 0xFFFD, 1},
        {"\xE0\x80\x80", 0xFFFD, 1},
        {"\xED\xA0\x80", 0xFFFD, 1},
        {"\xF5\x80\x80\x80", 0xFFFD, 1},
        {"\xF4\x90\x80\x80", 0xFFFD, 1},
        {"\xE4"
         "ab",
         0xFFFD, 1},
    };
    for (const auto& c : cases) {
        std::size_t position = 0;
        EXPECT_EQ(NextCharacter(c.text, position), c.character) << c.text;
        EXPECT_EQ(position, c.length) << c.text;
    }
}

TEST(AppendCharacter, WritesWhatNextCharacterReads)
{
    for (const char32_t character : {U'a', U'é', U'仓', U'😀', char32_t{0x10FFFF}}) {
        std::string text;
        AppendCharacter(text, character);
        std::size_t position = 0;
        EXPECT_EQ(NextCharacter(text, position), character);
        EXPECT_EQ(position, text.size());
    }
}

}  // namespace kavelin::test
