// What the journal does to the objects of its host: order, statements, passes, faults.
#include "frame/Text.h"
#include "journal/ClsWtInfo.h"
#include "journal/WtPasses.h"
#include "journal/WtTable.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace kavelin::test {

namespace {

constexpr const char* kBoth = "已记账单据,未记账单据";

// Parameters by name; the system is found beside it.
using Parameters = std::map<std::string, std::string>;

const Parameters kEverything = {
    {"bFQSK", "True"},
    {"bZYXS", "True"},
    {"bCommitSell", "False"},
    {"dEXFirstDate", "2008-01-01"},
    {"bSaleType", "发出商品"},
    {"cExSaleAccType", "销售发票"},
    {"cEnDispAccountStyle", "销售发票"},
    {"dIAFirstDate", "2008-01-01"},
    {"cValueStyle", "按仓库核算"},
};

std::string SystemOf(const std::string& name)
{
    const std::map<std::string, std::string> systems = {{"bFQSK", "SA"},
                                                        {"bZYXS", "SA"},
                                                        {"bCommitSell", "AA"},
                                                        {"dEXFirstDate", "EX"},
                                                        {"dIAFirstDate", "ia"}};
    const auto found = systems.find(name);
    return found == systems.end() ? "IA" : found->second;
}

void Set(RecordingHost& host, const Parameters& parameters)
{
    host.Answers().sql = "WtResult";
    for (const auto& [name, value] : parameters)
        host.SetParameter(SystemOf(name), name, value);
}

Parameters With(Parameters parameters, const Parameters& changes)
{
    for (const auto& [name, value] : changes)
        parameters[name] = value;
    return parameters;
}

std::vector<std::string> StatementsOf(RecordingHost& host, const Parameters& parameters,
                                      std::vector<FakeField> fields)
{
    Set(host, parameters);
    host.SetFilter(fields);
    ClsWtInfo().GETSQL(*host.EarlyArgument());
    std::vector<std::string> sent;
    for (const SentStatement& statement : host.Sent())
        if (!statement.sql.starts_with("Select * FROM AccInformation"))
            sent.push_back(statement.sql);
    return sent;
}

// The numbers of the passes over documents that ran, and 100, 101 for the ledger's.
std::set<int> PassesOf(const std::vector<std::string>& sent)
{
    std::set<int> passes;
    for (const std::string& sql : sent) {
        if (!sql.starts_with("Insert Into "))
            continue;
        const auto from = [&](const char* source) {
            return sql.find(std::string(" From ") + source + " NoSub") != sql.npos;
        };
        const auto has = [&](const char* text) { return sql.find(text) != sql.npos; };
        const bool direct = has(",2)=N'直运'");
        const std::pair<const char*, int> stock[] = {{"01", 1}, {"08", 2}, {"09", 3},
                                                     {"10", 4}, {"11", 5}, {"32", 6}};
        int pass = 0;
        for (const auto& [code, number] : stock)
            if (from(("rpt_rdrecordsIA870wt" + std::string(code)).c_str()))
                pass = number;
        if (from("dispatchlistsIA870wt"))
            pass = has("分期收款") ? 7 : 8;
        if (from("SaleBillVouchsIA870wt"))
            pass = direct ? 13 : 9;
        if (from("v_ex_invoicedetailIA870wt"))
            pass = direct ? 11 : 10;
        if (from("PurBillVouchsIA870wt"))
            pass = 12;
        if (from("JustinVouchsIA870wt"))
            pass = 14;
        if (from("rpt_PU_v_VMIUsedVouchsIA870wt"))
            pass = 15;
        if (from("IA_SubSidiary"))
            pass = direct ? 101 : 100;
        EXPECT_NE(pass, 0) << sql;
        EXPECT_TRUE(passes.insert(pass).second) << "twice: " << pass;
    }
    return passes;
}

std::set<int> PassesWith(const Parameters& parameters, const std::string& types = "",
                         const std::string& states = "未记账单据")
{
    RecordingHost host;
    std::vector<FakeField> fields = {{"vouEstate", Value(states)}};
    if (!types.empty())
        fields.push_back({"cVouType", Value(types)});
    return PassesOf(StatementsOf(host, parameters, fields));
}

bool Happened(RecordingHost& host, const std::string& begin)
{
    return std::ranges::any_of(host.Events().Lines(),
                               [&](const std::string& line) { return line.starts_with(begin); });
}

}  // namespace

