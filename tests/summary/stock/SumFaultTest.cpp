// What a host sees of the summary: the order in which it is touched, and what follows where something fails.
#include "frame/Errors.h"
#include "summary/clsIASFCReport.h"
#include "summary/clsSFCSumCon.h"
#include "summary/clsSfcSumInfo.h"
#include "summary/stock/SummaryRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

const std::vector<FakeField> kEverything = {{"vouEstate", ""},
                                            {"dVouDate", "2008-07-01", "2008-07-31", true},
                                            {"cAssComUnitNum", "2"},
                                            {"byteFree", "是"}};

constexpr const char* kClosed = "gcnnAccount=closed gcnnSystem=open gobjLogin=set";
constexpr const char* kOpen = "gcnnAccount=open gcnnSystem=open gobjLogin=set";

bool Shown(RecordingHost& host)
{
    return host.Events().Text().find("ResourceObject.ShowMessage ") != std::string::npos;
}

// The events, statements cut to their first word.
std::string Outline(RecordingHost& host)
{
    std::string text;
    for (const std::string& line : host.Events().Lines()) {
        const std::size_t execute = line.find(".Execute ");
        const std::size_t end = execute == std::string::npos ? line.size() : line.find(' ', execute + 9);
        text += line.substr(0, end) + "\n";
    }
    return text;
}

}  // namespace

TEST(ClsSfcSumInfo, TouchesItsHostInOrder)
{
    RecordingHost host;
    Prepare(host, {}, {{"cInvCCode", "01"}});
    clsSfcSumInfo().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(
        Outline(host),
        "e.RawFilter\n"
        "new Connection #1\n"
        "e.Login\n"
        "#1.CursorLocation = 3\n"
        "Login.VosDbName\n"
        "#1.ConnectionString = 'account database'\n"
        "#1.ConnectionTimeout = 0\n"
        "#1.CommandTimeout = 0\n"
        "#1.Open user='' password='' options=-1\n"
        "new Connection #2\n"
        "#2.CursorLocation = 3\n"
        "Login.SystemDatabase\n"
        "late SystemDatabase.DbConnect\n"
        "late DbConnect.ConnectionString\n"
        "#2.ConnectionString = 'system database'\n"
        "Login.Password\n"
        "#2.Open user='' password='login password' options=-1\n"
        "e.DataSource\n"
        "DataSource.Type = 2\n"
        "DataSource.sql\n"
        "#1.Execute if\n"
        "RawFilter.FilterList\n"
        "FilterList.Count\n"
        "FilterList.Item 1\n"
        "cInvCCode.LngGrouptoken = 1\n"
        "cInvCCode.Name\n"
        "cInvCCode.varValue\n"
        "#1.Execute if\n"
        "#1.OpenRecordset @1 location=3 type=0 lock=1 Select * FROM AccInformation where cSysID= N'IA' and"
        " cName= N'dIAStartDate'\n"
        "@1.Field cvalue\n"
        "@1.Close\n"
        "#1.OpenRecordset @2 location=3 type=0 lock=1 Select cValue from AccInformation Where cName="
        " N'cDispLevel'\n"
        "@2.Field cValue\n"
        "@2.Close\n"
        "#1.Execute select\n"
        "new ResourceObject\n"
        "ResourceObject.GetResString Orvo.IA.CHHSSQL.12528\n"
        "ResourceObject.GetResString Orvo.IA.CHHSSQL.13500\n"
        "#1.Execute delete\n"
        "#1.Execute update\n"
        "#1.Execute update\n"
        "#1.Close\n");
}

TEST(ClsSfcSumInfo, ReadsItsTwoSettingsWhereARuleAsksAndClosesThem)
{
    RecordingHost host;
    Prepare(host, {}, kEverything);
    clsSfcSumInfo().GETSQL(*host.EarlyArgument());
    const auto& events = host.Events().Lines();
    const auto at = [&](const std::string& beginning) {
        return std::ranges::find_if(events, [&](const std::string& e) { return e.starts_with(beginning); });
    };
    const auto firstInsert = at("#1.Execute insert into tempdb..pool (cinvcode");
    const auto style = std::ranges::find_if(
        events, [](const std::string& e) { return e.find("'cEnDispAccountStyle'") != std::string::npos; });
    const auto saleType = std::ranges::find_if(
        events, [](const std::string& e) { return e.find("'bSaleType'") != std::string::npos; });
    EXPECT_LT(firstInsert, style);
    EXPECT_LT(style, saleType);
    const auto number = [](const std::string& event) {
        const std::size_t start = event.find('@');
        return event.substr(start, event.find(' ', start) - start);
    };
    for (const auto& opened : {style, saleType}) {
        const std::string name = number(*opened);
        EXPECT_LT(opened, at(name + ".Field cValue"));
        EXPECT_LT(at(name + ".Field cValue"), at(name + ".Close"));
        EXPECT_NE(at(name + ".Close"), events.end());
    }
}

