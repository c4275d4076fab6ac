// What the standard-cost journal does to the objects of its host: order, statements, faults.
#include "component/Component.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "journal/CostColumns.h"
#include "journal/clsStaCostacc.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kavelin::test {

namespace {

void Prepare(RecordingHost& host, const std::vector<FakeField>& fields)
{
    host.Answers().sql = "CostResult";
    host.SetParameter("ia", "dIAFirstDate", "2008-01-01");
    host.SetFilter(fields);
}

// The statements of a run, logged as tests/statements/standard-cost-journal/NAME.sql.
void ExpectRun(const std::string& name, const std::vector<FakeField>& fields)
{
    RecordingHost host;
    Prepare(host, fields);
    clsStaCostacc().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    ExpectStatements(host.Sent(), "standard-cost-journal/" + name);
    ExpectScenario(host, "clsStaCostacc", "standard-cost-journal/" + name);
}

std::vector<std::string> Texts(RecordingHost& host)
{
    std::vector<std::string> texts;
    for (const SentStatement& sent : host.Sent())
        texts.push_back(sent.sql);
    return texts;
}

std::string CopyOf(const std::string& where, const std::string& vouTypes, const std::string& busTypes)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetParameter("ia", "dIAFirstDate", "2008-01-01");
    EXPECT_TRUE(clsStaCostacc().CreateCostInfoTable(true, true, "T", where, vouTypes, busTypes, "zh-CN", 2));
    const auto texts = Texts(host);
    const auto copy = std::ranges::find_if(
        texts, [](const std::string& text) { return text.starts_with("select  dvoudate"); });
    return copy == texts.end() ? "" : copy->substr(copy->find(" into "));
}

}  // namespace

TEST(TheStandardCostJournal, RunsItsStatementsInOrder)
{
    ExpectRun("no-filter", {});
    ExpectRun("all-keys", {{"edtCAssComUnitNum", "2"},
                           {"cVouType", "01\t011\t30\t32"},
                           {"cBusType", "普通采购"},
                           {"cpzid", "x"},
                           {"dVouDate", "2008-01-01", "2008-03-31", true},
                           {"dKeepDate", "2008-01-01", "2008-03-31", true},
                           {"cInvCCode", "01"},
                           {"CcCusCode", "K1", "K2", true},
                           {"cInvCode", "A\tB", "", false, true},
                           {"cWhCode", "01\t02", "", false, true},
                           {"cRdCode", "1"},
                           {"cInvDefine1", "x"}});
    ExpectRun("estimates-only", {{"cVouType", "011"}});
}

TEST(TheStandardCostJournal, TakesAnArgumentOfAnOldHostToo)
{
    RecordingHost early;
    Prepare(early, {{"cVouType", "08"}});
    clsStaCostacc().GETSQL(*early.EarlyArgument());
    RecordingHost late;
    Prepare(late, {{"cVouType", "08"}});
    clsStaCostacc().GetSqlForOld(*late.LateArgument());
    EXPECT_EQ(Texts(late), Texts(early));
    EXPECT_NE(late.Events().Text().find("late DataSource.Typecode = 2\n"), std::string::npos);
}

TEST(TheStandardCostJournal, NeverShowsUnpostedRowsWhateverTheStateSays)
{
    RecordingHost plain;
    Prepare(plain, {});
    clsStaCostacc().GETSQL(*plain.EarlyArgument());
    for (const char* state : {"已记账单据", "未记账单据", "已记账单据,未记账单据"}) {
        RecordingHost host;
        Prepare(host, {{"vouEstate", state}});
        clsStaCostacc().GETSQL(*host.EarlyArgument());
        EXPECT_EQ(Texts(host), Texts(plain)) << state;
    }
}

