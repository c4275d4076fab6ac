#include "host/doctor/SchemaSteps.h"

#include "host/doctor/FakeAccount.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::host {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kNeeds =
    "# remark\n"
    "Warehouse: abc journal\n"
    "    cWhCode: abc journal\n"
    "    cWhName bInCost: journal\n"
    "    cSpare:\n"
    "Spare:\n"
    "    cText:\n"
    "dbo.UDF_GetLocaleID(): journal\n";

class SchemaSteps : public testing::Test {
  protected:
    SchemaSteps()
    {
        objAccount.Gives("from Warehouse", {{"CWHCODE", "cWhName", "bInCost", "cSpare", "more"}, {}});
        objAccount.Gives("from Spare", {{"cText"}, {}});
        objAccount.Gives("UDF_GetLocaleID", {{""}, {{Value("zh-CN")}}});
    }

    std::vector<DoctorStep> Examine() { return ExamineSchema(objAccount, ReadAccountNeeds(kNeeds)); }

    FakeAccount objAccount;
};

TEST(AccountNeeds, KnowTheReportsOfEveryObjectAndColumn)
{
    const std::vector<NeededObject> needs = ReadAccountNeeds(kNeeds);
    ASSERT_EQ(needs.size(), 3u);
    EXPECT_EQ(needs[0].reports, "abc journal");
    ASSERT_EQ(needs[0].columns.size(), 4u);
    EXPECT_EQ(needs[0].columns[2].name, "bInCost");
    EXPECT_EQ(needs[0].columns[2].reports, "journal");
    EXPECT_EQ(needs[0].columns[3].reports, "");
    EXPECT_TRUE(needs[2].IsFunction());
    EXPECT_FALSE(needs[0].IsFunction());
}

TEST(AccountNeeds, NameTheLedgerTheSystemDatabaseAndTheFunction)
{
    const std::vector<NeededObject>& needs = AccountNeeds();
    for (const char* name : {"IA_Subsidiary", "VosSystem..UA_Period", "dbo.UDF_GetLocaleID()", "rdrecords32"})
        EXPECT_TRUE(std::ranges::any_of(needs, [&](const NeededObject& need) { return need.name == name; }))
            << name;
}

TEST_F(SchemaSteps, PassWhereEverythingIsThereInWhateverCase)
{
    const auto steps = Examine();
    ASSERT_EQ(steps.size(), 3u);
    EXPECT_EQ(steps[0].found, "All 3 tables, views and functions are there.");
    EXPECT_EQ(steps[1].found, "All 3 columns that reports read are there.");
    EXPECT_EQ(steps[2].found, "The login may read what is there.");
    for (const DoctorStep& step : steps)
        EXPECT_EQ(step.outcome, StepOutcome::Ok) << step.name;
}

TEST_F(SchemaSteps, AskForNoRows)
{
    Examine();
    EXPECT_EQ(objAccount.Sent(), (Lines{"select * from Warehouse where 1=0", "select * from Spare where 1=0",
                                        "select dbo.UDF_GetLocaleID()"}));
}

TEST_F(SchemaSteps, NameTheReportsOfAMissingTable)
{
    objAccount.Fails("from Warehouse", ErrorOf(208, "Invalid object name 'Warehouse'."));
    const auto steps = Examine();
    EXPECT_EQ(steps[0].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[0].found, "1 of the tables, views and functions that reports read is missing or broken.");
    EXPECT_EQ(steps[0].details, Lines{"Warehouse: abc journal"});
    EXPECT_FALSE(steps[0].advice.empty());
    EXPECT_EQ(steps[1].outcome, StepOutcome::Ok);
}

TEST_F(SchemaSteps, KnowAMissingTableByTheStateOfOtherDrivers)
{
    objAccount.Fails("from Warehouse", ErrorOf(1, "no such table: Warehouse", "42S02"));
    EXPECT_EQ(Examine()[0].details, Lines{"Warehouse: abc journal"});
}

TEST_F(SchemaSteps, NameTheReportsOfAMissingFunction)
{
    objAccount.Fails("UDF_GetLocaleID", ErrorOf(4121, "Cannot find either column \"dbo\" or the function."));
    EXPECT_EQ(Examine()[0].details, Lines{"dbo.UDF_GetLocaleID(): journal"});
}

TEST_F(SchemaSteps, NameTheReportsOfMissingColumns)
{
    objAccount.Gives("from Warehouse", {{"cWhCode", "cSpare"}, {}});
    const auto steps = Examine();
    EXPECT_EQ(steps[0].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[1].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[1].found, "2 columns that reports read are missing.");
    EXPECT_EQ(steps[1].details, (Lines{"Warehouse.cWhName: journal", "Warehouse.bInCost: journal"}));
}

TEST_F(SchemaSteps, PassWithoutWhatNoUsualRunReads)
{
    objAccount.Gives("from Warehouse", {{"cWhCode", "cWhName", "bInCost"}, {}});
    objAccount.Fails("from Spare", ErrorOf(208, "Invalid object name 'Spare'."));
    const auto steps = Examine();
    EXPECT_EQ(steps[0].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[0].details, Lines{"Spare is not there; no usual run of a report reads it"});
    EXPECT_EQ(steps[1].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[1].details, Lines{"Warehouse.cSpare is not there; no usual run of a report reads it"});
}

TEST_F(SchemaSteps, TellWhatMayNotBeReadApartFromWhatIsMissing)
{
    objAccount.Fails("from Warehouse",
                     ErrorOf(229, "The SELECT permission was denied on the object 'Warehouse'."));
    const auto steps = Examine();
    EXPECT_EQ(steps[0].outcome, StepOutcome::Ok);
    EXPECT_EQ(steps[2].outcome, StepOutcome::Failed);
    EXPECT_EQ(steps[2].details, Lines{"Warehouse: abc journal"});
}

TEST_F(SchemaSteps, TellWhatTheServerSaysOfABrokenView)
{
    objAccount.Fails("from Warehouse",
                     ErrorOf(4413, "Could not use view 'Warehouse' because of binding errors."));
    EXPECT_EQ(Examine()[0].details,
              Lines{"Warehouse: abc journal: Could not use view 'Warehouse' because of binding errors."});
}

TEST_F(SchemaSteps, BreakOffWhereTheConnectionIsLost)
{
    objAccount.IsLostAt("from Warehouse");
    EXPECT_THROW(Examine(), DatabaseError);
    EXPECT_EQ(objAccount.Sent().size(), 1u);
}

}  // namespace
}  // namespace kavelin::host