TEST(ClsSfcSumInfo, GivesNoTableNameAndOverwritesTheOneItHad)
{
    RecordingHost host;
    Prepare(host, {}, {});
    clsSfcSumInfo report;
    EXPECT_EQ(report.TempTablename(), "");
    report.SetTempTable("before");
    EXPECT_EQ(report.sarn_tmpTable(), "before");
    report.GETSQL(*host.EarlyArgument());
    EXPECT_EQ(report.TempTablename(), "");
    EXPECT_EQ(report.sarn_tmpTable(), "tempdb..pool");
}

TEST(ClsSfcSumInfo, KeepsNothingOfAnEarlierRun)
{
    RecordingHost host;
    Prepare(host, {}, kEverything);
    clsSfcSumInfo report;
    report.GETSQL(*host.EarlyArgument());
    const std::size_t sent = host.Sent().size();
    host.SetFilter({});
    report.GETSQL(*host.EarlyArgument());
    RecordingHost fresh;
    Prepare(fresh, {}, {});
    clsSfcSumInfo().GETSQL(*fresh.EarlyArgument());
    EXPECT_EQ(host.Sent().size() - sent, fresh.Sent().size());
}

// ---- statements that fail

TEST(ClsSfcSumInfo, TellsNobodyWhicheverStatementFailsButTheFirst)
{
    for (const char* saleType : {"true", "false"}) {
        const SummaryAccount account = {.saleType = saleType};
        RecordingHost whole;
        Prepare(whole, account, kEverything);
        clsSfcSumInfo().GETSQL(*whole.EarlyArgument());
        const std::size_t count = whole.Sent().size();
        ASSERT_GT(count, 25U);

        for (std::size_t k = 1; k <= count; ++k) {
            RecordingHost host;
            Prepare(host, account, kEverything);
            host.Script().failAtStatement = k;
            clsSfcSumInfo report;
            EXPECT_NO_THROW(report.GETSQL(*host.EarlyArgument()));
            const std::string& failed = whole.Sent()[k - 1].sql;
            if (k == 1) {
                // A table that can't be dropped is shown, and the run goes on.
                EXPECT_TRUE(Shown(host));
                EXPECT_EQ(host.Sent().size(), count);
                EXPECT_EQ(ConnectionsLeft(), kClosed);
                continue;
            }
            EXPECT_FALSE(Shown(host)) << failed;
            EXPECT_EQ(host.Sent().size(), k) << failed;
            EXPECT_EQ(ConnectionsLeft(), kOpen) << failed;
        }
    }
}

TEST(GetSum, LetsEveryFailureThrough)
{
    const SumArguments arguments = {.varDateStart = "2008-07-01",
                                    .bAccount = true,
                                    .BUnAccount = true,
                                    .bytFree = 1,
                                    .bytDirect = 1,
                                    .strDefineSub = " 1=1 ",
                                    .cAssComUnitNum = 2};
    const auto run = [&](RecordingHost& host, std::size_t failAt) {
        Prepare(host, {}, {});
        host.OpenAccount();
        host.Script().failAtStatement = failAt;
        clsIASFCReport engine;
        engine.tmpTable = "pool";
        engine.GetSum(arguments);
    };
    RecordingHost whole;
    run(whole, 0);
    const std::size_t count = whole.Sent().size();
    for (std::size_t k = 1; k <= count; ++k) {
        RecordingHost host;
        EXPECT_THROW(run(host, k), DatabaseError) << whole.Sent()[k - 1].sql;
        EXPECT_EQ(host.Sent().size(), k);
        EXPECT_FALSE(Shown(host));
    }
}

TEST(GetSum, FailsWithoutAConnection)
{
    RecordingHost host;
    EXPECT_THROW(clsIASFCReport().GetSum({}), Error);
}

// ---- parameters that are missing

TEST(ClsSfcSumInfo, FailsQuietlyWithoutTheLevelsOfTheClasses)
{
    RecordingHost host;
    Prepare(host, {.levels = std::nullopt}, kEverything);
    clsSfcSumInfo report;
    EXPECT_NO_THROW(report.GETSQL(*host.EarlyArgument()));
    EXPECT_EQ(StepsOf(host), "drop drop ?cDispLevel");
    EXPECT_FALSE(Shown(host));
    EXPECT_EQ(ConnectionsLeft(), kOpen);
    host.OpenAccount();
    EXPECT_FALSE(report.MoveDataDetail());
}