TEST(CreateCostInfoTable, AsksForVoucherTypesInOneCondition)
{
    const std::string start = " into T from  V_IA_CostacCount  where   1=1 And   dKeepDate>='2008-01-01'";
    const struct {
        const char *vouTypes, *condition;
    } cases[] = {
        {"", ""},
        {"'08','32'", " And (  (cVouType in ('08','32','3201')))"},
        {"'01','08'", " And (  (cVouType in ('08') OR  (cVouType='01' and bFlag<>1) ))"},
        {"'01'", " And (  ( (cVouType='01' and bFlag<>1) ))"},
        {"'301','701'", " And (  ( (cVouType='30' and bFlag=1)  OR (cVouType='70' and bFlag=1) ))"},
        {"'01','011'", " And (  (cVouType in ('01','011')))"},
        {"'25','05'", " And (  (cVouType in ('25','2501','05','06')))"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CopyOf(" 1=1", c.vouTypes, ""), start + c.condition) << c.vouTypes;
}

TEST(CreateCostInfoTable, PutsTheBusinessTypesLast)
{
    EXPECT_EQ(CopyOf(" 1=1", "'08'", "N'领料'"),
              " into T from  V_IA_CostacCount  where   1=1 And   dKeepDate>='2008-01-01'"
              " And (  (cVouType in ('08'))) And (  cBusType in (N'领料'))");
    EXPECT_EQ(CopyOf(" 1=1", "", "N'领料'"),
              " into T from  V_IA_CostacCount  where   1=1 And   dKeepDate>='2008-01-01'"
              " And (  cBusType in (N'领料'))");
}

TEST(CreateCostInfoTable, DoesNotLookAtFlagsLanguageAndUnit)
{
    std::set<std::vector<std::string>> sent;
    for (const bool flag : {false, true}) {
        RecordingHost host;
        host.OpenAccount();
        clsStaCostacc().CreateCostInfoTable(flag, !flag, "T", " 1=1", "", "", flag ? "en-US" : "",
                                            flag ? 3 : 0);
        sent.insert(Texts(host));
    }
    EXPECT_EQ(sent.size(), 1U);
}

TEST(CreateCostInfoTable, IsCalledByNameWithEightOrNineArguments)
{
    const std::vector<Variant> eight = {Value(true), Value(false), Value("T"), Value(" 1=1"),
                                        Value(""),   Value(""),    Value(""),  Value(0)};
    std::set<std::vector<std::string>> sent;
    for (const std::size_t count : {8U, 9U}) {
        RecordingHost host;
        host.OpenAccount();
        std::vector<Variant> arguments = eight;
        arguments.resize(count);
        const Variant result = CreateObject("Kavelin.clsStaCostacc")->Call("CreateCostInfoTable", arguments);
        EXPECT_EQ(ValueOf(result, "result"), Value(true));
        sent.insert(Texts(host));
    }
    EXPECT_EQ(sent.size(), 1U);
    for (const std::size_t count : {0U, 7U, 10U}) {
        std::vector<Variant> arguments = eight;
        arguments.resize(count);
        EXPECT_THROW(CreateObject("Kavelin.clsStaCostacc")->Call("CreateCostInfoTable", arguments), Error)
            << count;
    }
}

TEST(CreateCostInfoTable, ShowsThatTheTableHasNoNameAndGoesOn)
{
    RecordingHost host;
    host.OpenAccount();
    clsStaCostacc().CreateCostInfoTable(true, false, "", " 1=1", "", "", "", 0);
    EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage <Orvo.IA.CHHSSQL.07860>, 48\n"),
              std::string::npos);
    ASSERT_FALSE(host.Sent().empty());
    EXPECT_TRUE(host.Sent()[0].sql.starts_with("Select * FROM AccInformation")) << "nothing is dropped";
}

TEST(SelectCostColumns, EndsEachGroupWithALineBreak)
{
    const std::string columns = SelectCostColumns();
    EXPECT_TRUE(columns.ends_with("fSemiOmQuanDifName\r\n"));
    const auto lines = Split(columns, "\r\n");
    EXPECT_EQ(lines.size(), 11U) << "ten groups, and nothing behind the last line break";
}

