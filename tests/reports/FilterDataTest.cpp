// The filter templates on a demo company: their lookups offer values, and their conditions name columns that the
// reports' statements have.
#include "demo/profiles/Profile.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "host/FieldCondition.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/HostConnection.h"
#include "host/HostErrors.h"
#include "host/LocalText.h"
#include "host/LookupSelect.h"
#include "host/LookupTemplate.h"
#include "host/Reports.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

namespace {

class FilterData : public testing::Test {
  protected:
    // The number in the first row and column.
    std::int64_t Number(const std::string& sql)
    {
        const auto rows =
            cnnAccount->OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
        return std::stoll(ToText(rows->Field(0)));
    }

    std::int64_t Count(const std::string& from, const std::string& condition)
    {
        return Number("select count(*) from " + from + " where " + condition);
    }

    std::shared_ptr<Connection> cnnAccount = host::ConnectionSource().Open(
        "check", host::EmbeddedConnectionString(AccountOf(*demo::FindProfile("industry")), "zh-CN"), "");
};

// The tables that statements of a report read; the names of conditions must be clear in each of them.
struct Sources {
    std::string_view report;
    std::vector<std::string> from;
};

const std::string kLedgerNames =
    " left join Inventory on Inventory.cInvCode = {}.cInvCode"
    " left join ComputationUnit on ComputationUnit.cComUnitCode = Inventory.cComUnitCode";
const std::string kTransitNames =
    "IA_EnSubsidiary left join Rd_Style on Rd_Style.cRdCode = IA_EnSubsidiary.cRdCode"
    " left join Warehouse on Warehouse.cWhCode = IA_EnSubsidiary.cWhCode"
    " left join inventory on inventory.cInvCode = IA_EnSubsidiary.cInvCode"
    " left join InventoryClass on InventoryClass.cInvCCode = inventory.cInvCCode"
    " left join Customer on Customer.cCusCode = IA_EnSubsidiary.cCusCode"
    " left join CustomerClass on CustomerClass.cCCCode = Customer.cCCCode"
    " left join Department on Department.cDepCode = IA_EnSubsidiary.cAccDep";

std::vector<std::string> Joined(const std::vector<std::string>& tables)
{
    std::vector<std::string> sources;
    for (const std::string& table : tables)
        sources.push_back(table + ReplaceAll(kLedgerNames, "{}", table));
    return sources;
}

// What a report leaves to the filter.
const Sources kLeftToTheFilter[] = {
    {"journal",
     {"IA_Subsidiary NoSub inner join Inventory on Inventory.cInvCode = NoSub.cInvCode"
      " left join Vendor on Vendor.cVenCode = NoSub.cVenCode left join Customer on Customer.cCusCode = NoSub.cCusCode",
      "rpt_rdrecordsIA870wt01 NoSub inner join Inventory on Inventory.cInvCode = NoSub.cInvCode"
      " left join Vendor on Vendor.cVenName = NoSub.cVenName"
      " left join Customer on Customer.cCusCode = NoSub.cCusCode"}},
    {"standard-cost-journal", {"V_IA_CostacCount"}},
    {"estimate-balance",
     {"ia_subsidiary left join Inventory on Inventory.cInvCode = ia_subsidiary.cInvCode"
      " left join InventoryClass on InventoryClass.cInvCCode = Inventory.cInvCCode"
      " left join Warehouse on Warehouse.cWhCode = ia_subsidiary.cWhCode"
      " left join Department on Department.cDepCode = ia_subsidiary.cDepCode"
      " left join Rd_Style on Rd_Style.cRdCode = ia_subsidiary.cRdCode"
      " left join Vendor on Vendor.cVenCode = ia_subsidiary.cVenCode"
      " left join VendorClass on VendorClass.cVCCode = Vendor.cVCCode"}},
    {"goods-summary",
     {kTransitNames + " left join DispatchLists on DispatchLists.iDLsID = IA_EnSubsidiary.iSrcID"
                      " left join DispatchList on DispatchList.DLID = DispatchLists.DLID"
                      " left join rdrecords32 on rdrecords32.AutoID = IA_EnSubsidiary.iSrcID"
                      " left join rdrecord32 on rdrecord32.ID = rdrecords32.ID"}},
    {"goods-cost-summary",
     {kTransitNames + " left join DispatchLists a on a.iDLsID = IA_EnSubsidiary.iSrcID"
                      " left join DispatchList b on b.DLID = a.DLID"
                      " left join rdrecords32 c on c.AutoID = IA_EnSubsidiary.iSrcID"
                      " left join rdrecord32 d on d.ID = c.ID"}},
    {"goods-cost-ledger",
     {"IA_EnSubsidiary left join inventory on inventory.cInvCode = IA_EnSubsidiary.cInvCode"}},
    {"price-analysis", {"IA_V_Subsidiary", "IA_V_Summary"}},
    {"turnover", Joined({"IA_Subsidiary"})},
    {"abc", Joined({"IA_Summary"})},
    {"capital-share", Joined({"IA_Subsidiary"})},
};

// What a report writes itself, by the name of a key that it does not know.
struct OwnConditions {
    Sources sources;
    std::string_view prefix;  // before the key
    // Keys that it knows; one that ends with "*" stands for all that begin so.
    std::string_view known;
};

const OwnConditions kOwnConditions[] = {
    {{"journal", {"IA_Subsidiary NoSub", "rpt_rdrecordsIA870wt11 NoSub", "SaleBillVouchsIA870wt NoSub"}},
     "NoSub.",
     "vouEstate|iMonth|dVouDate|dKeepDate|cVouType|NoSub.cBusType|PzNoID|edtCAssComUnitNum|cinvdefine*"},
    {{"journal", {"Inventory"}},
     "inventory.",
     "vouEstate|iMonth|dVouDate|dKeepDate|cVou*|NoSub.cBusType|PzNoID|edtCAssComUnitNum|cWhCode|cDepCode|cItem*|"
     "cFree*|cDefine*"},
    {{"standard-cost-journal", {"V_IA_CostacCount"}}, "", "edtCAssComUnitNum"},
    {{"stock-summary", Joined({"IA_Subsidiary", "rpt_rdrecordsIA870", "justinvouchsIA870",
                               "salebillvouchsIA870", "DispatchListsIA870", "rpt_PU_v_VMIUsedVouchsIA870",
                               "v_ex_invoicedetailIA870", "purbillvouchsIA870"})},
     "",
     "dVouDate|vouEstate|cwhcode|cInvCCode|cinvcode|cItem_Class|cItemCode|cAssComUnitNum|rdGrade|EndNum|EndPrice|"
     "incompareout|busEstate|byteFree"},
    {{"price-analysis", {"IA_V_Subsidiary"}}, "", "iMonth|ShowType|Base Price|avgPrice|avgPrices|DiffRatio"},
    // A condition on a document keeps the monthly summary out.
    {{"price-analysis", {"IA_V_Summary"}},
     "",
     "iMonth|ShowType|Base Price|avgPrice|avgPrices|DiffRatio|cVouType|cBusType|dVouDate|dKeepDate|cCCCode|cVCCode|"
     "cCusCode|cVenCode|cAccDep|cRdCode|cproordercode|cdefine*"},
};

bool IsKnown(std::string_view known, std::string_view key)
{
    return std::ranges::any_of(Split(known, "|"), [&](const std::string& name) {
        return name.ends_with('*') ? ToLower(key).starts_with(ToLower(name.substr(0, name.size() - 1)))
                                   : EqualsNoCase(name, key);
    });
}

std::string WithoutNumber(std::string key)
{
    std::erase_if(key, [](char letter) { return letter >= '0' && letter <= '9'; });
    return key;
}

}  // namespace

