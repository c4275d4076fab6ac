#include "demo/profiles/Profile.h"

#include "demo/MemorySink.h"
#include "demo/company/Company.h"
#include "demo/profiles/ProfileRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kavelin::demo {
namespace {

std::string Written(const Profile& profile, std::string_view name)
{
    for (const Setting& setting : profile.settings)
        if (setting.name == name)
            return std::string(setting.value.value_or("NULL"));
    return "missing";
}

TEST(Profiles, AreSixWithTheDefaultFirst)
{
    std::string names;
    for (const Profile& profile : Profiles())
        names += std::string(profile.name) + " ";
    EXPECT_EQ(names, "industry trade works goods-sent invoices shop ");
    EXPECT_EQ(FindProfile("Goods-Sent"), &Profiles()[3]);
    EXPECT_EQ(FindProfile("factory"), nullptr);
}

TEST(Profiles, TellEveryParameterOnce)
{
    for (const Profile& profile : Profiles()) {
        std::set<std::string_view> names;
        for (const Setting& setting : profile.settings)
            EXPECT_TRUE(names.insert(setting.name).second) << profile.name << ": " << setting.name;
        EXPECT_EQ(names.size(), 22u) << profile.name;
    }
}

TEST(Profiles, ReadWhatFollowsFromTheParameters)
{
    const Profile& trade = *FindProfile("trade");
    EXPECT_EQ(Written(trade, "bSaleType"), "true");
    EXPECT_EQ(trade.ordinary, SaleDocument::Invoice);
    EXPECT_EQ(trade.entrusted, SaleDocument::Invoice);
    EXPECT_EQ(trade.edition, Edition::Commercial);
    EXPECT_EQ(trade.estimate, EstimateMethod::MonthReversal);
    EXPECT_TRUE(trade.exports && trade.consignmentIn && !trade.subcontracting && !trade.standardCosts);

    const Profile& works = *FindProfile("works");
    EXPECT_EQ(Written(works, "bSaleType"), "false");
    EXPECT_EQ(works.ordinary, SaleDocument::Issue);
    EXPECT_EQ(works.valueStyle, ValueStyle::ByDepartment);
    EXPECT_EQ(works.estimate, EstimateMethod::ArrivalDifference);
    EXPECT_TRUE(works.exports && works.earlyDocuments && works.subcontracting && works.standardCosts);

    const Profile& shop = *FindProfile("shop");
    EXPECT_EQ(Written(shop, "ArchiveDate"), "2008-03-31");
    EXPECT_EQ(Written(*FindProfile("industry"), "ArchiveDate"), "NULL");
    EXPECT_EQ(shop.valueStyle, ValueStyle::ByInventory);
    EXPECT_FALSE(shop.instalments || shop.direct || shop.exports || shop.vendorManaged);
    EXPECT_EQ(shop.language, "en-US");

    EXPECT_EQ(FindProfile("goods-sent")->ordinary, SaleDocument::Dispatch);
    EXPECT_FALSE(FindProfile("goods-sent")->direct);
}

TEST(Profiles, RestrictAnnaToTwoWarehousesAndAboutHalfOfTheItems)
{
    const Profile& profile = *FindProfile("invoices");
    const Company company = MakeCompany(20'000, profile);
    MemorySink sink;
    WriteProfile(profile, company, 20'000, 7, sink);

    const MemoryTable& rights = sink.Table("Demo_UserRight");
    std::set<std::string> items, others;
    for (std::size_t row = 0; row < rights.rows.size(); ++row) {
        EXPECT_EQ(rights.Text(row, "cUser"), "anna");
        const std::string kind = rights.Text(row, "cKind");
        if (kind == "Inventory")
            items.insert(rights.Text(row, "cCode"));
        else
            others.insert(kind + " " + rights.Text(row, "cCode"));
    }
    EXPECT_EQ(others,
              (std::set<std::string>{"Department 0401", "Department 0402", "Warehouse 01", "Warehouse 02"}));
    EXPECT_GT(items.size(), company.items.size() * 2 / 5);
    EXPECT_LT(items.size(), company.items.size() * 3 / 5);
    for (const std::string& id : items)
        EXPECT_TRUE(std::ranges::count(company.items, id, &Item::id) == 1) << id;
}

TEST(Company, ValuesAllWarehousesOfADepartmentByOneMethod)
{
    for (const Profile& profile : Profiles()) {
        const Company company = MakeCompany(20'000, profile);
        for (const Warehouse& one : company.warehouses)
            for (const Warehouse& other : company.warehouses)
                if (one.department == other.department) {
                    EXPECT_EQ(one.valuation, other.valuation) << profile.name << ": " << one.code;
                }
    }
}

TEST(Company, MakesNothingInACommercialEdition)
{
    for (const Profile& profile : Profiles()) {
        const Company company = MakeCompany(20'000, profile);
        const bool makes =
            std::ranges::any_of(company.items, [](const Item& item) { return item.supply == Supply::Made; });
        EXPECT_EQ(makes, profile.edition == Edition::Industrial) << profile.name;
    }
}

TEST(Company, FindsPartiesByClass)
{
    EXPECT_EQ(OfClass(Vendors(), kSubcontractors).size(), 3u);
    EXPECT_EQ(OfClass(Customers(), kExportCustomers).size(), 4u);
    EXPECT_TRUE(OfClass(Customers(), "99").empty());
    std::size_t all = 0;
    for (const char* partyClass : {"01", "02", "03", "04", "05", "06", "07"})
        all += OfClass(Vendors(), partyClass).size();
    EXPECT_EQ(all, Vendors().size());
    EXPECT_EQ(ProjectOf("HT-0801")->projectClass, "00");
    EXPECT_EQ(ProjectOf("HT-9999"), nullptr);
}

}  // namespace
}  // namespace kavelin::demo
