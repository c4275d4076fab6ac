#include "demo/DemoCompany.h"

#include "demo/MemorySink.h"
#include "demo/QueryRows.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/Instance.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kavelin::demo {
namespace {

TEST(DemoCompany, HoldsTheGeneratedRows)
{
    TestFolder folder;
    const std::filesystem::path account = folder / "demo.kavelin";
    MakeDemoAccount(account, Profiles().front(), kDefaultLines, kDefaultSeed);

    for (const auto& [table, rows] : Generate(Profiles().front(), kDefaultLines, kDefaultSeed).tables)
        EXPECT_EQ(QueryRows(account, "select count(*) from " + table),
                  std::to_string(rows.rows.size()) + "\n")
            << table;

    EXPECT_EQ(QueryRows(account,
                        "select AutoID, dKeepDate, cVouType, cBusType, cInvCode, iAInQuantity, iAInPrice, "
                        "iAOutPrice, cMemo from IA_Subsidiary where AutoID = 1"),
              "1|2008-01-01|34|NULL|STL-01-001|2960|52155.2|NULL|NULL\n");
}

// Comparisons leave out work for columns of which the engine knows something; it must be true.
TEST(DemoCompany, HoldsTextsThatAreAsTheEngineKnowsThem)
{
    TestFolder folder;
    const std::filesystem::path path = folder / "demo.kavelin";
    MakeDemoAccount(path, Profiles().front(), MinimumLines(), 1);
    const auto account = embedded::OpenAccount(path.string());
    embedded::Session session(account->Shared()->Duck());
    int folded = 0;
    int asTheyStand = 0;
    for (const embedded::ObjectInfo& table : account->Objects(embedded::Database::Account)) {
        if (table.kind != embedded::ObjectKind::Table)
            continue;
        for (const embedded::ColumnInfo& column : table.columns) {
            if (!column.type.IsText())
                continue;
            const auto rowsWith = [&](const std::string& condition) {
                return ToInt32(
                    session.Run("select count(*) from " + table.duckName + " where " + condition).Get(0, 0));
            };
            const std::string name = '"' + column.name + '"';
            const bool trimmed = rowsWith("ends_with(" + name + ", ' ')") == 0;
            const bool capitals = rowsWith(name + " <> upper(" + name + ")") == 0;
            EXPECT_TRUE(trimmed || !column.facts.noTrailingBlanks) << table.name << "." << column.name;
            EXPECT_TRUE(capitals || !column.facts.noCase) << table.name << "." << column.name;
            ++(column.facts.noCase ? asTheyStand : folded);
        }
    }
    // The demo meets both kinds.
    EXPECT_GT(folded, 10);
    EXPECT_GT(asTheyStand, 10);
}

TEST(DemoCompany, HoldsTheWrittenRows)
{
    TestFolder folder;
    const std::filesystem::path account = folder / "demo.kavelin";
    MakeDemoAccount(account, Profiles().front(), MinimumLines(), 1);
    EXPECT_EQ(QueryRows(account,
                        "select cValue from AccInformation where cSysID = N'IA' and cName = N'dIAStartDate'"),
              "2008-01-01\n");
    EXPECT_EQ(QueryRows(account,
                        "select cValue from AccInformation where cSysID = N'aa' and cName = N'ArchiveDate'"),
              "NULL\n");
    EXPECT_EQ(QueryRows(account, "select cVouchName from VouchType where cVouchType = N'EX26'"),
              "出口发票\n");
    EXPECT_EQ(QueryRows(account,
                        "select EnumName from AA_Enum where EnumType = N'ia.bustype' and "
                        "EnumCode = N'直运采购' and LocaleID = N'en-US'"),
              "Direct purchase\n");
    // Every voucher type has its texts, in both types of voucher texts and both languages.
    EXPECT_EQ(QueryRows(account,
                        "select count(*) from VouchType inner join AA_Enum on "
                        "VouchType.cVouchName = AA_Enum.EnumCode and "
                        "EnumType in (N'IA.VchType', N'IA.BillforVch')"),
              "104\n");  // 26 * 2 * 2
    // Every business type of the ledger has its text.
    EXPECT_EQ(QueryRows(account,
                        "select count(*) from IA_Subsidiary where not cBusType is null and not exists "
                        "(select EnumCode from AA_Enum where EnumType = N'IA.BusType' and "
                        "EnumCode = IA_Subsidiary.cBusType)"),
              "0\n");
}

TEST(DemoCompany, IsNotMadeOverAnotherAccount)
{
    TestFolder folder;
    const std::filesystem::path account = folder / "demo.kavelin";
    MakeDemoAccount(account, Profiles().front(), MinimumLines(), 1);
    EXPECT_THROW(MakeDemoAccount(account, Profiles().front(), 2 * MinimumLines(), 1), ConnectionError);
    EXPECT_EQ(QueryRows(account, "select count(*) from IA_Subsidiary"),
              std::to_string(MinimumLines()) + "\n");
}

TEST(DemoCompany, LeavesNoFileBehindAFailure)
{
    TestFolder folder;
    EXPECT_THROW(MakeDemoAccount(folder / "small.kavelin", Profiles().front(), MinimumLines() - 1, 1), Error);
    const Progress stop = [](std::int64_t, std::int64_t) { throw std::runtime_error("stopped"); };
    EXPECT_THROW(MakeDemoAccount(folder / "stopped.kavelin", Profiles().front(), 20000, 1, stop),
                 std::runtime_error);
    EXPECT_TRUE(folder.Names().empty()) << folder.Names().front();
}

}  // namespace
}  // namespace kavelin::demo