TEST(ClsWtInfo, SendsTheStatementsOfItsScenarios)
{
    const struct {
        const char* name;
        Parameters parameters;
        std::vector<FakeField> filter;
        const char* language;
        const char* where;
    } cases[] = {
        {"neither-posted-nor-unposted", kEverything, {}, "zh-CN", ""},
        {"posted", kEverything, {{"vouEstate", "已记账单据"}, {"PzNoID", "5"}}, "zh-CN", ""},
        {"posted-without-direct-business",
         With(kEverything, {{"bZYXS", "False"}, {"dEXFirstDate", ""}, {"cValueStyle", "按存货核算"}}),
         {{"vouEstate", "已记账单据"},
          {"cVouType", "01\t32\t301"},
          {"NoSub.cBusType", "Ordinary"},
          {"cDepCode", "03"},
          {"edtCAssComUnitNum", "1"}},
         "en-US",
         ""},
        {"posted-by-department",
         With(kEverything, {{"cValueStyle", "按部门核算"}}),
         {{"vouEstate", "已记账单据"}, {"cDepCode", "03"}},
         "zh-CN",
         ""},
        {"unposted",
         kEverything,
         {{"vouEstate", "未记账单据"},
          {"dVouDate", "2008-07-01", "2008-07-31", true},
          {"dKeepDate", "2008-07-01", "2008-07-31", true},
          {"cWhCode", "01", "02", true},
          {"cDepCode", "03"}},
         "zh-CN",
         "Inventory.cInvCCode like N'01%' And Customer.cCCCode like N'01%' And Vendor.cVCCode like N'02%'"},
        {"unposted-types",
         With(
             kEverything,
             {{"cEnDispAccountStyle", "发出商品"}, {"bSaleType", "销售发票"}, {"cValueStyle", "按部门核算"}}),
         {{"vouEstate", "未记账单据"}, {"cVouType", "05\t26\t20\tEX26\t25\t70"}, {"edtCAssComUnitNum", "2"}},
         "zh-CN",
         ""},
        {"both",
         kEverything,
         {{"vouEstate", kBoth}, {"cVouType", "70"}, {"NoSub.cBusType", "Ordinary"}},
         "",
         ""},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().langId = c.language;
        Set(host, c.parameters);
        host.SetFilter(c.filter);
        host.Filter()->where = c.where;
        ClsWtInfo report;
        report.GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("journal/") + c.name);
        ExpectScenario(host, "ClsWtInfo", std::string("journal/") + c.name);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set") << c.name;
        EXPECT_EQ(report.sarn_tmpTable(), "WtResult");
        EXPECT_EQ(report.TempTablename(), "");
    }
}

TEST(ClsWtInfo, SendsTheSameForHostsOfTheOlderKind)
{
    const std::vector<FakeField> fields = {{"vouEstate", kBoth}};
    RecordingHost early;
    const std::vector<std::string> wanted = StatementsOf(early, kEverything, fields);
    RecordingHost late;
    Set(late, kEverything);
    late.SetFilter(fields);
    ClsWtInfo().GetSqlForOld(*late.LateArgument());
    std::vector<std::string> sent;
    for (const SentStatement& statement : late.Sent())
        if (!statement.sql.starts_with("Select * FROM AccInformation"))
            sent.push_back(statement.sql);
    EXPECT_EQ(sent, wanted);
}

// Without a list of types the account alone decides.
TEST(ClsWtInfo, RunsThePassesThatTheAccountAllows)
{
    const Parameters none = {{"bFQSK", "False"}, {"bZYXS", "False"}};
    const std::set<int> always = {1, 2, 3, 4, 5, 11, 14, 15};
    const auto and_ = [&](std::set<int> more) {
        more.insert(always.begin(), always.end());
        return more;
    };
    EXPECT_EQ(PassesWith(none), always);
    EXPECT_EQ(PassesWith({}), always);  // no parameters at all
    EXPECT_EQ(PassesWith(With(none, {{"bSaleType", "发出商品"}})), and_({6, 8}));
    EXPECT_EQ(PassesWith(With(none, {{"bSaleType", "销售出库单"}})), and_({6}));
    EXPECT_EQ(PassesWith(With(none, {{"bSaleType", "销售发票"}})), and_({9}));
    EXPECT_EQ(PassesWith(With(none, {{"bSaleType", "true"}})), always);
    EXPECT_EQ(PassesWith(With(none, {{"cEnDispAccountStyle", "发出商品"}})), and_({8}));
    EXPECT_EQ(PassesWith(With(none, {{"cEnDispAccountStyle", "销售出库单"}})), and_({6}));
    EXPECT_EQ(PassesWith(With(none, {{"cEnDispAccountStyle", "销售发票"}})), and_({9}));
    EXPECT_EQ(PassesWith(With(none, {{"cExSaleAccType", "发出商品"}})), always);
    EXPECT_EQ(PassesWith(With(none, {{"cExSaleAccType", "销售出库单"}})), and_({6}));
    EXPECT_EQ(PassesWith(With(none, {{"cExSaleAccType", "销售发票"}})), and_({10}));
    EXPECT_EQ(PassesWith(With(none, {{"bFQSK", "true"}})), and_({7}));
    EXPECT_EQ(PassesWith(With(none, {{"bZYXS", "1"}})), and_({12, 13}));
}

