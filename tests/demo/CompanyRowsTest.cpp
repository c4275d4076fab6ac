#include "demo/CompanyRows.h"

#include "demo/MemorySink.h"
#include "frame/Errors.h"
#include "frame/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace kavelin::demo {
namespace {

const Profile& Industry()
{
    return Profiles().front();
}

TEST(CompanyRows, AreTheSameForTheSameSeed)
{
    EXPECT_EQ(Generate(Industry(), kDefaultLines, 7).Hash(), Generate(Industry(), kDefaultLines, 7).Hash());
    EXPECT_NE(Generate(Industry(), kDefaultLines, 7).Hash(), Generate(Industry(), kDefaultLines, 8).Hash());
}

// Known figures of reports rest on the rows of the demo companies. If one is changed on purpose, its number and
// those figures change with it.
TEST(CompanyRows, AreTheSameOnEveryPlatform)
{
    const std::map<std::string_view, std::uint64_t> hashes = {
        {"industry", 3283945601164181935u}, {"trade", 16087193829119624855u},
        {"works", 10538282964729567926u},   {"goods-sent", 9425943001286498097u},
        {"invoices", 5905241145875353986u}, {"shop", 12056356937981287962u},
    };
    for (const Profile& profile : Profiles())
        EXPECT_EQ(Generate(profile, MinimumLines(), kDefaultSeed).Hash(), hashes.at(profile.name))
            << profile.name;
}

TEST(CompanyRows, FillEveryTableAndEndOnce)
{
    for (const Profile& profile : Profiles()) {
        const MemorySink sink = Generate(profile, MinimumLines(), kDefaultSeed);
        EXPECT_TRUE(sink.finished);
        for (const auto& [name, table] : sink.tables) {
            const bool empty = (name == "Demo_UserRight" && profile.rights.empty()) ||
                               (name.find("Std") != name.npos && !profile.standardCosts) ||
                               (name.find("STSub") != name.npos && !profile.standardCosts) ||
                               (name.find("pl_co_") != name.npos && !profile.standardCosts);
            EXPECT_EQ(table.rows.empty(), empty) << profile.name << ' ' << name;
        }
    }
}

TEST(CompanyRows, HaveAsManyLedgerLinesAsAskedFor)
{
    for (const std::int64_t lines : {MinimumLines(), std::int64_t{2009}, kDefaultLines, std::int64_t{30000}})
        EXPECT_EQ(Generate(Industry(), lines, 1).Table("IA_Subsidiary").rows.size(),
                  static_cast<std::size_t>(lines));
}

TEST(CompanyRows, RefuseALedgerThatIsTooSmallOrTooLarge)
{
    MemorySink sink;
    EXPECT_THROW(GenerateCompany(Industry(), MinimumLines() - 1, 1, sink, {}), Error);
    EXPECT_THROW(GenerateCompany(Industry(), -5, 1, sink, {}), Error);
    EXPECT_THROW(GenerateCompany(Industry(), 3'000'000'000, 1, sink, {}), Error);
    EXPECT_TRUE(sink.tables.empty());
}

TEST(CompanyRows, GrowInItemsWithTheLedger)
{
    EXPECT_EQ(Generate(Industry(), 6000, 1).Table("Inventory").rows.size(), 75u);  // 74 kinds and a service
    // Lines above 6,000 bring an item for each 1,050: 94,000 bring 89 more.
    EXPECT_EQ(Generate(Industry(), 100000, 1).Table("Inventory").rows.size(), 75u + 89u);
}

TEST(CompanyRows, TellTheirProgressUpToTheEnd)
{
    MemorySink sink;
    std::vector<std::int64_t> told;
    GenerateCompany(Industry(), 20000, 1, sink, [&](std::int64_t done, std::int64_t total) {
        EXPECT_EQ(total, 20000);
        told.push_back(done);
    });
    ASSERT_GE(told.size(), 2u);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.back(), 20000);
}

TEST(CompanyRows, KeepTheKeysOfMasterDataSingle)
{
    const MemorySink sink = Generate(Industry(), 30000, kDefaultSeed);
    const std::pair<const char*, const char*> keys[] = {{"Inventory", "cInvCode"},
                                                        {"InventoryClass", "cInvCCode"},
                                                        {"Warehouse", "cWhCode"},
                                                        {"Department", "cDepCode"},
                                                        {"Rd_Style", "cRdCode"},
                                                        {"Vendor", "cVenCode"},
                                                        {"Vendor", "cVenName"},
                                                        {"VendorClass", "cVCCode"},
                                                        {"Customer", "cCusCode"},
                                                        {"CustomerClass", "cCCCode"},
                                                        {"Person", "cPersonCode"},
                                                        {"ComputationGroup", "cGroupCode"},
                                                        {"ComputationUnit", "cComUnitCode"},
                                                        {"IA_Subsidiary", "AutoID"},
                                                        {"IA_Summary", "AutoID"},
                                                        {"ia_data_subsidiary", "AutoID"}};
    for (const auto& [table, column] : keys) {
        const MemoryTable& rows = sink.Table(table);
        std::set<std::string, LessNoCase> seen;
        for (std::size_t row = 0; row < rows.rows.size(); ++row)
            EXPECT_TRUE(seen.insert(rows.Text(row, column)).second) << table << ' ' << rows.Text(row, column);
    }
}

TEST(CompanyRows, ReferToMasterDataThatIsThere)
{
    const MemorySink sink = Generate(Industry(), kDefaultLines, kDefaultSeed);
    const auto keysOf = [&](const char* table, const char* column) {
        std::set<std::string> keys = {""};  // of a null
        for (std::size_t row = 0; row < sink.Table(table).rows.size(); ++row)
            keys.insert(sink.Table(table).Text(row, column));
        return keys;
    };
    const struct {
        const char *table, *column, *master, *key;
    } references[] = {
        {"IA_Subsidiary", "cInvCode", "Inventory", "cInvCode"},
        {"IA_Subsidiary", "cWhCode", "Warehouse", "cWhCode"},
        {"IA_Subsidiary", "cDepCode", "Department", "cDepCode"},
        {"IA_Subsidiary", "cRdCode", "Rd_Style", "cRdCode"},
        {"IA_Subsidiary", "cVenCode", "Vendor", "cVenCode"},
        {"IA_Subsidiary", "cCusCode", "Customer", "cCusCode"},
        {"IA_Subsidiary", "cHandler", "Person", "cPersonName"},
        {"IA_Subsidiary", "cAccounter", "Person", "cPersonName"},
        {"Inventory", "cInvCCode", "InventoryClass", "cInvCCode"},
        {"Inventory", "cComUnitCode", "ComputationUnit", "cComUnitCode"},
        {"Inventory", "cSTComUnitCode", "ComputationUnit", "cComUnitCode"},
        {"Inventory", "cGroupCode", "ComputationGroup", "cGroupCode"},
        {"ComputationUnit", "cGroupCode", "ComputationGroup", "cGroupCode"},
        {"Warehouse", "cDepCode", "Department", "cDepCode"},
        {"Vendor", "cVCCode", "VendorClass", "cVCCode"},
        {"Customer", "cCCCode", "CustomerClass", "cCCCode"},
    };
    for (const auto& reference : references) {
        const std::set<std::string> keys = keysOf(reference.master, reference.key);
        const MemoryTable& table = sink.Table(reference.table);
        for (std::size_t row = 0; row < table.rows.size(); ++row)
            ASSERT_TRUE(keys.contains(table.Text(row, reference.column)))
                << reference.table << '.' << reference.column << ' ' << table.Text(row, reference.column);
    }
}

TEST(CompanyRows, HoldTheMonthsOfThreeYearsAndTheSentinel)
{
    const MemorySink sink = Generate(Industry(), MinimumLines(), 1);
    const MemoryTable& periods = sink.Table("VosSystem..UA_Period");
    ASSERT_EQ(periods.rows.size(), 37u);
    EXPECT_EQ(periods.Text(0, "dBegin"), "2007-01-01");
    EXPECT_EQ(periods.Text(13, "dBegin"), "2008-02-01");
    EXPECT_EQ(periods.Text(13, "dEnd"), "2008-02-29");
    EXPECT_EQ(periods.Text(35, "dEnd"), "2009-12-31");
    EXPECT_EQ(periods.Text(36, "iYear"), "9999");
}

TEST(CompanyRows, GiveTheAreaTableADoubledRowAnUnknownItemAndAnUnknownWarehouse)
{
    const MemorySink sink = Generate(Industry(), MinimumLines(), 1);
    const MemoryTable& data = sink.Table("ia_data_subsidiary");
    const MemoryTable& area = sink.Table("ia_accountarea");
    const MemoryTable& items = sink.Table("Inventory");

    std::map<std::string, std::size_t> rowOf;
    for (std::size_t row = 0; row < data.rows.size(); ++row)
        rowOf[data.Text(row, "AutoID")] = row;
    std::set<std::string> knownItems;
    for (std::size_t row = 0; row < items.rows.size(); ++row)
        knownItems.insert(items.Text(row, "cInvCode"));

    std::map<std::string, int> chosen;
    int unknownItems = 0, unknownWarehouses = 0;
    for (std::size_t row = 0; row < area.rows.size(); ++row) {
        const std::string number = area.Text(row, "AutoID");
        ASSERT_TRUE(rowOf.contains(number)) << number;
        ++chosen[number];
        unknownItems += !knownItems.contains(data.Text(rowOf[number], "cInvCode"));
        unknownWarehouses += data.Text(rowOf[number], "cWhCode") == "99";
    }
    EXPECT_EQ(std::ranges::count(chosen, 2, &std::pair<const std::string, int>::second), 1);
    EXPECT_EQ(unknownItems, 1);
    EXPECT_EQ(unknownWarehouses, 1);
    EXPECT_LT(chosen.size(), data.rows.size());  // an area is a choice
}

}  // namespace
}  // namespace kavelin::demo
