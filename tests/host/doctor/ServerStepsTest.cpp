#include "host/doctor/ServerSteps.h"

#include "host/doctor/FakeAccount.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

using Lines = std::vector<std::string>;

struct Facts {
    const char* version = "10.50.1600.1";
    int level = 100;
    const char* collation = "Chinese_PRC_CI_AS";
    const char* tempdb = "Chinese_PRC_CI_AS";
    int kept = 1;
};

FakeAccount ServerWith(const Facts& facts)
{
    FakeAccount account;
    account.Gives("ProductVersion",
                  {{"version", "edition"}, {{Value(facts.version), Value("Standard Edition")}}});
    account.Gives("sysdatabases",
                  {{"name", "cmptlevel", "collation", "tempdbCollation"},
                   {{Value("Books"), Value(facts.level), Value(facts.collation), Value(facts.tempdb)}}});
    account.Gives("as kept", {{"kept"}, {{Value(facts.kept)}}});
    return account;
}

std::vector<DoctorStep> Examine(const Facts& facts)
{
    FakeAccount account = ServerWith(facts);
    return ExamineServerFacts(account);
}

TEST(ServerFacts, PassOnAServerOfTheStatementsTime)
{
    const auto steps = Examine({});
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[0].found, "SQL Server 10.50.1600.1, Standard Edition; database Books at level 100.");
    EXPECT_EQ(steps[1].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[1].found, "Chinese_PRC_CI_AS, also in tempdb.");
}

TEST(ServerFacts, RefuseAServerThatIsTooOld)
{
    const auto steps = Examine({.version = "8.00.2039"});
    EXPECT_EQ(steps[0].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[0].found, "The server has the version 8.00.2039.");
}

TEST(ServerFacts, RefuseADatabaseKeptAtAnOldLevel)
{
    const auto steps = Examine({.level = 80});
    EXPECT_EQ(steps[0].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[0].advice, "Have it set to 90 or more: exec sp_dbcmptlevel 'Books', 90.");
}

TEST(ServerFacts, RefuseACollationThatTellsCapitalLetters)
{
    for (const char* collation : {"Chinese_PRC_CS_AS", "Chinese_PRC_BIN", "Latin1_General_BIN2"})
        EXPECT_EQ(Examine({.collation = collation, .tempdb = collation})[1].outcome, StepOutcome::Failed)
            << collation;
    EXPECT_EQ(Examine({.collation = "Latin1_General_CI_AI", .tempdb = "Latin1_General_CI_AI"})[1].outcome,
              StepOutcome::Ok);
}

TEST(ServerFacts, RefuseACollationWithoutChineseCharacters)
{
    const auto steps =
        Examine({.collation = "Latin1_General_CI_AS", .tempdb = "Latin1_General_CI_AS", .kept = 0});
    EXPECT_EQ(steps[1].outcome, StepOutcome::Failed);
    EXPECT_NE(steps[1].found.find("has no Chinese characters"), std::string::npos);
}

TEST(ServerFacts, RefuseATempdbOfAnotherCollation)
{
    const auto steps = Examine({.tempdb = "SQL_Latin1_General_CP1_CI_AS"});
    EXPECT_EQ(steps[1].outcome, StepOutcome::Failed);
    EXPECT_NE(steps[1].found.find("tempdb has SQL_Latin1_General_CP1_CI_AS"), std::string::npos);
}

TEST(ServerFacts, RefuseADatabaseOfAnotherMaker)
{
    FakeAccount account;
    account.Fails("ProductVersion", ErrorOf(1, "no such function: serverproperty", "HY000"));
    const auto steps = ExamineServerFacts(account);
    EXPECT_EQ(steps[0].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[0].found, "It doesn't answer as an SQL Server: no such function: serverproperty");
    EXPECT_EQ(steps[1].outcome, StepOutcome::Skipped);
}

TEST(Periods, TellHowManyMonthsTheAccountHas)
{
    FakeAccount account;
    account.Gives("min(iYear)",
                  {{"months", "firstYear", "lastYear"}, {{Value(24), Value(2007), Value(2008)}}});
    const DoctorStep step = ExaminePeriods(account, "0'1");
    EXPECT_EQ(step.outcome, StepOutcome::Ok);
    EXPECT_EQ(step.found, "24 fiscal months of account 0'1, 2007 to 2008.");
    EXPECT_NE(account.Sent()[0].find("cAcc_ID = N'0''1'"), std::string::npos);
}

TEST(Periods, NameTheAccountsThatTheServerHasInPlaceOfAnUnknownOne)
{
    FakeAccount account;
    account.Gives("min(iYear)",
                  {{"months", "firstYear", "lastYear"}, {{Value(0), Value::Null(), Value::Null()}}});
    account.Gives("distinct", {{"cAcc_ID"}, {{Value("002")}, {Value("905")}}});
    const DoctorStep step = ExaminePeriods(account, "001");
    EXPECT_EQ(step.outcome, StepOutcome::Failed);
    EXPECT_EQ(step.found, "VosSystem..UA_Period has no month of account 001.");
    EXPECT_EQ(step.details, (Lines{"002", "905"}));
}

TEST(Periods, FailWithoutTheSystemDatabase)
{
    FakeAccount account;
    account.Fails("UA_Period", ErrorOf(208, "Invalid object name 'VosSystem..UA_Period'."));
    const DoctorStep step = ExaminePeriods(account, "001");
    EXPECT_EQ(step.outcome, StepOutcome::Failed);
    EXPECT_EQ(step.found, "Invalid object name 'VosSystem..UA_Period'.");
    EXPECT_NE(step.advice.find("VosSystem"), std::string::npos);
}

TEST(Language, FailsWithoutTextsOfTheLoginsLanguage)
{
    FakeAccount account;
    account.Gives("AA_Enum", {{"texts"}, {{Value(0)}}});
    const DoctorStep step = ExamineLanguage(account, "en-US");
    EXPECT_EQ(step.outcome, StepOutcome::Failed);
    EXPECT_EQ(step.found, "AA_Enum has no texts in en-US.");
    account.Gives("AA_Enum", {{"texts"}, {{Value(310)}}});
    EXPECT_EQ(ExamineLanguage(account, "en-US").found, "310 texts in en-US.");
}

TEST(Language, TellsWhereTheDatabaseHasALanguageOfItsOwn)
{
    FakeAccount account;
    account.Gives("AA_Enum", {{"texts"}, {{Value(310)}}});
    account.Gives("UDF_GetLocaleID", {{""}, {{Value("zh-CN")}}});
    EXPECT_EQ(ExamineLanguage(account, "zh-CN").details, Lines{});
    const DoctorStep step = ExamineLanguage(account, "en-US");
    EXPECT_EQ(step.outcome, StepOutcome::Ok);
    ASSERT_EQ(step.details.size(), 1u);
    EXPECT_TRUE(step.details[0].starts_with("dbo.UDF_GetLocaleID() answers zh-CN:")) << step.details[0];

    account.Fails("UDF_GetLocaleID", ErrorOf(4121, "Cannot find the function."));
    EXPECT_EQ(ExamineLanguage(account, "en-US").details, Lines{});
}

TEST(Language, IsSkippedWhereTheTextsCannotBeRead)
{
    FakeAccount account;
    account.Fails("AA_Enum", ErrorOf(208, "Invalid object name 'AA_Enum'."));
    EXPECT_EQ(ExamineLanguage(account, "zh-CN").outcome, StepOutcome::Skipped);
}

}  // namespace
}  // namespace kavelin::host
