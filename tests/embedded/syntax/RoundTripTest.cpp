#include "embedded/syntax/SyntaxTestSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

using testing::IdentityLines;
using testing::Respelled;

TEST(SyntaxRoundTrip, EveryLineOfTheIdentityFileIsWrittenAsItWas)
{
    const std::vector<std::string> lines = IdentityLines();
    ASSERT_GE(lines.size(), 120u);
    for (const std::string& line : lines) {
        try {
            EXPECT_EQ(Respelled(line), line);
        } catch (const SqlError& error) {
            ADD_FAILURE() << line << "\n" << error.what() << " at byte " << error.Where().offset;
        }
    }
}

TEST(SyntaxRoundTrip, AllBracketsAreThoseThatTheTextMeansAnyway)
{
    for (const std::string& line : IdentityLines()) {
        const std::string bracketed = Respelled(line, TextForm::AllBrackets);
        EXPECT_EQ(Respelled(bracketed, TextForm::AllBrackets), bracketed) << line;
        EXPECT_EQ(Respelled(bracketed), bracketed) << line;
    }
}

TEST(SyntaxRoundTrip, BracketsShowWhatBindsToWhat)
{
    const struct {
        std::string_view text, bracketed;
    } cases[] = {
        // O1: signs, then * and /, then + and -, each from the left
        {"select a + b * c", "select (a + (b * c))"},
        {"select a * b + c", "select ((a * b) + c)"},
        {"select a - b - c", "select ((a - b) - c)"},
        {"select a - b + c", "select ((a - b) + c)"},
        {"select a / b * c", "select ((a / b) * c)"},
        {"select a / b / c", "select ((a / b) / c)"},
        {"select -a * b", "select ((-a) * b)"},
        {"select -a + b", "select ((-a) + b)"},
        {"select a * -b", "select (a * (-b))"},
        {"select - - a", "select (-(-a))"},
        {"select a - -b", "select (a - (-b))"},
        {"select -1*iainprice-isnull(a,0)+isnull(b,0)",
         "select ((((-1) * iainprice) - isnull(a, 0)) + isnull(b, 0))"},
        {"select (a + b) * c", "select ((a + b) * c)"},
        {"select (((a)))", "select a"},
        {"select sum(a)/cast(b as float)*100", "select ((sum(a) / cast(b as float)) * 100)"},
        {"select csign + ' ' + Cast(n As nvarchar(10))", "select ((csign + ' ') + cast(n as nvarchar(10)))"},
        // O2: comparisons below sums
        {"select 1 where a + 1 = b * 2", "select 1 where ((a + 1) = (b * 2))"},
        {"select 1 where (a + b) * 2 > c", "select 1 where (((a + b) * 2) > c)"},
        {"select 1 where (a) = (b)", "select 1 where (a = b)"},
        // O3: the tests take sums
        {"select 1 where a + 1 between b - 1 and b + 1",
         "select 1 where ((a + 1) between (b - 1) and (b + 1))"},
        {"select 1 where a between 1 and 2 and b = 3", "select 1 where ((a between 1 and 2) and (b = 3))"},
        {"select 1 where a like b + '%' or c = 1", "select 1 where ((a like (b + '%')) or (c = 1))"},
        {"select 1 where a + b is null", "select 1 where ((a + b) is null)"},
        {"select 1 where -a in (1, 2 + 3)", "select 1 where ((-a) in (1, (2 + 3)))"},
        // O4, Q13, Q14: not before and before or
        {"select 1 where not x is null", "select 1 where (not (x is null))"},
        {"select 1 where not a = 1 and b = 2", "select 1 where ((not (a = 1)) and (b = 2))"},
        {"select 1 where not (a = 1 and b = 2)", "select 1 where (not ((a = 1) and (b = 2)))"},
        {"select 1 where not not a = 1", "select 1 where (not (not (a = 1)))"},
        {"select 1 where a = 1 or b = 2 and c = 3", "select 1 where ((a = 1) or ((b = 2) and (c = 3)))"},
        {"select 1 where a = 1 and b = 2 or c = 3", "select 1 where (((a = 1) and (b = 2)) or (c = 3))"},
        {"select 1 where a = 1 or b = 2 or c = 3", "select 1 where (((a = 1) or (b = 2)) or (c = 3))"},
        {"select 1 where (a = 1 or b = 2) and c = 3", "select 1 where (((a = 1) or (b = 2)) and (c = 3))"},
        {"select 1 where not exists(select 1) and a not in (select 2)",
         "select 1 where ((not exists (select 1)) and (a not in (select 2)))"},
        {"select case when a = 1 or b = 2 then c + 1 else -d end * 2",
         "select (case when ((a = 1) or (b = 2)) then (c + 1) else (-d) end * 2)"},
        {"select 1 from T left join U on (T.a > U.a OR (T.a = U.a And T.b > U.b))",
         "select 1 from T left join U on ((T.a > U.a) or ((T.a = U.a) and (T.b > U.b)))"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Respelled(c.text, TextForm::AllBrackets), c.bracketed) << c.text;
}

}  // namespace
}  // namespace kavelin::embedded
