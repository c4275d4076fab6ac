// What OK refuses, with which message, and what it accepts.
#include "filter/CheckRules.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

void SetClass(RecordingHost& host, const std::string& item, const Value& inventoryClass)
{
    host.Script().rows[SelectClassOfItem(item)] = {{"cinvccode"}, {{inventoryClass}}};
}

void SetExisting(RecordingHost& host, const std::string& table, const std::string& field,
                 const std::string& value)
{
    host.Script()
        .rows["Select top 1 " + field + " from " + table + " where " + field + "= N'" + value + "'"] = {
        {field}, {{value}}};
}

// What OK shows; empty if it closes the dialog.
Changes Refusal(RecordingHost& host, std::string_view identity, const std::vector<FakeField>& fields)
{
    host.OpenAccount();
    Dialog dialog(host, identity, fields);
    const bool stays = dialog.Click();
    Changes made = dialog.Made();
    std::erase_if(made, [](const std::string& change) { return change.starts_with("ContextArgs.Add"); });
    EXPECT_EQ(stays, !made.empty());
    return made;
}

const Changes kPasses = {};

Changes Quietly(const std::string& key)
{
    return {"ShowMessage <" + key + ">, 64"};
}

Changes Beeping(const std::string& key)
{
    return {"Beep", "ShowMessage <" + key + ">, 64"};
}

}  // namespace

TEST(ChecksWithoutARule, WalkTheListAndAcceptEverything)
{
    for (const std::string_view identity : {kJournal, kTurnover, kAbc, kCostItem, kDetailLedger}) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, identity, {{"iMonth", ""}, {"ia_subsidiary.imonth", ""}, {"vouEstate", ""}}),
                  kPasses);
        EXPECT_EQ(
            host.Events().Text(),
            "RawFilter.FilterID\nRawFilter.FilterList\nFilterList.Count\nFilterList.Item 1\niMonth.Name\n"
            "FilterList.Item 2\nia_subsidiary.imonth.Name\nFilterList.Item 3\nvouEstate.Name\n")
            << identity;
    }
}

TEST(CheckFilterEstimate, WantsAMonth)
{
    for (const char* key : {"ia_subsidiary.iMonth", "IA_SUBSIDIARY.IMONTH"}) {
        for (const Value& month : {Value(""), Value("   "), Value(), Value::Null()}) {
            RecordingHost host;
            EXPECT_EQ(Refusal(host, kEstimate, {{key, month}}),
                      (Changes{"Beep", "ShowMessage 必须录入查询月份, 64"}));
        }
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kEstimate, {{key, "3月"}}), kPasses);
    }
}

TEST(CheckFilterEstimate, FillsAnEmptyYearWithTheDialogs)
{
    RecordingHost host;
    Dialog dialog(host, kEstimate, {{"ia_subsidiary.iyear", "2006"}, {"ia_subsidiary.iMonth"}});
    dialog.Open();
    dialog.Type("ia_subsidiary.iyear", "");
    EXPECT_FALSE(dialog.Click());
    EXPECT_EQ(dialog.Made(), (Changes{"ia_subsidiary.iyear.varValue = 2006"})) << "the restored one";
    EXPECT_FALSE(dialog.Click());
    EXPECT_EQ(dialog.Made(), Changes{});
}

TEST(CheckFilterPrice, WantsBothMonthsInOneYear)
{
    const struct {
        const char* from;
        const char* to;
        bool passes;
    } cases[] = {
        {"2008.03", "2008.11", true},   {"2008.11", "2009.02", false}, {"2008.01", "2008.01", true},
        {" 2008.03", "2008.11 ", true}, {"2008", "2008.11", true},     {"02008.03", "2008.04", true},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kPriceAnalysis, {{"avgPrice", c.from, c.to}}),
                  c.passes ? kPasses : Quietly("Orvo.IA.Orvo71.00384"))
            << c.from << " to " << c.to;
    }
    RecordingHost host;
    EXPECT_EQ(Refusal(host, kPriceAnalysis, {{"avgprice", "2008.11", "2009.02"}}), kPasses) << "another key";
}

TEST(CheckFilterPrice, FailsOnAMonthThatIsNone)
{
    const std::pair<const char*, const char*> pairs[] = {
        {"2008.01", ""}, {"", "2008.01"}, {"", ""}, {"July.2008", "2008.07"}};
    for (const auto& [from, to] : pairs) {
        RecordingHost host;
        Dialog dialog(host, kPriceAnalysis, {{"avgPrice", from, to}});
        EXPECT_THROW(dialog.Click(), ConversionError) << from << " to " << to;
    }
}

