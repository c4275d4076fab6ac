// Whatever the text: a tree or a SqlError, in time that grows with the text and without running out of stack.
#include "embedded/syntax/SyntaxTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace kavelin::embedded {
namespace {

using testing::IdentityLines;
using testing::Refusal;
using testing::Respelled;

constexpr std::string_view kTooDeep =
    ": Some part of your SQL statement is nested too deeply. Rewrite the query or break it up into smaller "
    "queries.";

std::string Repeated(std::size_t count, std::string_view text)
{
    std::string repeated;
    repeated.reserve(count * text.size());
    for (std::size_t i = 0; i < count; ++i)
        repeated += text;
    return repeated;
}

bool IsTooDeep(const std::string& text)
{
    const std::string refusal = Refusal(text);
    return refusal.starts_with("191 at ") && refusal.ends_with(kTooDeep);
}

// Parses; if that gives a tree, its text must parse to the same text. An error must point into the text.
void ExpectTreeOrError(const std::string& text)
{
    try {
        const std::string written = Respelled(text);
        EXPECT_EQ(Respelled(written), written) << text;
    } catch (const SqlError& error) {
        EXPECT_GT(error.Number(), 0) << text;
        EXPECT_LE(std::size_t{error.Where().offset} + error.Where().length, text.size()) << text;
    }
}

TEST(BrokenText, EveryBeginOfALineIsATreeOrAnError)
{
    for (const std::string& line : IdentityLines())
        for (std::size_t length = 0; length <= line.size(); ++length)
            ExpectTreeOrError(line.substr(0, length));
}

TEST(BrokenText, EveryEndOfALineIsATreeOrAnError)
{
    for (const std::string& line : IdentityLines())
        for (std::size_t start = 0; start <= line.size(); ++start)
            ExpectTreeOrError(line.substr(start));
}

TEST(BrokenText, LinesWithChangedBytesAreTreesOrErrors)
{
    std::mt19937 random(20080731);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    constexpr std::string_view kSigns = "'[]().,;*+-/=<>N0 e#@_\n";
    for (const std::string& line : IdentityLines())
        for (int round = 0; round < 100; ++round) {
            std::string text = line;
            for (std::size_t changes = 1 + below(3); changes > 0; --changes) {
                const std::size_t position = below(text.size() + 1);
                const char sign =
                    below(4) == 0 ? static_cast<char>(below(256)) : kSigns[below(kSigns.size())];
                const std::size_t kind = below(3);
                if (kind == 0)
                    text.insert(position, 1, sign);
                else if (position == text.size())
                    text += sign;
                else if (kind == 1)
                    text[position] = sign;
                else
                    text.erase(position, 1 + below(8));
            }
            ExpectTreeOrError(text);
        }
}

TEST(BrokenText, WordsInAnyOrderAreTreesOrErrors)
{
    std::vector<std::string> words;
    for (const std::string& line : IdentityLines())
        for (std::size_t start = 0; start < line.size();) {
            const std::size_t end = std::min(line.find(' ', start), line.size());
            words.push_back(line.substr(start, end - start));
            start = end + 1;
        }
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t count = 1 + random() % 20; count > 0; --count)
            text += words[random() % words.size()] + " ";
        ExpectTreeOrError(text);
    }
}

TEST(DeepText, IsRefusedWhereItIsTooDeep)
{
    const struct {
        std::string_view begin, open, middle, close, end;
    } cases[] = {
        {"select ", "(", "1", ")", ""},
        {"select 1 where ", "(", "a = 1", ")", ""},
        {"select 1 where ", "not ", "a = 1", "", ""},
        {"select ", "- ", "1", "", ""},
        {"select ", "f(", "1", ")", ""},
        {"select ", "cast(", "1", " as int)", ""},
        {"select ", "convert(int, ", "1", ")", ""},
        {"select ", "case when 1 = 1 then ", "1", " end", ""},
        {"select ", "case 1 when ", "1", " then 1 end", ""},
        {"select ", "(select ", "1", ")", ""},
        {"select 1 where ", "exists (select 1 where ", "1 = 1", ")", ""},
        {"select 1 where ", "a in (select 1 where ", "1 = 1", ")", ""},
        {"select * from ", "(select * from ", "T", ") d", ""},
        {"", "if exists (select 1) ", "drop table T", "", ""},
    };
    for (const auto& c : cases) {
        const auto text = [&](std::size_t depth) {
            return std::string(c.begin) + Repeated(depth, c.open) + std::string(c.middle) +
                   Repeated(depth, c.close) + std::string(c.end);
        };
        EXPECT_EQ(Refusal(text(50)), "parsed") << text(1);
        EXPECT_EQ(Respelled(Respelled(text(50))), Respelled(text(50))) << text(1);
        EXPECT_TRUE(IsTooDeep(text(201))) << text(1);
        EXPECT_TRUE(IsTooDeep(text(20000))) << text(1);
        EXPECT_TRUE(IsTooDeep(std::string(c.begin) + Repeated(20000, c.open))) << text(1);
    }
}

