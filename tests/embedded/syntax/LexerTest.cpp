#include "embedded/syntax/Lexer.h"

#include "embedded/SqlError.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::embedded {
namespace {

// Each token by its kind and value: "w:a" a word, "k:from" a keyword, "s:(" a sign.
std::string Tokens(std::string_view text)
{
    std::string shown;
    for (const Token& token : Tokenize(text)) {
        if (token.kind == TokenKind::End)
            break;
        std::string_view kind = "s:";
        if (token.kind == TokenKind::Word)
            kind = "w:";
        else if (token.kind == TokenKind::Bracketed)
            kind = "b:";
        else if (token.kind == TokenKind::Keyword)
            kind = "k:";
        else if (token.kind == TokenKind::Number)
            kind = "n:";
        else if (token.kind == TokenKind::Text)
            kind = "t:";
        else if (token.kind == TokenKind::NationalText)
            kind = "N:";
        shown += (shown.empty() ? "" : " ") + std::string(kind) + token.value;
    }
    return shown;
}

std::string Refusal(std::string_view text)
{
    try {
        Tokenize(text);
        return "read";
    } catch (const SqlError& error) {
        return std::to_string(error.Number()) + " at " + std::to_string(error.Where().offset) + "+" +
               std::to_string(error.Where().length) + ": " + error.what();
    }
}

TEST(Lexer, GivesOnlyAnEndForATextOfBlanks)
{
    for (const std::string_view text : {"", "  \t\r\n ", "-- nothing", "/* a /* b */ c */"}) {
        const std::vector<Token> tokens = Tokenize(text);
        ASSERT_EQ(tokens.size(), 1u) << text;
        EXPECT_EQ(tokens[0].kind, TokenKind::End) << text;
        EXPECT_EQ(tokens[0].place.offset, text.size()) << text;
    }
}

TEST(Lexer, ReadsTheTextsOfTheSurface)
{
    const struct {
        std::string_view mark, text, tokens;
    } cases[] = {
        {"L4", "sElect FROM Fromm", "k:sElect k:FROM w:Fromm"},
        {"L5", "'' N'' 'a' n'b' 'it''s' '''' N' 直运 '", "t: N: t:a N:b t:it's t:' N: 直运 "},
        {"L5", "N 'a'", "w:N t:a"},
        {"L6", "N'a'b'c'", "N:a w:b t:c"},
        {"L7", "07 0.5 .5 5. 1e3 1E-3 1.5e+10", "n:07 n:0.5 n:.5 n:5. n:1e3 n:1E-3 n:1.5e+10"},
        {"L7", "-100 07-1", "s:- n:100 n:07 s:- n:1"},
        {"L8", "资金占用额 结存_件数 #iInprice _a a1$@# Straße",
         "w:资金占用额 w:结存_件数 w:#iInprice w:_a w:a1$@# w:Straße"},
        {"L9", "[FCSFCItemPC-1 7] [ a ] [a]]b] []]] [from] ['\"]",
         "b:FCSFCItemPC-1 7 b: a  b:a]b b:] b:from b:'\""},
        {"L10", "a .b a. b a . b", "w:a s:. w:b w:a s:. w:b w:a s:. w:b"},
        {"N2", "tempdb..[x]", "w:tempdb s:. s:. b:x"},
        {"L11", "end)as", "k:end s:) k:as"},
        {"L11", "0end 1and'x'or N'y'as[z]from", "n:0 k:end n:1 k:and t:x k:or N:y k:as b:z k:from"},
        {"L11", "1e 2ex 3e+ 4.e", "n:1 w:e n:2 w:ex n:3 w:e s:+ n:4. w:e"},
        {"L12", "Type Money Num flag name id area detail ex sales com s t",
         "w:Type w:Money w:Num w:flag w:name w:id w:area w:detail w:ex w:sales w:com w:s w:t"},
        {"O2", "a<>1 b>=N'x' c<=d<e>f=g", "w:a s:<> n:1 w:b s:>= N:x w:c s:<= w:d s:< w:e s:> w:f s:= w:g"},
        {"O1", "+-*/(),;", "s:+ s:- s:* s:/ s:( s:) s:, s:;"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Tokens(c.text), c.tokens) << c.mark << ": " << c.text;
}

TEST(Lexer, PlacesTokensByBytes)
{
    const std::vector<Token> tokens = Tokenize(" 直运\r\n= N'a''b'[c]]]");
    const struct {
        std::uint32_t offset, length;
    } places[] = {{1, 6}, {9, 1}, {11, 7}, {18, 5}, {23, 0}};
    ASSERT_EQ(tokens.size(), std::size(places));
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        EXPECT_EQ(tokens[i].place.offset, places[i].offset) << i;
        EXPECT_EQ(tokens[i].place.length, places[i].length) << i;
    }
}

TEST(Lexer, TakesACommentOnLinesOfItsOwnAsABlank)
{
    EXPECT_EQ(Tokens("-- a 'b\n1\r\n  -- c\r\n2\n/* d\n ' e */ 3 \n--"), "n:1 n:2 n:3");
    EXPECT_EQ(Tokens("/* a */ -- b\n1"), "n:1");
}

// A pasted value that ends its literal early must not hide what stands behind it.
TEST(Lexer, RefusesACommentBehindOtherText)
{
    const std::string_view message = ": the embedded engine knows comments only on lines of their own";
    EXPECT_EQ(Refusal("a = N'x'--'"), "102 at 8+2" + std::string(message));
    EXPECT_EQ(Refusal("a /* b */"), "102 at 2+2" + std::string(message));
    EXPECT_EQ(Refusal("1--1"), "102 at 1+2" + std::string(message));
    EXPECT_EQ(Refusal("'a\n'--"), "102 at 4+2" + std::string(message));
}

TEST(Lexer, RefusesWhatHasNoEnd)
{
    EXPECT_EQ(Refusal("a = 'b c"), "105 at 4+1: Unclosed quotation mark after the character string 'b c'.");
    EXPECT_EQ(Refusal("N'a''"), "105 at 0+2: Unclosed quotation mark after the character string 'a''.");
    EXPECT_EQ(Refusal("N'a'b'"), "105 at 5+1: Unclosed quotation mark after the character string ''.");
    EXPECT_EQ(Refusal(" [a]]"), "105 at 1+1: Unclosed quotation mark after the character string 'a]'.");
    EXPECT_EQ(Refusal("/* a"), "113 at 0+2: Missing end comment mark '*/'.");
    EXPECT_EQ(Refusal("/*/"), "113 at 0+2: Missing end comment mark '*/'.");
}

TEST(Lexer, RefusesNamesThatAreEmptyOrTooLong)
{
    const std::string longest(128, 'a');
    EXPECT_EQ(Tokens(longest), "w:" + longest);
    EXPECT_EQ(Refusal("[]"), "1038 at 0+2: An object or column name is missing or empty.");
    EXPECT_EQ(Refusal(longest + "b"), "103 at 0+129: The identifier that starts with '" + longest +
                                          "' is too long. Maximum length is 128.");
    std::string chinese;
    for (int i = 0; i < 128; ++i)
        chinese += "资";
    EXPECT_EQ(Tokens("[" + chinese + "]"), "b:" + chinese);
    EXPECT_TRUE(Refusal("[" + chinese + "x]").starts_with("103 at 0+387"));
}

TEST(Lexer, RefusesSignsThatNoStatementHolds)
{
    const struct {
        std::string_view text, refusal;
    } cases[] = {
        {"a % b", "102 at 2+1: the embedded engine doesn't know %"},
        {"a & b", "102 at 2+1: the embedded engine doesn't know &"},
        {"a != b", "102 at 2+1: the embedded engine doesn't know !"},
        {"@a", "102 at 0+1: the embedded engine doesn't know @"},
        {"@@rowcount", "102 at 0+1: the embedded engine doesn't know @"},
        {"##x", "102 at 0+3: the embedded engine doesn't know ##"},
        {"\"a\"", "102 at 0+1: the embedded engine doesn't know \""},
        {"a ? b", "102 at 2+1: Incorrect syntax near '?'."},
        {"$1", "102 at 0+1: Incorrect syntax near '$'."},
        {"]", "102 at 0+1: Incorrect syntax near ']'."},
        {"a，b", "102 at 1+3: Incorrect syntax near '，'."},
        {"a　b", "102 at 1+3: Incorrect syntax near '　'."},
        {"\x01", "102 at 0+1: Incorrect syntax near '\x01'."},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Refusal(c.text), c.refusal) << c.text;
}

TEST(Lexer, RefusesBytesThatAreNoText)
{
    const std::string utf8 = ": Incorrect syntax: the text is not valid UTF-8.";
    EXPECT_EQ(Refusal("a \xFF"), "102 at 2+1" + utf8);
    EXPECT_EQ(Refusal("'\xE7\x9B'"), "102 at 1+1" + utf8);
    EXPECT_EQ(Refusal("[a\x80]"), "102 at 2+1" + utf8);
    EXPECT_EQ(Refusal("\xC0\xAF"), "102 at 0+1" + utf8);        // overlong
    EXPECT_EQ(Refusal("'\xED\xA0\x80'"), "102 at 1+1" + utf8);  // half of a surrogate pair
    EXPECT_EQ(Refusal("'\xEF\xBF\xBD'"), "read");               // the replacement character itself
    EXPECT_EQ(Refusal(std::string_view("'a\0b'", 5)),
              "102 at 2+1: Incorrect syntax: the text holds a NUL character.");
}

TEST(FindKeyword, KnowsReservedWordsInAnyCaseAndNothingElse)
{
    EXPECT_EQ(FindKeyword("select"), Keyword::Select);
    EXPECT_EQ(FindKeyword("SeLeCt"), Keyword::Select);
    EXPECT_EQ(FindKeyword("add"), Keyword::Add);
    EXPECT_EQ(FindKeyword("WHERE"), Keyword::Where);
    EXPECT_EQ(FindKeyword("pivot"), Keyword::Foreign);
    EXPECT_EQ(FindKeyword("freetexttable"), Keyword::Foreign);
    EXPECT_EQ(FindKeyword("writetext"), Keyword::Foreign);
    for (const std::string_view word : {"", "selec", "selects", "type", "money", "name", "cast", "apply",
                                        "a word that is much longer than any keyword is"})
        EXPECT_EQ(FindKeyword(word), Keyword::None) << word;
}

}  // namespace
}  // namespace kavelin::embedded