TEST(SelectCostColumns, HasTheSameFamilyForReceiptsAndIssues)
{
    const auto lines = Split(SelectCostColumns(), "\r\n");
    std::string issues = lines.at(6);
    for (const auto& [out, in] :
         {std::pair("iout", "iin"), std::pair("istdout", "istdin"), std::pair("iStdOut", "iStdIn")})
        issues = ReplaceAll(issues, out, in);
    EXPECT_EQ(issues, lines.at(5));
    EXPECT_EQ(Split(lines.at(5), ",").size(), 1U + 6 + 8 + 10 + 10 + 10 + 6 + 1)
        << "and what follows the comma";
}

TEST(SelectCostColumns, LeavesOutWhatIsNotWanted)
{
    const std::string columns = ToLower(SelectCostColumns());
    for (const char* name : {" cdefine34,", " cinvdefine13,", " cdefine17,", " cdefine21,", " iinomcost,",
                             " ioutomprice,", " cvoutype,", " ipzid,", " id,"})
        EXPECT_EQ(columns.find(name), std::string::npos) << name;
    for (const char* name : {" cdefine33,", " cdefine37,", " cinvdefine12,", " cinvdefine16,",
                             " iinsemiomdif,", " ioutsemiomdifcost,", " ipzcode as idifpzid,"})
        EXPECT_NE(columns.find(name), std::string::npos) << name;
}

// ---- failures

TEST(TheStandardCostJournal, ShowsWhicheverStatementFailsAndEndsNormally)
{
    RecordingHost whole;
    Prepare(whole, {});
    clsStaCostacc().GETSQL(*whole.EarlyArgument());
    const auto sent = Texts(whole);

    for (std::size_t number = 1; number <= sent.size(); ++number) {
        RecordingHost host;
        Prepare(host, {});
        host.Script().failAtStatement = number;
        EXPECT_NO_THROW(clsStaCostacc().GETSQL(*host.EarlyArgument())) << number;
        EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage "), std::string::npos) << number;
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set") << number;

        // A table that can't be dropped doesn't stop the copy; a copy that fails leaves nothing to fill in.
        const std::string& failed = sent.at(number - 1);
        const bool copies =
            failed.starts_with("select  dvoudate") || failed.find("dIAFirstDate") != failed.npos;
        const auto has = [&](std::string_view beginning) {
            return std::ranges::any_of(Texts(host),
                                       [&](const std::string& text) { return text.starts_with(beginning); });
        };
        EXPECT_EQ(has(" update CostResult set ipzcode"), !copies) << failed;
        EXPECT_EQ(has(" update CostResult set iDifPZid"),
                  !copies && !failed.starts_with(" update CostResult set ipz"))
            << failed;
    }
}

TEST(TheStandardCostJournal, LeavesErrorsOfTheConnectionToTheHost)
{
    RecordingHost host;
    Prepare(host, {});
    host.Script().failAtOpen = 1;
    EXPECT_THROW(clsStaCostacc().GETSQL(*host.EarlyArgument()), ConnectionError);
}

TEST(MoveDataDetail, OfTheStandardCostJournalGivesABlankForAnErrorThatNothingShows)
{
    RecordingHost host;
    Prepare(host, {});
    host.OpenAccount();
    clsStaCostacc report;
    report.GETSQL(*host.EarlyArgument());
    host.OpenAccount();
    EXPECT_EQ(report.MoveDataDetail(), "");

    // The message itself fails.
    host.OpenAccount();
    host.Script()
        .failures["if exists(Select * from sysobjects where name= N'CostResult') Drop Table CostResult"] =
        "no right";
    host.Events().FailWithErrors();
    host.Events().FailAt("ResourceObject.ShowMessage no right, 48");
    EXPECT_EQ(report.MoveDataDetail(), " ");
}

}  // namespace kavelin::test