TEST(CheckFilterStockSummary, WantsItemsOfTheClassThatStandsBeforeThem)
{
    const std::string message = "Orvo.IA.Orvo70.0410";
    const struct {
        std::vector<FakeField> fields;
        bool passes;
        const char* why;
    } cases[] = {
        {{{"cInvCCode", "01"}, {"cinvcode", "A", "B"}}, true, "both are of the class"},
        {{{"cInvCCode", "01"}, {"cinvcode", "C", "B"}}, false, "the first is of another"},
        {{{"cInvCCode", "01"}, {"cinvcode", "A", "C"}}, false, "the second is"},
        {{{"cInvCCode", "01"}, {"cinvcode", "", "C"}}, false, "the second alone is"},
        {{{"cInvCCode", "01"}, {"cinvcode", "", ""}}, true, "there is none"},
        {{{"cInvCCode", "01"}, {"cinvcode", "unknown", ""}}, true, "a code that is no item passes"},
        {{{"cInvCCode", ""}, {"cinvcode", "C", ""}}, true, "there is no class"},
        {{{"cinvcode", "C", ""}}, true, "the dialog has no class"},
        {{{"cinvcode", "C", ""}, {"cInvCCode", "01"}}, true, "a class behind it isn't seen"},
        {{{"cInvCCode", " 01 "}, {"cinvcode", " A ", ""}}, true, "blanks at the ends don't count"},
        {{{"cInvCCode", "0"}, {"cinvcode", "A", ""}}, false, "a class above isn't the class"},
        {{{"cinvccode", "01"}, {"cinvcode", "C", ""}}, true, "keys are compared exactly"},
        {{{"cInvCCode", "01"}, {"cInvCode", "C", ""}}, true, "keys are compared exactly"},
        {{{"cInvCCode", "01"}, {"cinvcode", "N", ""}}, false, "an item without a class"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        SetClass(host, "A", "01");
        SetClass(host, "B", "01");
        SetClass(host, "C", "02");
        SetClass(host, "N", Value::Null());
        EXPECT_EQ(Refusal(host, kStockSummary, c.fields), c.passes ? kPasses : Quietly(message)) << c.why;
    }
}

TEST(IsInvInClass, AsksTheDatabaseAlsoWithoutAClass)
{
    RecordingHost host;
    host.OpenAccount();
    EXPECT_TRUE(IsInvInClass("A", ""));
    ASSERT_EQ(host.Sent().size(), 1U);
    EXPECT_EQ(host.Sent()[0].sql, "select cinvccode from inventory where cinvcode=N'A'");
}

TEST(CheckFilterStockSummary, WantsAUnitOfFourCharactersAtMost)
{
    const std::pair<const char*, bool> cases[] = {{"", true},         {"1234", true},
                                                  {" 1234 ", true},   {"12345", false},
                                                  {"计量单位", true}, {"计量单位组", false}};
    for (const auto& [unit, passes] : cases) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kStockSummary, {{"cAssComUnitNum", unit}}),
                  passes ? kPasses : Quietly("Orvo.IA.Orvo70.0411"))
            << unit;
    }
}

TEST(CheckFilterStockSummary, WantsAPostingStateThatIsNotDirectBusinessAlone)
{
    const std::pair<const char*, Changes> cases[] = {
        {"直运单据", Quietly("Orvo.IA.Orvo70.0413")},
        {"直运单据,已记账单据", kPasses},
        {"未记账单据,直运单据", kPasses},
        {"已记账单据", kPasses},
        {"", Quietly("Orvo.IA.Orvo70.0414")},
        {"  ", Quietly("Orvo.IA.Orvo70.0414")},
    };
    for (const auto& [states, wanted] : cases) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kStockSummary, {{"vouEstate", states}}), wanted) << states;
    }
}

TEST(CheckFilterStockSummary, ReadsTheArgumentThatTravelsWithTheViewSelector)
{
    RecordingHost host;
    Dialog dialog(host, kStockSummary, {{"rdGrade", ""}});
    EXPECT_FALSE(dialog.Click());
    EXPECT_EQ(host.Events().Text().find("ContextArgs.Item"), std::string::npos) << "there is none yet";
    EXPECT_FALSE(dialog.Click());
    EXPECT_NE(host.Events().Text().find("ContextArgs.Count\nContextArgs.Item 1\n"), std::string::npos);
    EXPECT_EQ(dialog.Filter().From("rdGrade"), Value("")) << "an empty selector is left empty";
}

TEST(CheckFilterGoodsSummary, WantsOneOfFourSaleTypes)
{
    for (const char* type : {"分期收款", "委托代销", "普通销售", "全部", " 全部 "}) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kGoodsSummary, {{"Ia_Ensubsidiary.cBustype", type}}), kPasses) << type;
    }
    for (const char* type : {"", "直运销售", "全部,普通销售"}) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kGoodsSummary, {{"Ia_Ensubsidiary.cBustype", type}}),
                  Beeping("Orvo.IA.CHHSSQL.07206"))
            << type;
    }
    RecordingHost host;
    EXPECT_EQ(Refusal(host, kGoodsSummary, {{"ia_ensubsidiary.cbustype", ""}}), kPasses) << "another key";
}

