// The data of the filter dialogs: which fields each report has, and what they take.
#include "frame/Text.h"
#include "host/DataFiles.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/LookupTemplate.h"
#include "host/Reports.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {
namespace {

std::vector<std::string> Keys(std::string_view text)
{
    return text.empty() ? std::vector<std::string>() : Split(text, "|");
}

// "cfree{}" with the numbers of a text such as "1-3,8".
std::string Family(std::string_view key, std::string_view numbers)
{
    std::string keys;
    for (const std::string& part : Split(numbers, ",")) {
        const std::vector<std::string> ends = Split(part, "-");
        for (int number = std::stoi(ends.front()); number <= std::stoi(ends.back()); ++number)
            keys += (keys.empty() ? "" : "|") + ReplaceAll(key, "{}", std::to_string(number));
    }
    return keys;
}

// How the key is spelt in the template; "" if it is not there in any case.
std::string SpellingOf(const FilterTemplate& filter, std::string_view key)
{
    const FilterField* field = filter.Find(key);
    return field ? field->key : "";
}

std::size_t PlaceOf(const FilterTemplate& filter, std::string_view key)
{
    const FilterField* field = filter.Find(key);
    return field ? static_cast<std::size_t>(field - filter.fields.data()) : filter.fields.size();
}

std::vector<const Report*> ReportsWithADialog()
{
    std::vector<const Report*> reports;
    for (const Report& report : AllReports())
        if (!report.filterId.empty())
            reports.push_back(&report);
    return reports;
}

// --- keys --------------------------------------------------------------------------------------

const std::string kDocumentFields = "1-3,8-14,22-25,28-33";  // user fields of documents that have a list

// The keys that the routines of a report's dialog and its own walk name: those that one of them compares in
// their very spelling, and those that both compare without regard to case.
struct NamedKeys {
    std::string_view report;
    std::string exact;
    std::string anyCase;
};

const NamedKeys kNamedKeys[] = {
    {"journal", "iMonth|vouEstate|cDepCode|cWhCode|NoSub.cBusType|cVouType",
     "dVouDate|dKeepDate|PzNoID|edtCAssComUnitNum|cBatchia|NoSub.cRdCode|Inventory.cInvCCode|Inventory.cInvCode|"
     "Customer.cCCCode|Customer.cCusCode|Vendor.cVCCode|Vendor.cVenCode|" +
         Family("cinvdefine{}", "1-10")},
    {"standard-cost-journal", "cWhCode|cBusType|cVouType|cDepCode|cInvCCode|cCCCode|cVCCode",
     "dVouDate|dKeepDate|cRdCode|cInvCode|CcCusCode|cVenCode|cworkcentercode|ccostcentercode|cpzid|cdifpzid|"
     "edtCAssComUnitNum|" +
         Family("cinvdefine{}", "1-10")},
    {"stock-summary",
     "dVouDate|vouEstate|cwhcode|cInvCCode|cinvcode|cItem_Class|cItemCode|cAssComUnitNum|rdGrade|EndNum|EndPrice|"
     "incompareout|busEstate|byteFree|" +
         Family("cInvDefine{}", "1-10"),
     Family("cfree{}", "1-10") + "|" + Family("cdefine{}", kDocumentFields)},
    {"estimate-balance",
     "ia_subsidiary.iyear|ia_subsidiary.iMonth|ia_subsidiary.cVouType|ia_subsidiary.cBusType|"
     "ia_subsidiary.cWhCode|ia_subsidiary.cDepCode|bDispCheckFreeOnly|bDisZero",
     "inventory.cinvccode|ia_subsidiary.cInvCode|vendor.cvccode|ia_subsidiary.cVenCode"},
    {"goods-summary",
     "iYear|Ia_Ensubsidiary.cBustype|Ia_Ensubsidiary.cDepCode|DispatchList.cDLCode|rdrecord32.cCode|IsMerge|"
     "Inventory.cInvStd|Inventory.cComUnitCode|iUnitNumber",
     "Inventory.cInvCCode|Ia_Ensubsidiary.dVouDate|Ia_Ensubsidiary.dKeepDate"},
    {"goods-cost-summary", "IA_EnSubsidiary.iYear|cDLCode|cCode",
     "CostItem|Ia_Ensubsidiary.cBustype|iUnitNumber|Ia_Ensubsidiary.dVouDate|Ia_Ensubsidiary.dKeepDate"},
    {"goods-cost-ledger", "IA_EnSubsidiary.iYear|IA_EnSubsidiary.iMonth",
     "CostItem|Ia_Ensubsidiary.cBustype|IA_EnSubsidiary.cInvCode|" +
         Family("IA_EnSubsidiary.cFree{}", "1-10")},
    {"price-analysis",
     "iMonth|avgPrice|avgPrices|ShowType|Base Price|DiffRatio|cVouType|cBusType|dVouDate|dKeepDate|cWhCode|"
     "cDepCode|cAccDep|cRdCode|cInvCCode|cInvCode|cBatchia|cCCCode|cCusCode|cVCCode|cVenCode|cproordercode|" +
         Family("cdefine{}", kDocumentFields),
     ""},
    {"turnover", "",
     "iyear|iperiod|dismethod|invproperty|bgroupdep|bgroupcwh|bgroupinvcc|bgroupcin|ia_subsidiary.cbustype|"
     "cwhcode|cdepcode"},
    {"abc", "", "iyear|iperiod|inclua|inclub|incluc|cwhcode|cdepcode"},
    {"capital-share", "", "cinvcode|cwhcode|cinvccode|imonth|cNo"},
};

TEST(TemplateData, HasTheKeysThatDialogAndReportName)
{
    std::set<std::string_view> seen;
    for (const NamedKeys& named : kNamedKeys) {
        seen.insert(named.report);
        const FilterTemplate& filter = TemplateOf(named.report);
        for (const std::string& key : Keys(named.exact))
            EXPECT_EQ(SpellingOf(filter, key), key) << named.report;
        for (const std::string& key : Keys(named.anyCase))
            EXPECT_NE(filter.Find(key), nullptr) << named.report << " " << key;
    }
    for (const Report* report : ReportsWithADialog())
        EXPECT_TRUE(seen.contains(report->name)) << report->name;
}

TEST(TemplateData, LeavesOutKeysThatAReportCannotTake)
{
    const struct {
        std::string_view report, key, reason;
    } cases[] = {
        {"journal", "avgPrice", "of the price analysis, whose dialog has the same routine"},
        {"price-analysis", "vouEstate", "would become a condition on a column that is not there"},
        {"price-analysis", "NoSub.cBusType", "the report knows it as cBusType"},
        {"price-analysis", "cinvdefine1", "names a table that the statement does not read"},
        {"price-analysis", "cItemCode", "is no column of the monthly summary"},
        {"goods-cost-summary", "b.cDLCode", "the dialog knows it as cDLCode"},
        {"goods-cost-summary", "d.cCode", "the dialog knows it as cCode"},
        {"capital-share", "cdepcode", "of the turnover, whose dialog has the same routine"},
        {"capital-share", "iyear", "likewise"},
        {"capital-share", "bgroupdep", "likewise"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TemplateOf(c.report).Find(c.key), nullptr) << c.report << " " << c.key << ": " << c.reason;
    for (const FilterField& field : TemplateOf("price-analysis").fields)
        EXPECT_FALSE(ToLower(field.key).starts_with("cinvdefine")) << field.key;
}

TEST(TemplateData, HasLeadingFieldsBeforeThoseThatFollowThem)
{
    const struct {
        std::string_view report, first, then;
    } cases[] = {
        {"stock-summary", "cInvCCode", "cinvcode"},
        {"stock-summary", "cItem_Class", "cItemCode"},
        {"standard-cost-journal", "cInvCCode", "cInvCode"},
        {"standard-cost-journal", "cCCCode", "CcCusCode"},
        {"standard-cost-journal", "cVCCode", "cVenCode"},
        {"standard-cost-journal", "cWhCode", "cDepCode"},
        {"estimate-balance", "ia_subsidiary.iyear", "ia_subsidiary.iMonth"},
        {"estimate-balance", "Inventory.cInvCCode", "ia_subsidiary.cInvCode"},
        {"estimate-balance", "Vendor.cVCCode", "ia_subsidiary.cVenCode"},
        {"goods-cost-ledger", "IA_EnSubsidiary.iYear", "IA_EnSubsidiary.iMonth"},
        {"goods-cost-ledger", "IA_EnSubsidiary.iYear", "IA_EnSubsidiary.cInvCode"},
        {"turnover", "iyear", "iperiod"},
        {"abc", "iyear", "iperiod"},
        {"abc", "iyear", "cwhcode"},
        {"abc", "iyear", "cdepcode"},
    };
    for (const auto& c : cases) {
        const FilterTemplate& filter = TemplateOf(c.report);
        EXPECT_LT(PlaceOf(filter, c.first), PlaceOf(filter, c.then)) << c.report << " " << c.then;
    }
}

TEST(TemplateData, AddressesTheCustomerOfTheStandardCostJournalAsTheDialogDoes)
{
    EXPECT_EQ(TemplateOf("standard-cost-journal").Find("CcCusCode")->controlKey, "cCusCode");
}

// --- values ------------------------------------------------------------------------------------

std::string Form(const FilterField& field)
{
    std::string form(KindName(field.kind));
    if (field.range)
        form += field.bothEnds ? " from and to" : " from to";
    if (field.multiple)
        form += field.separator == '\t' ? " by tab" : " by comma";
    if (field.mandatory)
        form += ", mandatory";
    if (!field.byDefault.empty())
        form += ", " + field.byDefault;
    return form;
}

TEST(TemplateData, TakesValuesInTheFormInWhichTheReportReadsThem)
{
    const struct {
        std::string_view report, key, form;
    } cases[] = {
        {"journal", "vouEstate", "list by comma, 已记账单据"},
        {"journal", "iMonth", "period from to"},
        {"journal", "NoSub.cBusType", "list by tab"},
        {"journal", "cVouType", "reference by tab"},
        {"journal", "cWhCode", "reference by tab"},
        {"standard-cost-journal", "cBusType", "list by tab"},
        {"standard-cost-journal", "cVouType", "reference by tab"},
        {"standard-cost-journal", "cInvCCode", "reference"},
        {"stock-summary", "dVouDate", "date from to, mandatory"},
        {"stock-summary", "vouEstate", "list by comma, 已记账单据"},
        {"stock-summary", "cwhcode", "reference by tab"},
        {"stock-summary", "cInvCCode", "reference"},
        {"stock-summary", "cinvcode", "reference from to"},
        {"stock-summary", "cItemCode", "reference"},
        {"stock-summary", "rdGrade", "number"},
        {"stock-summary", "EndNum", "list by comma"},
        {"stock-summary", "EndPrice", "list by comma"},
        {"stock-summary", "incompareout", "list by comma"},
        {"stock-summary", "busEstate", "list"},
        {"estimate-balance", "ia_subsidiary.iyear", "year"},
        {"estimate-balance", "ia_subsidiary.iMonth", "month"},
        {"estimate-balance", "ia_subsidiary.cBusType", "list by comma"},
        {"estimate-balance", "Inventory.cInvCCode", "reference"},
        {"estimate-balance", "bDisZero", "flag"},
        {"goods-summary", "iYear", "year, mandatory"},
        {"goods-summary", "Ia_Ensubsidiary.cBustype", "list"},
        {"goods-summary", "Inventory.cInvCCode", "reference"},
        {"goods-summary", "Inventory.cInvStd", "reference from to"},
        {"goods-summary", "DispatchList.cDLCode", "reference from to"},
        {"goods-summary", "rdrecord32.cCode", "reference from to"},
        {"goods-cost-summary", "IA_EnSubsidiary.iYear", "year, mandatory"},
        {"goods-cost-summary", "CostItem", "list"},
        {"goods-cost-summary", "cDLCode", "reference from to"},
        {"goods-cost-ledger", "IA_EnSubsidiary.iYear", "year, mandatory"},
        {"goods-cost-ledger", "IA_EnSubsidiary.iMonth", "month from to"},
        {"goods-cost-ledger", "IA_EnSubsidiary.cInvCode", "reference, mandatory"},
        {"price-analysis", "iMonth", "period, mandatory"},
        {"price-analysis", "avgPrice", "period from and to, mandatory"},
        {"price-analysis", "avgPrices", "list, mandatory, 1"},
        {"price-analysis", "Base Price", "list, mandatory, 3"},
        {"price-analysis", "cVouType", "reference by tab"},
        {"price-analysis", "cBusType", "reference by tab"},
        {"price-analysis", "cRdCode", "reference by tab"},
        {"price-analysis", "cproordercode", "reference from to"},
        {"price-analysis", "cdefine22", "reference from to"},
        {"turnover", "iperiod", "date from to"},
        {"turnover", "dismethod", "list, 按金额"},
        {"abc", "iperiod", "month"},
        {"abc", "inclub", "flag"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Form(*TemplateOf(c.report).Find(c.key)), c.form) << c.report << " " << c.key;
}

std::string EntriesOf(std::string_view report, std::string_view key)
{
    std::string values;
    for (const ListEntry& entry : TemplateOf(report).Find(key)->entries)
        values += (values.empty() ? "" : ",") + entry.value;
    return values;
}

TEST(TemplateData, OffersTheWordsThatTheReportLooksFor)
{
    const struct {
        std::string_view report, key, entries;
    } cases[] = {
        {"journal", "vouEstate", "已记账单据,未记账单据"},
        {"stock-summary", "vouEstate", "已记账单据,未记账单据,直运单据"},
        {"stock-summary", "EndNum", "大于零,小于零,等于零"},
        {"stock-summary", "EndPrice", "大于零,小于零,等于零"},
        {"stock-summary", "incompareout", "入库大于出库,入库等于出库,入库小于出库"},
        {"stock-summary", "busEstate", "所有业务,发生业务,出库未入库,入库未出库,未发生"},
        {"estimate-balance", "ia_subsidiary.cVouType", "01,70"},
        {"estimate-balance", "ia_subsidiary.cBusType", "普通采购,委外加工,受托代销,一般贸易进口,进料加工"},
        {"goods-summary", "Ia_Ensubsidiary.cBustype", "分期收款,委托代销,普通销售,全部"},
        {"goods-cost-summary", "CostItem", "0,1,2,3,4,5,6"},
        {"goods-cost-ledger", "CostItem", "0,1,2,3,4,5,6"},
        {"price-analysis", "ShowType", "1,2,3"},
        {"price-analysis", "Base Price", "1,2,3,4,5"},
        {"price-analysis", "avgPrices", "1,2,3"},
        {"turnover", "dismethod", "按金额,按数量"},
        {"turnover", "invproperty", "采购,销售,生产领料"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(EntriesOf(c.report, c.key), c.entries) << c.report << " " << c.key;
}

// What a report turns into a condition itself must not come out of the filter a second time, and what it leaves
// to the filter must not be lost.
TEST(TemplateData, ComparesAColumnWhereTheReportLeavesTheKeyToTheFilterAndOnlyThere)
{
    enum class Rest { Compares, StaysOut };
    const struct {
        std::string_view report;
        Rest rest;              // what the other keys do
        std::string_view keys;  // which do the opposite
    } cases[] = {
        {"journal", Rest::StaysOut,
         "Inventory.cInvCCode|Customer.cCCCode|Vendor.cVCCode|Customer.cCusCode|Vendor.cVenCode|Inventory.cInvCode|"
         "cBatchia|NoSub.cRdCode"},
        {"standard-cost-journal", Rest::StaysOut, "cpzid|cworkcentercode|ccostcentercode|cdifpzid"},
        {"stock-summary", Rest::StaysOut, ""},
        {"price-analysis", Rest::StaysOut, "cBatchia"},
        {"estimate-balance", Rest::Compares,
         "ia_subsidiary.iMonth|ia_subsidiary.cBusType|bDispCheckFreeOnly|bDisZero"},
        {"goods-summary", Rest::Compares,
         "Inventory.cInvCCode|Ia_Ensubsidiary.cBustype|iUnitNumber|Ia_Ensubsidiary.dVouDate|"
         "Ia_Ensubsidiary.dKeepDate|IsMerge"},
        {"goods-cost-summary", Rest::Compares,
         "CostItem|Ia_Ensubsidiary.cBustype|iUnitNumber|Ia_Ensubsidiary.dVouDate|Ia_Ensubsidiary.dKeepDate"},
        {"goods-cost-ledger", Rest::Compares, "IA_EnSubsidiary.iMonth|CostItem|Ia_Ensubsidiary.cBustype"},
        {"turnover", Rest::Compares,
         "iyear|iperiod|dismethod|invproperty|bgroupdep|bgroupcwh|bgroupinvcc|bgroupcin"},
        {"abc", Rest::Compares, "iyear|iperiod|inclua|inclub|incluc"},
    };
    for (const auto& c : cases) {
        const std::vector<std::string> opposite = Keys(c.keys);
        for (const FilterField& field : TemplateOf(c.report).fields) {
            const bool named =
                std::ranges::any_of(opposite, [&](const auto& key) { return EqualsNoCase(key, field.key); });
            EXPECT_EQ(!field.column.empty(), (c.rest == Rest::Compares) != named)
                << c.report << " " << field.key;
        }
    }
}

// The report makes the condition on the source's type of the one on the line's own type, in this very spelling.
TEST(TemplateData, SpellsTheVoucherTypeOfTheEstimateBalanceAsTheReportReplacesIt)
{
    EXPECT_EQ(TemplateOf("estimate-balance").Find("ia_subsidiary.cVouType")->column,
              "ia_subsidiary.cVouType");
}

TEST(TemplateData, CaptionsEveryFieldAndTakesItsExamples)
{
    for (const Report* report : ReportsWithADialog()) {
        const FilterTemplate& filter = TemplateOf(report->name);
        FilterInput input(filter, ValuePolicy::Checked);
        std::set<std::string> chinese, english;
        for (const FilterField& field : filter.fields) {
            EXPECT_TRUE(!field.caption.chinese.empty() && chinese.insert(field.caption.chinese).second)
                << report->name << " " << field.key;
            EXPECT_TRUE(!field.caption.english.empty() && english.insert(field.caption.english).second)
                << report->name << " " << field.key;
            ASSERT_FALSE(field.example.empty()) << report->name << " " << field.key;
            EXPECT_NO_THROW(input.Set(field.key, field.example)) << report->name << " " << field.key;
        }
    }
}

TEST(TemplateData, NamesEveryLookupInAField)
{
    std::set<std::string> used, there;
    for (const Report* report : ReportsWithADialog()) {
        const auto document =
            nlohmann::json::parse(DataFile("filters/" + std::string(report->name) + ".json"));
        for (const auto& field : document.at("fields"))
            if (field.contains("lookup"))
                used.insert(field.at("lookup").get<std::string>());
    }
    for (const auto& [name, lookup] : AllLookups())
        there.insert(name);
    EXPECT_EQ(used, there);
}

}  // namespace
}  // namespace kavelin::host
