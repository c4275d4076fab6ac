#include "support/tds/OwnAnswers.h"
#include "support/tds/Tokens.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

SessionSettings Take(std::string_view& batch)
{
    SessionSettings settings;
    settings.database = "Account_001";
    TakeSettings(batch, settings, ServerOptions());
    return settings;
}

TEST(TakeSettings, LeavesWhatFollows)
{
    std::string_view batch = "set textsize 64512 SET ANSI_NULLS ON; use [tempdb]\r\nselect 1";
    EXPECT_EQ(Take(batch).database, "tempdb");
    EXPECT_EQ(batch, "\r\nselect 1");
}

TEST(TakeSettings, LeavesNothingOfABatchOfSettings)
{
    std::string_view batch = "set transaction isolation level read committed ;\r\n";
    Take(batch);
    EXPECT_EQ(batch, "");
}

TEST(TakeSettings, LeavesASettingThatItDoesNotKnow)
{
    std::string_view batch = "set identity_insert T on";
    Take(batch);
    EXPECT_EQ(batch, "set identity_insert T on");
}

TEST(TakeSettings, TurnsTheCountsOfRowsOffAndOn)
{
    std::string_view off = "SET NOCOUNT ON";
    EXPECT_FALSE(Take(off).countsRows);
    std::string_view on = "set nocount on set nocount off";
    EXPECT_TRUE(Take(on).countsRows);
}

TEST(TakeSettings, RefusesADatabaseThatIsNotThere)
{
    std::string_view batch = "use [Nowhere]";
    try {
        Take(batch);
        FAIL() << "taken";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.Why().number, 911);
    }
}

TEST(OwnAnswer, TakesAnyCaseAndAnyBlanks)
{
    const auto answer = OwnAnswer(" SELECT\r\n  DB_NAME() ;", {}, "tempdb");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->rows, (std::vector<std::vector<Value>>{{"tempdb"}}));
}

TEST(OwnAnswer, TellsTheVersionThatTheOptionsGive)
{
    ServerOptions options;
    options.version = "8.0.2039";
    const auto answer = OwnAnswer("select @@version", options, "master");
    ASSERT_TRUE(answer);
    EXPECT_NE(answer->rows[0][0].As<std::string>()->find("8.0.2039"), std::string::npos);
}

TEST(OwnAnswer, LeavesEverythingElseToTheAccount)
{
    EXPECT_FALSE(OwnAnswer("select db_name() from T", {}, "master"));
}

}  // namespace
}  // namespace kavelin::test::tds