// A chain nests nothing in the text, but its tree is as high as the chain is long.
TEST(DeepText, ChainsAreRefusedWhereTheirTreesAreTooHigh)
{
    const struct {
        std::string_view begin, link;
    } cases[] = {
        {"select 1", " + 1"},
        {"select 1", " * a"},
        {"select 1 where a = 1", " and a = 1"},
        {"select 1 where a = 1", " or a = 1 and b = 2"},
        {"select 1 from T", " inner join T on 1 = 1"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Refusal(std::string(c.begin) + Repeated(900, c.link)), "parsed") << c.begin << c.link;
        EXPECT_TRUE(IsTooDeep(std::string(c.begin) + Repeated(1001, c.link))) << c.begin << c.link;
        EXPECT_TRUE(IsTooDeep(std::string(c.begin) + Repeated(20000, c.link))) << c.begin << c.link;
    }
}

TEST(DeepText, ChainsInChainsCountTogether)
{
    const auto nested = [](std::size_t depth, std::size_t length) {
        return "select " + Repeated(depth, "(") + "1" + Repeated(depth, Repeated(length, " + 1") + ")");
    };
    EXPECT_EQ(Refusal(nested(10, 80)), "parsed");
    EXPECT_TRUE(IsTooDeep(nested(10, 110)));
    EXPECT_TRUE(IsTooDeep(nested(100, 900)));
}

TEST(DeepText, NeighboursDoNotCountTogether)
{
    const std::string chain = "1" + Repeated(900, " + 1");
    EXPECT_EQ(
        Refusal("select " + chain + Repeated(20, ", " + chain) + " from T where " + chain + " = " + chain),
        "parsed");
    EXPECT_EQ(Refusal("select f(" + chain + Repeated(20, ", " + chain) + ")"), "parsed");
}

// L13, and far beyond it.
TEST(LongText, OfAMegabyteIsParsed)
{
    constexpr std::size_t kMegabyte = 1 << 20;
    const struct {
        std::string_view begin, item, end;
    } cases[] = {
        {"select 1", ", 列.[a b] as x", " from 列"},
        {"select 1 where a in ('x'", ", N'直运'", ")"},
        {"", "update T set a = 1 where b = N'x'\r\n", ""},
        {"insert into T values (1, N'x')", ", (1, N'x')", ""},
        {"select 1", " union select 1", ""},
        {"drop table T", ", tempdb..[T]", ""},
        {"select 1 from T", ", T", ""},
        {"select case", " when a = 1 then 2", " end"},
        {"create table T (a int", ", b decimal(38, 6) not null default (0)", ")"},
        {"select 1", " ", ""},
        {"select '", "''", "'"},
        {"select 1", ";", ""},
        {"", "-- a\n", "select 1"},
    };
    for (const auto& c : cases) {
        const std::string text =
            std::string(c.begin) + Repeated(kMegabyte / c.item.size(), c.item) + std::string(c.end);
        EXPECT_EQ(Refusal(text), "parsed") << c.begin << c.item;
    }
}

TEST(LongText, WithoutItsEndIsRefused)
{
    constexpr std::size_t kMegabyte = 1 << 20;
    for (const std::string_view item : {"'", "[", "(", "N'a", "/*", "a.", ".", "select ", "1e", "--", "\xE7"})
        EXPECT_NE(Refusal("select " + Repeated(kMegabyte / item.size(), item) + "|"), "parsed") << item;
}

TEST(LongText, OfAJournalHasItsColumns)  // L13
{
    std::string columns = "IA_tempJournal_with_a_name_of_sixty_characters_and_no_less_x";
    ASSERT_EQ(columns.size(), 60u);
    for (int i = 1; i < 240; ++i)
        columns += ", 列名很长的一个字段_" + std::to_string(i);
    const std::string text = "insert into T (" + columns + ") select " + columns + " from U";
    EXPECT_EQ(Respelled(text), text);
}

}  // namespace
}  // namespace kavelin::embedded
