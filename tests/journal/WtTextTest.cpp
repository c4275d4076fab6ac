#include "journal/WtText.h"

#include <gtest/gtest.h>

namespace kavelin {
namespace {

TEST(StripClause, LeavesATextWithoutTheMarkerAsItIs)
{
    EXPECT_EQ(StripClause(" a= N'1' And b= N'2'", "And NoSub.cDepCode"), " a= N'1' And b= N'2'");
    EXPECT_EQ(StripClause("", "And x"), "");
}

TEST(StripClause, TakesTheClauseUpToTheNextAnd)
{
    EXPECT_EQ(StripClause("a=1 And NoSub.cDepCode= N'03' And b=2", "And NoSub.cDepCode"), "a=1 And b=2");
    EXPECT_EQ(StripClause("a=1 And NoSub.dKeepDate>= '2008-01-01' And b=2", " And NoSub.dKeepDate"),
              "a=1And b=2");
}

TEST(StripClause, TakesALastClauseToTheEnd)
{
    EXPECT_EQ(StripClause("a=1 And NoSub.cDepCode= N'03'", "And NoSub.cDepCode"), "a=1 ");
}

// The search for the next "And" begins at the third character of what follows the first of the last marker: the
// marker's own "And" does not count, whether a blank stands before it or not.
TEST(StripClause, SearchesFromTheThirdCharacter)
{
    EXPECT_EQ(StripClause("a=1 And x And y=2", " And x"), "a=1And y=2");
    EXPECT_EQ(StripClause("a=1 And x And y=2", "And x"), "a=1 And y=2");
}

TEST(StripClause, LosesEverythingBetweenTheFirstAndTheLastOccurrence)
{
    EXPECT_EQ(StripClause("a=1 And NoSub.dKeepDate>= '1' And b=2 And NoSub.dKeepDate<= '9' And c=3",
                          " And NoSub.dKeepDate"),
              "a=1And c=3");
}

TEST(SpecializeRdView, NamesTheViewOfTheType)
{
    EXPECT_EQ(
        SpecializeRdView("From rpt_rdrecordsIA870wt NoSub left join Rdrecords a left join rdrecord b", "01"),
        "From rpt_rdrecordsIA870wt01 NoSub left join Rdrecords01 a left join rdrecord01 b");
}

}  // namespace
}  // namespace kavelin