TEST(CheckFilterGoodsSummary, WantsModelsAndUnitsThatExist)
{
    const struct {
        FakeField field;
        Changes wanted;
    } cases[] = {
        {{"Inventory.cInvStd", "M6", "M8"}, kPasses},
        {{"Inventory.cInvStd", "", ""}, kPasses},
        {{"Inventory.cInvStd", " M6 ", ""}, kPasses},
        {{"Inventory.cInvStd", "M7", "M8"}, Beeping("Orvo.IA.CHHSSQL.07217")},
        {{"Inventory.cInvStd", "M6", "M7"}, Beeping("Orvo.IA.CHHSSQL.07218")},
        {{"Inventory.cInvStd", "M7", "M7"}, Beeping("Orvo.IA.CHHSSQL.07217")},
        {{"Inventory.cInvStd", "", "M7"}, Beeping("Orvo.IA.CHHSSQL.07218")},
        {{"Inventory.cComUnitCode", "KG"}, kPasses},
        {{"Inventory.cComUnitCode", ""}, kPasses},
        {{"Inventory.cComUnitCode", "LB"}, Beeping("Orvo.IA.CHHSSQL.07219")},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        SetExisting(host, "Inventory", "cInvStd", "M6");
        SetExisting(host, "Inventory", "cInvStd", "M8");
        SetExisting(host, "ComputationUnit", "cComunitCode", "KG");
        EXPECT_EQ(Refusal(host, kGoodsSummary, {c.field}), c.wanted)
            << c.field.name << " " << ToText(c.field.from) << " " << ToText(c.field.to);
    }
}

TEST(CheckFilterGoodsSummary, WantsAUnitNumberOfFourPlaces)
{
    const std::pair<Value, bool> cases[] = {
        {"", true},       {"1", true},      {"1234", true},      {"-123", true},
        {"12345", false}, {"-1234", false}, {"-", false},        {" - ", false},
        {"12.75", true},  {"9999.4", true}, {"9999.5", false},   {"123456.7", false},
        {"abcd", true},   {"abcde", false}, {Value(1234), true}, {Value(12345), false}};
    for (const auto& [number, passes] : cases) {
        RecordingHost host;
        EXPECT_EQ(Refusal(host, kGoodsSummary, {{"iUnitNumber", number}}),
                  passes ? kPasses : Beeping("Orvo.IA.CHHSSQL.07220"))
            << ToText(number);
    }
}

TEST(ACheck, StopsAtTheFirstFailureInTheOrderOfTheTemplate)
{
    RecordingHost host;
    EXPECT_EQ(Refusal(host, kStockSummary, {{"cAssComUnitNum", "12345"}, {"vouEstate", ""}}),
              Quietly("Orvo.IA.Orvo70.0411"));
    EXPECT_EQ(Refusal(host, kStockSummary, {{"vouEstate", ""}, {"cAssComUnitNum", "12345"}}),
              Quietly("Orvo.IA.Orvo70.0414"));
    EXPECT_EQ(host.Events().Text().find("cAssComUnitNum"), std::string::npos) << "the rest isn't read";
}

TEST(ACheck, LeavesAllValuesAsTheyAre)
{
    RecordingHost host;
    Dialog dialog(host, kEstimate, {{"ia_subsidiary.iMonth", "  "}, {"bDisZero", "否"}});
    EXPECT_TRUE(dialog.Click());
    EXPECT_EQ(dialog.Filter().From("ia_subsidiary.iMonth"), Value("  "));
    EXPECT_EQ(dialog.Filter().From("bDisZero"), Value("否"));
}

TEST(AFailureOfTheDatabase, ReachesTheHostFromACheck)
{
    const std::pair<std::string_view, FakeField> cases[] = {{kStockSummary, {"cinvcode", "A", "B"}},
                                                            {kGoodsSummary, {"Inventory.cInvStd", "A", "B"}},
                                                            {kGoodsSummary, {"Inventory.cComUnitCode", "A"}}};
    for (const auto& [identity, field] : cases) {
        RecordingHost host;
        host.OpenAccount();
        host.Script().failAtStatement = 1;
        Dialog dialog(host, identity, {field});
        bool cancel = false;
        EXPECT_THROW(clsFilterControl().CallBack_FilterClick(dialog.Filter(), cancel), DatabaseError);
        EXPECT_FALSE(cancel);
        EXPECT_EQ(dialog.Made(), Changes{}) << "neither a message nor a view";
    }
}

TEST(AQuoteInACode, IsPastedInAsItIs)
{
    RecordingHost host;
    EXPECT_EQ(Refusal(host, kStockSummary, {{"cinvcode", "A'B"}}), kPasses);
    ASSERT_EQ(host.Sent().size(), 1U);
    EXPECT_EQ(host.Sent()[0].sql, "select cinvccode from inventory where cinvcode=N'A'B'");
}

}  // namespace kavelin::test
