#include "snapshot/CopyPlan.h"

#include "snapshot/CopyAccounts.h"

#include "host/HostErrors.h"

namespace kavelin::snapshot {
namespace {

using Names = std::vector<std::string>;

class CopyPlanTest : public testing::Test {
  protected:
    CopyPlan Plan(const CopyChoice& choice = {})
    {
        return PlanCopy(source.Account(), nullptr, nullptr, choice);
    }

    static Names TablesOf(const CopyPlan& plan)
    {
        Names names;
        for (const PlannedTable& table : plan.tables)
            names.push_back(table.object->name);
        return names;
    }

    test::TestFolder folder;
    OpenAccount source{folder / "a.kavelin", OpenAccount::Made::Bare};
};

TEST_F(CopyPlanTest, NotesColumnsThatOneSideLacks)
{
    source.Run("create table Person (CPERSONCODE nvarchar(20), [it's] int, cPhone nvarchar(9))");
    const CopyPlan plan = Plan();
    ASSERT_EQ(plan.tables.size(), 1u);
    EXPECT_EQ(plan.tables[0].columns.size(), 1u);
    EXPECT_EQ(plan.tables[0].notes,
              (Names{"Person: columns not read by the reports, so left out: cPhone, it's",
                     "Person: column not in the source, so NULL: cPersonName"}));
}

TEST_F(CopyPlanTest, NotesTablesThatTheSourceLacks)
{
    source.Run("create table Person (cPersonCode nvarchar(20), cPersonName nvarchar(60))");
    const CopyPlan plan = Plan({.tables = {"Person", "Vendor", "rdrecord"}});
    EXPECT_EQ(TablesOf(plan), (Names{"Person"}));
    EXPECT_EQ(plan.notes, (Names{"Not in the source: Vendor, rdrecord"}));
}

TEST_F(CopyPlanTest, TakesThePresetOfAColumnThatMayNotBeNull)
{
    source.Run("create table Inventory (cInvCode nvarchar(60))");
    const CopyPlan plan = Plan();
    EXPECT_NE(plan.tables[0].notes.back().find("as the schema presets them: bCheckFree1"), std::string::npos);
}

TEST_F(CopyPlanTest, RefusesATableWithoutAColumnThatMustHaveAValue)
{
    source.Run("create table Vendor (cVenCode nvarchar(20))");
    try {
        Plan();
        FAIL() << "nothing was refused";
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(),
                     "The table Vendor of the source has no column cVenName, which may not be NULL.");
    }
}

TEST_F(CopyPlanTest, RefusesATableThatNoReportReads)
{
    try {
        Plan({.tables = {"Inventori"}});
        FAIL() << "nothing was refused";
    } catch (const host::UsageError& error) {
        EXPECT_STREQ(error.what(), "The reports read no table \"Inventori\". Did you mean Inventory?");
    }
}

TEST_F(CopyPlanTest, PrefersTheTablesBelowAView)
{
    OpenAccount whole(folder / "whole.kavelin");
    const CopyPlan plan = PlanCopy(whole.Account(), nullptr, nullptr, {});
    for (const PlannedTable& table : plan.tables)
        EXPECT_FALSE(table.IsSnapshotOfView()) << table.object->name;
    EXPECT_TRUE(plan.notes.empty());
}

class YearsTest : public testing::Test {
  protected:
    YearsTest()
    {
        source.Run(
            "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd) values"
            " (N'001', 2007, 12, '20071126', '20071225'), (N'001', 2008, 1, '20071226', '20080125'),"
            " (N'001', 2008, 12, '20081126', '20081225'), (N'001', 2009, 1, '20081226', '20090125')");
        source.Run(
            "insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, bRdFlag,"
            " cInvCode, ID) values"
            " (2007, 12, '20071201', '20071201', N'a', N'01', 1, N'A', 10),"
            " (2008, 0, '20071201', '20071201', N'a', N'01', 1, N'A', 11),"
            " (2009, 1, '20090101', '20090101', N'a', N'01', 1, N'A', 12)");
        source.Run("insert into pl_co_SubSidiary (ia_autoid) values (1), (2), (3)");
        // In the years, before, after, before but named by the ledger, before but not posted.
        source.Run(
            "insert into Demo_Document (DocID, Kind, cVouType, cVouCode, dVouDate) values"
            " (1, N'RD', N'01', N'1', '20071226'), (2, N'RD', N'01', N'2', '20071225'),"
            " (3, N'RD', N'01', N'3', '20081226'), (4, N'RD', N'01', N'4', '20071101'),"
            " (5, N'RD', N'01', N'5', '20071101'), (6, N'RD', N'01', N'6', '20081225 10:00:00')");
        source.Run(
            "insert into Demo_DocumentLine (LineID, DocID, cInvCode, bRdFlag, cAccounter) values"
            " (1, 1, N'A', 1, N'a'), (10, 2, N'A', 1, N'a'), (12, 3, N'A', 1, N'a'),"
            " (11, 4, N'A', 1, N'a'), (13, 5, N'A', 1, N''), (14, 6, N'A', 1, N'a')");
        CopyOptions options;
        options.choice.years = std::pair(2008, 2008);
        const auto target = copy.Target();
        objResult = Copy(source.Account(), *target, options);
    }

    test::TestFolder folder;
    OpenAccount source{folder / "source.kavelin"};
    OpenAccount copy{folder / "copy.kavelin"};
    CopyResult objResult;
};

TEST_F(YearsTest, KeepTheLedgerRowsOfTheYearsAndWhatHangsOnThem)
{
    EXPECT_TRUE(objResult.differences.empty());
    EXPECT_EQ(copy.Rows("select AutoID from IA_Subsidiary"), "2\n");
    EXPECT_EQ(copy.Rows("select ia_autoid from pl_co_SubSidiary"), "2\n");
}

TEST_F(YearsTest, KeepDocumentsOfTheirFiscalDaysAndThoseThatAreOpenOrNamed)
{
    EXPECT_EQ(copy.Rows("select DocID from Demo_Document order by DocID"), "1\n4\n5\n6\n");
    EXPECT_EQ(copy.Rows("select LineID from Demo_DocumentLine order by LineID"), "1\n11\n13\n14\n");
}

TEST_F(YearsTest, KeepEarlierPeriodsButNoLaterOnes)
{
    EXPECT_EQ(copy.Rows("select iYear, iID from VosSystem..UA_Period order by iYear, iID"),
              "2007|12\n2008|1\n2008|12\n");
}

}  // namespace
}  // namespace kavelin::snapshot
