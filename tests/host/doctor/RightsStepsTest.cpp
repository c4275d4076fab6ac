#include "host/doctor/RightsSteps.h"

#include "host/doctor/FakeAccount.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::host {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kText = "库存 café €5 𠮷";

class RightsSteps : public testing::Test {
  protected:
    RightsSteps() { objAccount.Gives("select cText", {{"cText"}, {{Value(kText)}}}); }

    // Whether the table of the account or, with "tempdb..", that of tempdb is dropped in the end.
    bool Drops(const std::string& prefix) const
    {
        return std::ranges::find(objAccount.Sent(), "drop table " + prefix + "KavelinDoctor_A1") !=
               objAccount.Sent().end();
    }

    FakeAccount objAccount;
};

std::vector<DoctorStep> ExamineRights(Connection& account, const std::string& number)
{
    return {ExamineTables(account, number), ExamineTablesOfTempdb(account, number)};
}

TEST_F(RightsSteps, MakeFillReadAndDropATableInBothDatabases)
{
    const auto steps = ExamineRights(objAccount, "A1");
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].found, "The login may make tables in the account's database.");
    EXPECT_EQ(steps[1].found, "The login may make tables in tempdb.");
    EXPECT_EQ(
        objAccount.Sent(),
        (Lines{
            "create table KavelinDoctor_A1 (cText nvarchar(60) null, iNumber int not null)",
            "alter table KavelinDoctor_A1 add fMoney decimal(38, 6) null",
            std::string("insert into KavelinDoctor_A1 (cText, iNumber) values (N'") + kText + "', 1)",
            "select cText from KavelinDoctor_A1 where iNumber = 1", "drop table KavelinDoctor_A1",
            "create table tempdb..KavelinDoctor_A1 (cText nvarchar(60) null, iNumber int not null)",
            "alter table tempdb..KavelinDoctor_A1 add fMoney decimal(38, 6) null",
            std::string("insert into tempdb..KavelinDoctor_A1 (cText, iNumber) values (N'") + kText + "', 1)",
            "select cText from tempdb..KavelinDoctor_A1 where iNumber = 1",
            "drop table tempdb..KavelinDoctor_A1"}));
}

TEST_F(RightsSteps, TellWhichOfTheDatabasesRefusesATable)
{
    objAccount.Fails("create table tempdb..",
                     ErrorOf(262, "CREATE TABLE permission denied in database 'tempdb'."));
    const auto steps = ExamineRights(objAccount, "A1");
    EXPECT_EQ(steps[0].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[1].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[1].found, "CREATE TABLE permission denied in database 'tempdb'.");
    EXPECT_NE(steps[1].advice.find("user of tempdb"), std::string::npos);
    EXPECT_FALSE(Drops("tempdb.."));  // nothing was made
}

TEST_F(RightsSteps, DropTheTableAfterEveryFailure)
{
    for (const char* statement : {"alter table", "insert into", "select cText"}) {
        FakeAccount account;
        account.Gives("select cText", {{"cText"}, {{Value(kText)}}});
        account.Fails(statement, ErrorOf(229, "The permission was denied."));
        const auto steps = ExamineRights(account, "A1");
        EXPECT_EQ(steps[0].outcome, StepOutcome::Failed) << statement;
        EXPECT_EQ(steps[0].found, "The permission was denied.") << statement;
        EXPECT_EQ(std::ranges::count(account.Sent(), "drop table KavelinDoctor_A1"), 1) << statement;
        EXPECT_EQ(account.Sent().back(), "drop table tempdb..KavelinDoctor_A1") << statement;
    }
}

TEST_F(RightsSteps, FailWhereTheTableCannotBeDropped)
{
    objAccount.Fails("drop table K", ErrorOf(3701, "Cannot drop the table."));
    EXPECT_EQ(ExamineRights(objAccount, "A1")[0].found, "Cannot drop the table.");
}

TEST_F(RightsSteps, FailWhereTextsComeBackChanged)
{
    objAccount.Gives("select cText", {{"cText"}, {{Value("?? caf? ?5 ??")}}});
    const auto steps = ExamineRights(objAccount, "A1");
    EXPECT_EQ(steps[0].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[0].found, "Texts don't come back from the account's database as they were written.");
    EXPECT_TRUE(Drops(""));
}

}  // namespace
}  // namespace kavelin::host