// With everything switched on the list of types alone decides.
TEST(ClsWtInfo, RunsThePassesThatTheListOfTypesAllows)
{
    const Parameters all = With(kEverything, {{"cEnDispAccountStyle", "销售发票"}});
    const struct {
        const char* types;
        std::set<int> passes;
    } cases[] = {
        {"01", {1}},     {"011", {1}},        {"08", {2}},    {"09", {3}},        {"10", {4}},
        {"11", {5}},     {"32", {6}},         {"05", {7, 8}}, {"06", {}},         {"26", {9, 13}},
        {"27", {9, 13}}, {"28", {9}},         {"29", {9}},    {"EX26", {10, 11}}, {"ex27", {10, 11}},
        {"25", {12}},    {"20", {14}},        {"21", {14}},   {"70", {15}},       {"701", {15}},
        {"24", {}},      {"01\t70", {1, 15}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PassesWith(all, c.types), c.passes) << c.types;
}

TEST(ClsWtInfo, ReadsDirectBusinessFromTheLedgerWithAnExportModuleOrTheSwitch)
{
    const auto posted = [](const Parameters& parameters) { return PassesWith(parameters, "", "已记账单据"); };
    EXPECT_EQ(posted({{"bZYXS", "False"}, {"dEXFirstDate", ""}}), (std::set<int>{100}));
    EXPECT_EQ(posted({{"bZYXS", "True"}, {"dEXFirstDate", ""}}), (std::set<int>{100, 101}));
    EXPECT_EQ(posted({{"bZYXS", "False"}, {"dEXFirstDate", "2008-01-01"}}), (std::set<int>{100, 101}));
}

TEST(ClsWtInfo, MakesAnEmptyTableAndFinishesItWithBothFlagsFalse)
{
    RecordingHost host;
    const std::vector<std::string> sent = StatementsOf(host, kEverything, {});
    ASSERT_EQ(sent.size(), 18u);  // drop, create, twelve changes, four to finish
    EXPECT_TRUE(PassesOf(sent).empty());
    EXPECT_EQ(sent[0], "if exists(Select * from sysobjects where name= N'WtResult') Drop Table WtResult");
    EXPECT_TRUE(sent[14].starts_with("Update WtResult set 凭证号"));
}

// The where of the documents holds the dKeepDate clause of the ledger until it is stripped, and keeps dVouDate.
TEST(ClsWtInfo, StripsThePostingDateFromTheDocumentsConditions)
{
    RecordingHost host;
    for (const std::string& sql : StatementsOf(host, kEverything, {{"vouEstate", kBoth}})) {
        if (!sql.starts_with("Insert Into "))
            continue;
        const bool ledger = sql.find(" From IA_SubSidiary") != sql.npos;
        EXPECT_EQ(sql.find("NoSub.dKeepDate>=") != sql.npos, ledger) << sql;
        EXPECT_EQ(sql.find("NoSub.dVouDate>='2008-01-01'") != sql.npos, !ledger) << sql;
    }
}

TEST(ClsWtInfo, AddsNoListClauseForAnEmptyList)
{
    RecordingHost host;
    for (const std::string& sql : StatementsOf(host, kEverything, {{"vouEstate", kBoth}}))
        EXPECT_EQ(sql.find(" and NoSub.cVouType in ('"), sql.npos) << sql;
}

TEST(ClsWtInfo, ValuesByWarehouseWhereTheStyleIsMissing)
{
    for (const char* style : {"", "按仓库核算", "something else"}) {
        RecordingHost host;
        for (const std::string& sql :
             StatementsOf(host, With(kEverything, {{"cValueStyle", style}}), {{"vouEstate", "已记账单据"}}))
            if (sql.starts_with("Insert Into ")) {
                EXPECT_NE(sql.find("NoSub.cWhCode =WH.cWhCode and (WH.cwhvaluestyle=N'计划价法'"), sql.npos);
            }
    }
}

TEST(ClsWtInfo, TranslatesBusinessTypesUnlessTheLanguageIsChinese)
{
    for (const char* language : {"zh-CN", "en-US", "ZH-cn", ""}) {
        RecordingHost host;
        host.Answers().langId = language;
        const std::vector<std::string> sent = StatementsOf(host, kEverything, {});
        const bool translated = sent.back().find("业务类型=AA.EnumName") != std::string::npos;
        EXPECT_EQ(translated, std::string(language) != "zh-CN") << language;
    }
}

TEST(ClsWtInfo, ShowsTheTextOfAnEmptyTableName)
{
    RecordingHost host;
    Set(host, kEverything);
    host.Answers().sql = "";
    host.Answers().texts = {{"Orvo.IA.CHHSSQL.07860", "no name"}};
    host.SetFilter({});
    ClsWtInfo().GETSQL(*host.EarlyArgument());
    EXPECT_TRUE(Happened(host, "ResourceObject.ShowMessage no name"));
    EXPECT_FALSE(host.Sent().front().sql.starts_with("if exists"));
}

// Each statement fails once. Nothing reaches the host; what follows depends on the step.
TEST(ClsWtInfo, EndsNormallyWhicheverStatementFails)
{
    const std::vector<FakeField> fields = {{"vouEstate", kBoth}};
    RecordingHost whole;
    whole.Answers().langId = "en-US";
    StatementsOf(whole, kEverything, fields);
    const std::vector<SentStatement> all = whole.Sent();

    for (std::size_t k = 1; k <= all.size(); ++k) {
        RecordingHost host;
        host.Answers().langId = "en-US";
        Set(host, kEverything);
        host.SetFilter(fields);
        host.Script().failAtStatement = k;
        ClsWtInfo().GETSQL(*host.EarlyArgument());

        const std::string& failed = all[k - 1].sql;
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set") << failed;
        const bool shown = Happened(host, "ResourceObject.ShowMessage planned failure");
        const bool making = failed.starts_with("CREATE TABLE") || failed.starts_with("ALTER TABLE");
        const bool finishing = failed.starts_with("Update ") || failed.starts_with("Delete ");
        const bool lastUpdate = failed.find("AA.EnumName from") != failed.npos;
        EXPECT_EQ(shown, !making && (!finishing || lastUpdate)) << failed;

        const bool goesOn = making || failed.starts_with("if exists");
        if (goesOn) {
            EXPECT_EQ(host.Sent().size(), all.size()) << failed;
        }
        if (failed.starts_with("Insert Into ")) {
            EXPECT_EQ(host.Sent().size(), k) << failed;
        }
        if (finishing && !lastUpdate) {
            EXPECT_NE(host.Sent().back().sql.find("AA.EnumName"), std::string::npos) << failed;
        }
    }
}

// A fault of the host's own objects behind the frame's steps ends the run with a blank, and the connection stays.
TEST(ClsWtInfo, SwallowsFaultsOfTheHostsObjectsBehindTheFramesSteps)
{
    RecordingHost whole;
    const std::vector<FakeField> fields = {{"vouEstate", kBoth}, {"cVouType", "01"}};
    StatementsOf(whole, kEverything, fields);
    const std::vector<std::string> events = whole.Events().Lines();
    const auto frame = std::ranges::find(events, "e.LangID") - events.begin() + 1;

    for (std::size_t step = 1; step <= events.size(); ++step) {
        if (events[step - 1] == "#1.Close")
            continue;
        RecordingHost host;
        Set(host, kEverything);
        host.SetFilter(fields);
        host.Events().FailAt(step);
        if (step <= static_cast<std::size_t>(frame)) {
            EXPECT_THROW(ClsWtInfo().GETSQL(*host.EarlyArgument()), PlannedFailure) << events[step - 1];
        } else {
            EXPECT_NO_THROW(ClsWtInfo().GETSQL(*host.EarlyArgument())) << events[step - 1];
        }
    }
}

}  // namespace kavelin::test