TEST(ClsSfcSumInfo, FailsQuietlyAtTheFirstRuleThatAsksForAMissingSetting)
{
    const struct {
        SummaryAccount account;
        const char* last;
    } cases[] = {
        {{.saleType = std::nullopt}, "+stock +adjustments"},
        {{.entrustedStyle = std::nullopt}, "+vendors +dispatches -instalments"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, c.account, kEverything);
        EXPECT_NO_THROW(clsSfcSumInfo().GETSQL(*host.EarlyArgument()));
        EXPECT_TRUE(StepsOf(host).ends_with(c.last)) << StepsOf(host);
        EXPECT_FALSE(Shown(host));
        EXPECT_EQ(ConnectionsLeft(), kOpen);
    }
}

TEST(GetSum, DoesNotAskForTheSettingsOfDocumentsWhereItReadsTheLedgerOnly)
{
    RecordingHost host;
    Prepare(host, {.saleType = std::nullopt, .entrustedStyle = std::nullopt},
            {{"vouEstate", "已记账单据"}, {"dVouDate", "2008-07-01"}});
    clsSfcSumInfo().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(ConnectionsLeft(), kClosed);
}

// ---- a filter that can't be read

TEST(ClsSfcSumInfo, SucceedsWithoutATableWhereTheFilterCanNotBeRead)
{
    RecordingHost host;
    Prepare(host, {}, {{"rdGrade", "two"}, {"vouEstate", ""}});
    clsSfcSumInfo report;
    report.GETSQL(*host.EarlyArgument());
    EXPECT_TRUE(Shown(host));
    EXPECT_EQ(StepsOf(host), "drop") << "and no engine";
    EXPECT_EQ(ConnectionsLeft(), kClosed);
    host.OpenAccount();
    EXPECT_TRUE(report.MoveDataDetail());
}

TEST(ClsSfcSumInfo, FailsQuietlyWithoutAFilter)
{
    RecordingHost host;
    clsSfcSumInfo report;
    EXPECT_FALSE(report.MoveDataDetail());
    EXPECT_FALSE(Shown(host));
}

// Faults of the frame's steps go to the host. Behind them nothing does: those of the filter and of the first
// drop are shown, all others end the run.
TEST(ClsSfcSumInfo, LetsFaultsOfTheFrameThroughAndNoOthers)
{
    RecordingHost whole;
    Prepare(whole, {}, kEverything);
    clsSfcSumInfo().GETSQL(*whole.EarlyArgument());
    const std::vector<std::string> events = whole.Events().Lines();
    const auto frame = std::ranges::find(events, "DataSource.sql") - events.begin() + 1;

    for (std::size_t step = 1; step < events.size(); ++step) {
        RecordingHost host;
        Prepare(host, {}, kEverything);
        host.Events().FailAt(step);
        clsSfcSumInfo report;
        const std::string& event = events[step - 1];
        if (step <= static_cast<std::size_t>(frame)) {
            EXPECT_THROW(report.GETSQL(*host.EarlyArgument()), PlannedFailure) << event;
            EXPECT_TRUE(host.Sent().empty());
            continue;
        }
        EXPECT_NO_THROW(report.GETSQL(*host.EarlyArgument())) << event;
        const bool ofFilter = !event.starts_with("#1.") && !event.starts_with("@") &&
                              event.find("ResourceObject") == std::string::npos;
        const bool ofFirstDrop = step == static_cast<std::size_t>(frame) + 1;
        EXPECT_EQ(Shown(host), ofFilter || ofFirstDrop) << event;
        EXPECT_EQ(ConnectionsLeft(), ofFilter || ofFirstDrop ? kClosed : kOpen) << event;
    }
}

TEST(ClsSfcSumInfo, FailsQuietlyWhereEvenTheMessageFails)
{
    RecordingHost host;
    Prepare(host, {}, {{"rdGrade", "1"}});
    host.Events().FailWithErrors();
    host.Script().failAtStatement = 1;
    host.Events().FailAt("ResourceObject.ShowMessage planned failure of statement 1, 48");
    EXPECT_NO_THROW(clsSfcSumInfo().GETSQL(*host.EarlyArgument()));
    EXPECT_EQ(host.Sent().size(), 1U);
    EXPECT_EQ(ConnectionsLeft(), kOpen);
}

TEST(ClsSfcSumInfo, LeavesConnectionsThatDoNotOpenToTheHost)
{
    for (const int connection : {1, 2}) {
        RecordingHost host;
        Prepare(host, {}, {});
        host.Script().failAtOpen = connection;
        EXPECT_THROW(clsSfcSumInfo().GETSQL(*host.EarlyArgument()), ConnectionError);
        EXPECT_TRUE(host.Sent().empty());
    }
}

}  // namespace kavelin::test