TEST_F(FilterData, FindsTheColumnsThatTheFilterCompares)
{
    int compared = 0;
    for (const Sources& sources : kLeftToTheFilter) {
        const host::FilterTemplate& filter = host::TemplateOf(sources.report);
        host::FilterInput input(filter, host::ValuePolicy::Checked);
        for (const host::FieldInput& given : input.Fields()) {
            if (given.field->column.empty())
                continue;
            ++compared;
            input.Set(given.field->key, given.field->example);
            const std::string from = given.field->range ? given.from : given.values.at(0);
            const std::string condition = host::FieldCondition(*given.field, from, given.to);
            ASSERT_FALSE(condition.empty()) << sources.report << " " << given.field->key;
            for (const std::string& table : sources.from)
                EXPECT_NO_THROW(Count(table, condition)) << sources.report << ": " << condition;
        }
    }
    EXPECT_GE(compared, 80);
}

TEST_F(FilterData, FindsTheColumnsThatReportsNameByTheirKeys)
{
    int named = 0;
    for (const OwnConditions& own : kOwnConditions)
        for (const host::FilterField& field : host::TemplateOf(own.sources.report).fields) {
            if (!field.column.empty() || IsKnown(own.known, field.key))
                continue;
            ++named;
            const bool ofItem = own.sources.report == "stock-summary" && field.key.starts_with("cInvDefine");
            const std::string column = (ofItem ? "Inventory." : "") + std::string(own.prefix) + field.key;
            for (const std::string& table : own.sources.from)
                EXPECT_NO_THROW(Count(table, column + " is null")) << own.sources.report << " in " << table;
        }
    EXPECT_GE(named, 150);
}

