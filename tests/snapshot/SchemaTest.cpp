#include "snapshot/Schema.h"

#include "snapshot/CopyAccounts.h"

#include "demo/Scripts.h"

#include <algorithm>

namespace kavelin::snapshot {
namespace {

using Names = std::vector<std::string>;

TEST(SnapshotSchema, HasTheTablesOfTheScripts)
{
    Names tables;
    for (const SchemaObject& object : Schema())
        if (object.kind == SchemaKind::Table)
            tables.push_back(object.name);
    EXPECT_EQ(tables, demo::SchemaTables());
}

TEST(SnapshotSchema, KnowsColumnsKeysAndIndexes)
{
    const SchemaObject& periods = *FindInSchema("ua_period");
    EXPECT_EQ(periods.name, "VosSystem..UA_Period");
    EXPECT_TRUE(periods.inSystem);
    EXPECT_EQ(periods.key, (Names{"cAcc_ID", "iYear", "iID"}));

    const SchemaObject& ledger = *FindInSchema("IA_Subsidiary");
    EXPECT_TRUE(ledger.columns.front().identity);
    EXPECT_EQ(ledger.statements.size(), 6u);
    EXPECT_TRUE(ledger.statements.front().starts_with("create table IA_Subsidiary ("));
    EXPECT_TRUE(ledger.statements.back().starts_with("create index "));

    EXPECT_EQ(FindInSchema("ia_accountarea")->key, (Names{"AutoID"}));
    EXPECT_EQ(FindInSchema("Nothing"), nullptr);
}

TEST(SnapshotSchema, KnowsTheTablesBelowAView)
{
    EXPECT_EQ(FindInSchema("rdrecord")->standsOn, (Names{"Demo_Document"}));
    const Names below = FindInSchema("rpt_rdrecordsIA870wt01")->standsOn;
    for (const char* table : {"Demo_Document", "Demo_DocumentLine"})
        EXPECT_NE(std::ranges::find(below, table), below.end()) << table;
}

TEST(SnapshotSchema, MakesTablesInTheShapeOfItsViews)
{
    test::TestFolder folder;
    OpenAccount account(folder / "a.kavelin", OpenAccount::Made::Bare);
    for (const SchemaObject& object : Schema()) {
        if (object.kind != SchemaKind::View)
            continue;
        account.Run(CreateTableLike(object));
        EXPECT_EQ(account.Rows("select * from " + object.name), "");
    }
}

}  // namespace
}  // namespace kavelin::snapshot
