#include "embedded/write/Build.h"
#include "embedded/write/Duck.h"
#include "embedded/write/Like.h"
#include "embedded/write/Quote.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

using namespace build;

namespace {

const SqlType kText = Nvarchar(30);
constexpr TextFacts kTrimmed{.noTrailingBlanks = true};
constexpr TextFacts kUpper{.noCase = true};

std::string Condition(const BoundExprPtr& expression)
{
    return Writer().Condition(*expression);
}

BoundExprPtr In(BoundExprPtr operand, const std::vector<std::string>& texts, bool negated = false)
{
    BoundInList list{std::move(operand), {}, negated};
    for (const std::string& text : texts)
        list.items.push_back(Text(text));
    return Expression(std::move(list));
}

}  // namespace

TEST(WriteTextFold, FoldsAComparisonNoMoreThanItsFactsAsk)
{
    const struct {
        BoundExprPtr condition;
        std::string expected;
    } cases[] = {
        {Equal(Column("a", kText), Text("aB ")), R"((lower(rtrim("s1"."a")) = 'ab'))"},
        {Equal(Column("a", kText, kTrimmed), Text("aB")), R"((lower("s1"."a") = 'ab'))"},
        {Equal(Column("a", kText, kUpper), Text("aB")), R"((rtrim("s1"."a") = 'AB'))"},
        {Equal(Column("a", kText, kFolded), Text("aB")), R"(("s1"."a" = 'AB'))"},
        {Equal(Column("a", kText, kTrimmed), Text("33")), R"(("s1"."a" = '33'))"},
        {Equal(Column("a", kText), Text("直运")), R"((rtrim("s1"."a") = '直运'))"},
        {Equal(Column("a", kText, kFolded), Text("É")), R"((lower("s1"."a") = lower('É')))"},
        {Compare(Column("a", kText, kTrimmed), ComparisonOp::Less, Text("33")),
         R"((lower("s1"."a") < '33'))"},
        {Compare(Column("a", kText, kFolded), ComparisonOp::Less, Text("k3")), R"(("s1"."a" < 'K3'))"},
        {Equal(Column("a", kText, kFolded), Column("b", kText, kFolded)), R"(("s1"."a" = "s1"."b"))"},
        {Equal(Column("a", kText, kFolded), Column("b", kText)),
         R"((lower("s1"."a") = lower(rtrim("s1"."b"))))"},
        {Equal(Text("A"), Text("a ")), "('a' = 'a')"},
        {Equal(Column("a", kInt), Number(7)), R"(("s1"."a" = 7))"},
        {In(Column("a", kText, kTrimmed), {"01", "05 "}), R"(("s1"."a" IN ('01', '05')))"},
        {In(Column("a", kText, kTrimmed), {"ex26", "05"}, true),
         R"((lower("s1"."a") NOT IN ('ex26', '05')))"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Condition(c.condition), c.expected);
}

TEST(WriteTextFold, T23FindsEqualTextsWithoutRegardToCaseAndTrailingBlanks)
{
    Duck duck;
    duck.Run("CREATE TABLE t (a VARCHAR)");
    duck.Run("INSERT INTO t VALUES ('IA.VchType'), ('ia.vchtype  '), (' ia.vchtype'), ('ÉÀ'), (NULL)");
    const auto count = [&](const BoundExprPtr& condition) {
        return duck.Run("SELECT count(*) FROM t AS s1 WHERE " + Condition(condition));
    };
    EXPECT_EQ(count(Equal(Column("a", kText), Text("IA.vchtype"))), "2");
    EXPECT_EQ(count(Equal(Column("a", kText), Text("éà "))), "1");
    EXPECT_EQ(count(In(Column("a", kText), {"IA.VCHTYPE", "éÀ"})), "3");
    EXPECT_EQ(count(In(Column("a", kText), {"IA.VCHTYPE", "éÀ"}, true)), "1");
    EXPECT_EQ(count(Expression(BoundBetween{Column("a", kText), Text("I"), Text("J"), false})), "2");
}

TEST(WriteTextFold, T24LikeTakesCasePrefixesBracketsAndBlanks)
{
    const std::string a = R"("s1"."a")";
    const auto like = [&](const std::string& pattern, TextFacts facts = {}) {
        return WriteLike(a, facts, pattern, true);
    };
    EXPECT_EQ(like("%"), "(" + a + " IS NOT NULL)");
    EXPECT_EQ(WriteLike(a, {}, "%", false), "starts_with(" + a + ", '')");
    EXPECT_EQ(like("01%"), "starts_with(" + a + ", '01')");
    EXPECT_EQ(like("直运%"), "starts_with(" + a + ", '直运')");
    EXPECT_EQ(like("Ab%"), "starts_with(lower(" + a + "), 'ab')");
    EXPECT_EQ(like("Ab%", kUpper), "starts_with(" + a + ", 'AB')");
    EXPECT_EQ(like("a_%b"), "(lower(" + a + ") LIKE 'a_%b')");

    Duck duck;
    duck.Run("CREATE TABLE t (a VARCHAR)");
    duck.Run("INSERT INTO t VALUES ('Abc'), ('abd '), ('a.c'), ('直运销售'), ('a]b'), ('[x'), (NULL)");
    const struct {
        std::string pattern, expected;
    } cases[] = {
        {"%", "6"},      {"AB%", "2"},    {"abd", "0"},     {"abd ", "1"}, {"_b_", "1"},
        {"a[.b]c", "2"}, {"a[^b]c", "1"}, {"[A-C]b%", "2"}, {"a.c", "1"},  {"直%", "1"},
        {"__销售", "1"}, {"[[]X", "1"},   {"[x", "0"},      {"%]%", "1"},  {"", "0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(duck.Run("SELECT count(*) FROM t AS s1 WHERE " + like(c.pattern)), c.expected) << c.pattern;

    const auto written = [&](BoundExprPtr pattern) {
        return Condition(Expression(BoundLike{Column("a", kText), std::move(pattern)}));
    };
    EXPECT_EQ(duck.Run("SELECT count(*) FROM t AS s1 WHERE " +
                       written(Expression(BoundConcat{Column("a", kText), Text("%")}, Nvarchar(31)))),
              "102 The embedded account takes brackets of LIKE in a constant pattern only.");
    EXPECT_EQ(duck.Run("SELECT count(*) FROM t AS s1 WHERE a <> '[x' AND " +
                       written(Expression(BoundConcat{Column("a", kText), Text("%")}, Nvarchar(31)))),
              "5");
}

TEST(WriteTextFold, T25KeepsNullApartFromFalseUnderNot)
{
    Duck duck;
    duck.Run("CREATE TABLE t (a VARCHAR)");
    duck.Run("INSERT INTO t VALUES ('x'), (NULL)");
    const auto count = [&](BoundExprPtr condition) {
        return duck.Run("SELECT count(*) FROM t AS s1 WHERE " + Writer().Clause(*condition));
    };
    EXPECT_EQ(count(Expression(BoundNot{Like(Column("a", kText), "%")})), "0");
    EXPECT_EQ(count(Expression(BoundNot{Expression(BoundNot{Like(Column("a", kText), "%")})})), "1");
    EXPECT_EQ(count(Like(Column("a", kText), "%", true)), "0");
    EXPECT_EQ(count(Like(Column("a", kText), "y%", true)), "1");
    EXPECT_EQ(count(Expression(BoundNot{Expression(BoundNullTest{Column("a", kText)})})), "1");
    EXPECT_EQ(count(Expression(BoundNot{In(Column("a", kText), {"y"})})), "1");
}

TEST(WriteTextFold, T13ComparesABitAsABit)
{
    const auto bit = [](int number) { return Equal(Convert(Column("b", kBit), kInt), Number(number)); };
    EXPECT_EQ(Condition(bit(1)), R"(("s1"."b" = TRUE))");
    EXPECT_EQ(Condition(bit(0)), R"(("s1"."b" = FALSE))");
    EXPECT_EQ(Condition(bit(2)), R"((CAST("s1"."b" AS INTEGER) = 2))");
    EXPECT_EQ(Condition(Compare(Convert(Column("b", kBit), kInt), ComparisonOp::NotEqual, Number(0))),
              R"(("s1"."b" <> FALSE))");
}

TEST(WriteConditions, WritesALongChainFlat)
{
    BoundExprPtr chain = Equal(Column("a", kInt), Number(0));
    for (int i = 1; i < 5000; ++i)
        chain =
            Expression(BoundLogical{LogicalOp::Or, std::move(chain), Equal(Column("a", kInt), Number(i))});
    Duck duck;
    duck.Run("CREATE TABLE t (a INTEGER)");
    duck.Run("INSERT INTO t VALUES (4999), (5000)");
    EXPECT_EQ(duck.Run("SELECT a FROM t AS s1 WHERE " + Condition(chain)), "4999");
}

TEST(WriteConditions, ComparesWholeNumbersWithoutCastingTheirColumns)
{
    EXPECT_EQ(Condition(Equal(Convert(Column("m", kTinyint), kInt), Number(7))), R"(("s1"."m" = 7))");
    EXPECT_EQ(Condition(Compare(Column("p", kMoney), ComparisonOp::NotEqual, Convert(Number(0), kMoney))),
              R"(("s1"."p" <> CAST(0 AS DECIMAL(19,4))))");
}

TEST(Quote, DoublesQuotesAndKeepsControlCharactersOutOfTheStatement)
{
    EXPECT_EQ(QuoteName("a\"b"), R"("a""b")");
    EXPECT_EQ(QuoteText("it's"), "'it''s'");
    EXPECT_EQ(QuoteText(std::string("a\0'b", 4)), "('a' || chr(0) || '''b')");
    Duck duck;
    EXPECT_EQ(duck.Run("SELECT length(" + QuoteText(std::string("\0a\n\t\r\\", 6)) + ")"), "6");
}

}  // namespace kavelin::embedded
