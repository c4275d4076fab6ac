// The statements of the dialogs: those of the openings and checks, and the lookups as a dialog sends them.
#include "filter/AccountMonths.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Text.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

using Parameters = std::vector<std::vector<std::string>>;  // system, name, value

const Parameters kRestricted = {{"IA", "bWarehouseCheck", "True"}, {"IA", "bDepartmentCheck", "True"}};
const Parameters kIndustrial = {{"AA", "cSysVersion", "工业"}};

// Sends what the fields' lookups hold, in order.
void SendLookups(Dialog& dialog, const std::vector<FakeField>& fields)
{
    for (const FakeField& field : fields) {
        const std::string source = dialog.Filter().ListSource(field.name);
        if (ToLower(Left(source, 7)) == "select ")
            ModPub().gcnnAccount->OpenRecordset(source, CursorLocation::Client, CursorType::Static,
                                                LockType::ReadOnly);
    }
}

}  // namespace

TEST(Dialogs, SendTheStatementsOfTheirScenarios)
{
    const std::vector<FakeField> journal = {{"iMonth"}, {"cDepCode"}, {"cWhCode"}, {"cVouType"}};
    const std::vector<FakeField> price = {{"avgPrice", "2008.01", "2008.02"}, {"cDepCode"}, {"cVouType"}};
    const std::vector<FakeField> cost = {{"cWhCode", "01"}, {"cDepCode"}, {"cVouType"}};
    const std::vector<FakeField> goods = {{"Ia_Ensubsidiary.cBustype", "全部"},
                                          {"Inventory.cInvStd", "M6", "M8"},
                                          {"Inventory.cComUnitCode", "KG"}};
    const std::vector<FakeField> estimate = {{"ia_subsidiary.iyear"},
                                             {"ia_subsidiary.iMonth"},
                                             {"ia_subsidiary.cWhCode"},
                                             {"ia_subsidiary.cDepCode"},
                                             {"ia_subsidiary.cBusType"}};
    const std::vector<FakeField> summary = {
        {"cInvCCode", "01"}, {"cinvcode", "A", "B"}, {"cwhcode"}, {"vouEstate", "已记账单据"}, {"rdGrade"}};
    const std::vector<FakeField> plain = {{"cWhCode"}, {"cDepCode"}, {"iYear"}};

    const struct {
        const char* name;
        std::string_view identity;
        std::vector<FakeField> fields;
        Parameters parameters;
    } cases[] = {
        {"journal", kJournal, journal, {}},
        {"journal-industrial-restricted", kJournal, journal,
         [] {
             Parameters both = kRestricted;
             both.insert(both.end(), kIndustrial.begin(), kIndustrial.end());
             return both;
         }()},
        {"price-analysis", kPriceAnalysis, price, {}},
        {"price-analysis-industrial", kPriceAnalysis, price, kIndustrial},
        {"standard-cost", kStandardCost, cost, {}},
        {"standard-cost-industrial", kStandardCost, cost, kIndustrial},
        {"standard-cost-restricted", kStandardCost, cost, kRestricted},
        {"stock-summary", kStockSummary, summary, {}},
        {"stock-summary-restricted", kStockSummary, summary, kRestricted},
        {"goods-summary", kGoodsSummary, goods, {}},
        {"estimate", kEstimate, estimate, {}},
        {"estimate-restricted", kEstimate, estimate, kRestricted},
        {"turnover", kTurnover, plain, {}},
        {"turnover-restricted", kTurnover, plain, kRestricted},
        {"abc-restricted", kAbc, plain, kRestricted},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        for (const auto& parameter : c.parameters)
            host.SetParameter(parameter[0], parameter[1], parameter[2]);
        host.Answers().lists = {{"Warehouse", "'01','02'"}, {"Department", "'0401'"}};
        host.Script().rows[SelectOpenMonths("001")] = {{"iyear", "iid"}, {{2008, 1}, {2008, 2}}};
        for (const char* value : {"M6", "M8"})
            host.Script()
                .rows[std::string("Select top 1 cInvStd from Inventory where cInvStd= N'") + value + "'"] = {
                {"cInvStd"}, {{value}}};
        host.Script().rows["Select top 1 cComunitCode from ComputationUnit where cComunitCode= N'KG'"] = {
            {"cComunitCode"}, {{"KG"}}};
        ModPub().gstrLanguage = "zh-CN";
        Dialog dialog(host, c.identity, c.fields);
        dialog.Open();
        ExpectScenario(host, "clsFilterControl", std::string("filter/") + c.name);
        SendLookups(dialog, c.fields);
        dialog.FirstView();
        EXPECT_FALSE(dialog.Click()) << c.name;
        ExpectStatements(host.Sent(), std::string("filter/") + c.name);
    }
}

}  // namespace kavelin::test