TEST_F(FilterData, OffersValuesInEveryLookup)
{
    for (const auto& [name, lookup] : host::AllLookups())
        for (const auto language : {host::kChinese, host::kEnglish}) {
            const host::LookupSelect select(lookup, "", language);
            std::int64_t rows = 0;
            EXPECT_NO_THROW(rows = Number(select.SelectCount({}))) << name;
            EXPECT_NO_THROW(cnnAccount->OpenRecordset(select.Select(20, {}), CursorLocation::Client,
                                                      CursorType::Static, LockType::ReadOnly))
                << name;
            const bool isEmpty = name == "work-centres" || name == "cost-centres";  // names without codes
            EXPECT_EQ(rows == 0, isEmpty) << name;
        }
}

TEST_F(FilterData, GivesExamplesThatTheLookupOffers)
{
    int offered = 0;
    for (const host::Report& report : host::AllReports()) {
        const host::FilterTemplate& filter = host::TemplateOf(report.name);
        host::FilterInput input(filter, host::ValuePolicy::Checked);
        std::string family;  // which has one example, for the first of its numbers
        for (const host::FieldInput& given : input.Fields()) {
            const host::FilterField& field = *given.field;
            if (field.lookup.from.empty() || WithoutNumber(field.key) == family)
                continue;
            family = WithoutNumber(field.key);
            const host::LookupSelect select(field.lookup, "", host::kChinese);
            if (Number(select.SelectCount({})) == 0)
                continue;
            input.Set(field.key, field.example);
            std::vector<std::string> codes = given.values;
            if (field.range)
                codes = {given.from, given.to};
            for (const std::string& code : codes) {
                ++offered;
                const std::string condition = select.Resolve("fld1 = " + host::TextLiteral(code));
                EXPECT_GT(Number(select.SelectCount({condition})), 0)
                    << report.name << " " << field.key << " " << code;
            }
        }
    }
    EXPECT_GE(offered, 150);
}

TEST_F(FilterData, OffersOfAUserFieldTheValuesThatTheCompanyUses)
{
    const struct {
        int number;
        std::string_view table, column;
    } cases[] = {
        {20, "IA_Subsidiary", "cFree1"},    {17, "Inventory", "cInvDefine1"},
        {18, "Inventory", "cInvDefine2"},   {19, "Inventory", "cInvDefine3"},
        {52, "Inventory", "cInvDefine4"},   {1, "IA_Subsidiary", "cDefine1"},
        {22, "IA_Subsidiary", "cDefine22"},
    };
    for (const auto& c : cases) {
        const std::string column(c.column);
        const std::string filled = "isnull(" + column + ", N'') <> N''";
        const std::string offered =
            "select cValue from Demo_FieldValue where cID = " + std::to_string(c.number);
        EXPECT_GT(Count(std::string(c.table), filled), 0) << column;
        EXPECT_EQ(Count(std::string(c.table), filled + " and " + column + " not in (" + offered + ")"), 0)
            << column;
    }
}

// --- every key in a run ------------------------------------------------------------------------

class KeysOf : public testing::TestWithParam<std::string> {};

// On an account that is valued by warehouse these are locked when the dialog opens.
bool IsLocked(std::string_view report, std::string_view key)
{
    return (report == "standard-cost-journal" && key == "cDepCode") || (report == "abc" && key == "cdepcode");
}

// Of a family of fields, such as the free items, one does.
TEST_P(KeysOf, AreTakenByTheReport)
{
    const demo::Profile& industry = *demo::FindProfile("industry");
    const std::vector<host::FilterField>& fields = host::TemplateOf(GetParam()).fields;
    std::vector<std::string> mandatory;
    for (const host::FilterField& field : fields)
        if (field.mandatory)
            mandatory.push_back(field.key + "=" + field.example);

    std::string family;
    for (const host::FilterField& field : fields) {
        if (WithoutNumber(field.key) == family)
            continue;
        family = WithoutNumber(field.key);
        std::vector<std::string> settings = mandatory;
        settings.push_back(field.key + "=" + field.example);
        if (IsLocked(GetParam(), field.key)) {
            EXPECT_THROW(AccountReport(industry, GetParam(), settings), host::UsageError) << field.key;
            continue;
        }
        try {
            const AccountReport report(industry, GetParam(), settings);
            for (const host::ShownMessage& message : report.Messages())
                ADD_FAILURE() << field.key << ": " << message.text;
        } catch (const std::exception& e) {
            ADD_FAILURE() << field.key << ": " << e.what();
        }
    }
}

std::vector<std::string> ReportsWithADialog()
{
    std::vector<std::string> names;
    for (const host::Report& report : host::AllReports())
        if (!report.filterId.empty())
            names.emplace_back(report.name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Report, KeysOf, testing::ValuesIn(ReportsWithADialog()),
                         [](const auto& test) { return PlainName(test.param); });

}  // namespace kavelin::test
