// The complete order of reads and writes of every entry of every report class, and what is left behind.
//
// The expected lines are written from the rules of the frame. "OPEN #1" stands for the six lines by which an
// account connection is opened, "OPEN SYSTEM #2" for those of the system connection.
#include "frame/Errors.h"
#include "frame/Frame.h"
#include "frame/Text.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace kavelin::test {

namespace {

constexpr std::string_view kOpenAccount =
    "#N.CursorLocation = 3\n"
    "Login.VosDbName\n"
    "#N.ConnectionString = 'account database'\n"
    "#N.ConnectionTimeout = 0\n"
    "#N.CommandTimeout = 0\n"
    "#N.Open user='' password='' options=-1\n";

constexpr std::string_view kOpenSystem =
    "new Connection #N\n"
    "#N.CursorLocation = 3\n"
    "Login.SystemDatabase\n"
    "late SystemDatabase.DbConnect\n"
    "late DbConnect.ConnectionString\n"
    "#N.ConnectionString = 'system database'\n"
    "Login.Password\n"
    "#N.Open user='' password='login password' options=-1\n";

std::string Expanded(std::string_view steps)
{
    std::string text(steps);
    for (const std::string number : {"1", "2"}) {
        text = ReplaceAll(text, "OPEN SYSTEM #" + number + "\n", ReplaceAll(kOpenSystem, "#N", "#" + number));
        text = ReplaceAll(text, "OPEN #" + number + "\n", ReplaceAll(kOpenAccount, "#N", "#" + number));
    }
    return text;
}

enum class Binding { Early, Late };

const Value kEmpty = "";
const Value kBlank = " ";
const Value kTrue = true;
const Value kFalse = false;

struct FrameCase {
    std::string_view className;
    FrameEntry entry;
    Binding binding;
    Value success, failure;   // of MoveDataDetail
    std::string_view before;  // MoveDataDetail
    std::string_view closes;  // after a success
    std::string_view left;    // after a success
    std::string_view leftByFailure;
};

constexpr std::string_view kEarly =
    "e.RawFilter\nnew Connection #1\ne.Login\nOPEN #1\n"
    "e.DataSource\nDataSource.Type = 2\nDataSource.sql\ne.LangID\n";
constexpr std::string_view kLateTypecode =
    "late e.RawFilter\nnew Connection #1\nlate e.Login\nOPEN #1\n"
    "late e.DataSource\nlate DataSource.Typecode = 2\nlate DataSource.sql\nlate e.LangID\n";
constexpr std::string_view kLateManager =
    "late e.RawFilter\nnew Connection #1\nlate e.Login\nOPEN #1\nlate e.ObjreportManager\n"
    "late e.DataSource\nlate DataSource.Typecode = 2\nlate e.LangID\nlate DataSource.sql\n";

constexpr std::string_view kForgotten = "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set";
constexpr std::string_view kClosed = "gcnnAccount=closed gcnnSystem=nothing gobjLogin=set";
constexpr std::string_view kOpen = "gcnnAccount=open gcnnSystem=nothing gobjLogin=set";
constexpr std::string_view kSystemStays = "gcnnAccount=closed gcnnSystem=open gobjLogin=set";
constexpr std::string_view kBothOpen = "gcnnAccount=open gcnnSystem=open gobjLogin=set";
constexpr std::string_view kClose1 = "#1.Close\n";

using enum FrameEntry;
using enum Binding;

const FrameCase kCases[] = {
    {"ClsWtInfo", GETSQL, Early, kEmpty, kBlank, kEarly, kClose1, kForgotten, kOpen},
    {"ClsWtInfo", GetSqlForOld, Late, kEmpty, kBlank, kLateTypecode, kClose1, kForgotten, kOpen},
    {"clsStaCostacc", GETSQL, Early, kEmpty, kBlank, kEarly, kClose1, kForgotten, kOpen},
    {"clsStaCostacc", GetSqlForOld, Late, kEmpty, kBlank, kLateTypecode, kClose1, kForgotten, kOpen},
    {"clsIaAnalysis", GETSQL, Early, kEmpty, kBlank, kEarly, kClose1, kForgotten, kOpen},
    {"ClsFCInventory", GETSQL, Early, kEmpty, kBlank, kEarly, kClose1, kForgotten, kOpen},
    {"ClsOutDetailInfo", GETSQL, Early, kEmpty, kBlank, kEarly, kClose1, kForgotten, kOpen},
    {"clsFCSumInfo", GETSQL, Early, kTrue, kFalse, kEarly, kClose1, kForgotten, kOpen},
    {"clsFCSumInfo", GetSqlForOld, Late, kTrue, kFalse, kLateTypecode, kClose1, kForgotten, kOpen},
    {"clsSfcSumInfo", GETSQL, Early, kTrue, kFalse,
     "e.RawFilter\nnew Connection #1\ne.Login\nOPEN #1\nOPEN SYSTEM #2\n"
     "e.DataSource\nDataSource.Type = 2\nDataSource.sql\n",
     kClose1, kSystemStays, kBothOpen},
    {"clsCinTurnRep", GetSqlForOld, Late, kTrue, kFalse,
     "late e.RawFilter\nnew Connection #1\nlate e.Login\nOPEN #1\nOPEN SYSTEM #2\nlate e.ObjreportManager\n"
     "late e.DataSource\nlate DataSource.Typecode = 2\nlate e.LangID\nlate DataSource.sql\n",
     kClose1, kSystemStays, kBothOpen},
    {"clsCinTurnRep", GETSQL, Early, kTrue, kFalse,
     "e.RawFilter\nnew Connection #1\ne.Login\nOPEN #1\nOPEN SYSTEM #2\nlate e.ObjreportManager\n"
     "e.DataSource\nDataSource.Type = 2\nDataSource.sql\n",
     kClose1, kSystemStays, kBothOpen},
    {"clsLastRep", GetSqlForOld, Late, kTrue, kFalse, kLateManager, kClose1, kClosed, kOpen},
    {"clsLastRep", GETSQL, Late, kTrue, kFalse,
     "late e.RawFilter\nnew Connection #1\nlate e.Login\nOPEN #1\n"
     "late e.DataSource\nlate DataSource.Type = 2\nlate e.LangID\nlate DataSource.sql\n",
     kClose1, "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=nothing", kOpen},
    {"ClsABC", GetSqlForOld, Late, kTrue, kFalse, kLateManager, kClose1, kClosed, kOpen},
    {"ClsABC", GETSQL, Late, kTrue, kFalse,
     "late e.RawFilter\nnew Connection #1\nlate e.Login\nOPEN #1\nlate e.Args\nlate Args.Item ABC\n"
     "late e.DataSource\nlate DataSource.Type = 2\nlate DataSource.sql\n",
     kClose1, kClosed, kOpen},
    {"clsProPortion", GETSQL, Early, kTrue, kFalse,
     "e.RawFilter\nnew Connection #1\ne.Login\nOPEN #1\nnew Connection #2\nOPEN #2\n"
     "e.DataSource\nDataSource.Type = 2\nDataSource.sql\n",
     "#2.Close\n", kOpen, kOpen},
    // Its one statement has no outcome: whatever it gives, the connection is closed.
    {"clsAreaStockReport", GETSQL, Early, kTrue, kTrue,
     "new Connection #1\ne.Login\nOPEN #1\n"
     "e.DataSource\nDataSource.Type = 2\nDataSource.sql\n"
     "e.Args\nArgs.Item IADataTable\ne.Args\nArgs.Item IAAreeTable\n",
     kClose1, kClosed, kClosed},
};

std::string NameOf(const FrameCase& c)
{
    return std::string(c.className) + (c.entry == GETSQL ? ".GETSQL" : ".GetSqlForOld");
}

// Runs the entry; MoveDataDetail writes a line and gives `outcome`.
void RunEntry(const FrameCase& c, RecordingHost& host, FrameContext& context, const Value& outcome)
{
    const FrameRow& row = FindFrameRow(c.className, c.entry);
    const MoveDataDetailCall moveDataDetail = [&] {
        host.Events().Add("MoveDataDetail");
        return outcome;
    };
    if (c.binding == Early)
        RunFrame(row, *host.EarlyArgument(), context, moveDataDetail);
    else
        RunFrame(row, *host.LateArgument(), context, moveDataDetail);
}

}  // namespace

TEST(Frame, HasARowForEachEntryOfEachReportClassAndNoOther)
{
    std::set<std::pair<std::string_view, FrameEntry>> wanted;
    for (const FrameCase& c : kCases)
        wanted.emplace(c.className, c.entry);
    std::set<std::pair<std::string_view, FrameEntry>> given;
    for (const FrameRow& row : FrameRows())
        EXPECT_TRUE(given.emplace(row.className, row.entry).second) << row.className;
    EXPECT_EQ(given, wanted);
    EXPECT_EQ(FrameRows().size(), std::size(kCases));
}

TEST(Frame, OfAnUnknownEntryIsAnError)
{
    EXPECT_THROW(FindFrameRow("clsProPortion", GetSqlForOld), Error);
    EXPECT_THROW(FindFrameRow("clsNothing", GETSQL), Error);
}

TEST(Frame, ReadsOpensAndClosesInTheOrderOfItsClassOnSuccess)
{
    for (const FrameCase& c : kCases) {
        RecordingHost host;
        FrameContext context;
        RunEntry(c, host, context, c.success);
        EXPECT_EQ(host.Events().Text(), Expanded(c.before) + "MoveDataDetail\n" + std::string(c.closes))
            << NameOf(c);
        EXPECT_EQ(ConnectionsLeft(), c.left) << NameOf(c);
        EXPECT_EQ(context.strTable, "tempdb..result") << NameOf(c);
    }
}

TEST(Frame, LeavesTheConnectionsOpenWhenMoveDataDetailReportsFailure)
{
    for (const FrameCase& c : kCases) {
        if (c.className == "clsAreaStockReport")
            continue;  // has no outcome
        RecordingHost host;
        FrameContext context;
        EXPECT_NO_THROW(RunEntry(c, host, context, c.failure)) << NameOf(c);
        EXPECT_EQ(host.Events().Text(), Expanded(c.before) + "MoveDataDetail\n") << NameOf(c);
        EXPECT_EQ(ConnectionsLeft(), c.leftByFailure) << NameOf(c);
    }
}

TEST(Frame, LetsAnErrorOfMoveDataDetailThroughWithTheConnectionsOpen)
{
    for (const FrameCase& c : kCases) {
        RecordingHost host;
        FrameContext context;
        host.Events().FailAt("MoveDataDetail");
        EXPECT_THROW(RunEntry(c, host, context, c.success), PlannedFailure) << NameOf(c);
        EXPECT_EQ(host.Events().Text(), Expanded(c.before) + "MoveDataDetail\n") << NameOf(c);
        const bool system = c.leftByFailure == kBothOpen;
        EXPECT_EQ(ConnectionsLeft(), system ? kBothOpen : kOpen) << NameOf(c);
    }
}

// A read or a write that fails ends the call there and then: nothing more is read, nothing is closed.
TEST(Frame, StopsAtAnyStepThatFails)
{
    for (const FrameCase& c : kCases) {
        const std::string before = Expanded(c.before);
        const auto steps = Split(before.substr(0, before.size() - 1), "\n");
        for (std::size_t step = 1; step <= steps.size(); ++step) {
            RecordingHost host;
            FrameContext context;
            host.Events().FailAt(step);
            EXPECT_THROW(RunEntry(c, host, context, c.success), PlannedFailure)
                << NameOf(c) << " step " << step;
            EXPECT_EQ(
                host.Events().Lines(),
                std::vector<std::string>(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(step)))
                << NameOf(c);
        }
    }
}

TEST(Frame, LetsAConnectionThatCannotBeOpenedThroughAsAnErrorOfTheCallInEveryClass)
{
    for (const FrameCase& c : kCases) {
        RecordingHost host;
        FrameContext context;
        host.Script().failAtOpen = 1;
        try {
            RunEntry(c, host, context, c.success);
            ADD_FAILURE() << NameOf(c);
        } catch (const ConnectionError& error) {
            EXPECT_STREQ(error.what(), "the server of connection #1 can't be reached");
        }
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=closed gcnnSystem=nothing gobjLogin=set") << NameOf(c);
        EXPECT_EQ(context.strTable, "") << NameOf(c);
    }
}

TEST(Frame, LeavesGcnnAccountOpenWhenTheSecondConnectionCannotBeOpened)
{
    for (const FrameCase& c : kCases) {
        if (c.before.find("#2") == std::string_view::npos)
            continue;
        RecordingHost host;
        FrameContext context;
        host.Script().failAtOpen = 2;
        EXPECT_THROW(RunEntry(c, host, context, c.success), ConnectionError) << NameOf(c);
        const bool system = c.className != "clsProPortion";
        EXPECT_EQ(StateOf(ModPub().gcnnAccount), "open") << NameOf(c);
        EXPECT_EQ(StateOf(ModPub().gcnnSystem), system ? "closed" : "nothing") << NameOf(c);
        EXPECT_EQ(StateOf(context.cnnOwn), system ? "nothing" : "closed") << NameOf(c);
    }
}

TEST(Frame, TakesLangIDOnlyWhereTheClassReadsIt)
{
    for (const FrameCase& c : kCases) {
        RecordingHost host;
        FrameContext context;
        host.Answers().langId = "en-US";
        ModPub().gstrLanguage = "of an earlier report";
        RunEntry(c, host, context, c.success);
        const bool reads = c.before.find("e.LangID") != std::string_view::npos;
        EXPECT_EQ(ModPub().gstrLanguage, reads ? "en-US" : "of an earlier report") << NameOf(c);
    }
}

TEST(Frame, LeavesTheLanguageEmptyIfNoReportOfTheThreadEverReadIt)
{
    RecordingHost host;
    FrameContext context;
    RunEntry(kCases[9], host, context, kTrue);
    ASSERT_EQ(kCases[9].className, "clsSfcSumInfo");
    EXPECT_EQ(ModPub().gstrLanguage, "");
}

TEST(Frame, TakesAnEmptyLangIDAsItIs)
{
    RecordingHost host;
    FrameContext context;
    ModPub().gstrLanguage = "en-US";
    host.Answers().langId = "";
    RunEntry(kCases[0], host, context, kEmpty);
    EXPECT_EQ(ModPub().gstrLanguage, "");
}

TEST(Frame, KeepsWhatItReadInTheContext)
{
    for (const FrameCase& c : kCases) {
        RecordingHost host;
        FrameContext context;
        host.Answers().args = {{"ABC", "1"}, {"IADataTable", "rows"}, {"IAAreeTable", "area"}};
        RunEntry(c, host, context, c.success);
        const bool area = c.className == "clsAreaStockReport";
        EXPECT_EQ(context.objFilter, area ? nullptr : host.Filter()) << NameOf(c);
        const bool manager = c.before.find("ObjreportManager") != std::string_view::npos;
        EXPECT_EQ(context.objReportManager, manager ? host.ReportManager() : nullptr) << NameOf(c);

        std::map<FrameRead, Value> args;
        if (area)
            args = {{FrameRead::ArgIADataTable, "rows"}, {FrameRead::ArgIAAreeTable, "area"}};
        if (c.className == "ClsABC" && c.entry == GETSQL)
            args = {{FrameRead::ArgABC, "1"}};
        EXPECT_EQ(context.dicArgs, args) << NameOf(c);
    }
}

TEST(Frame, ClosesOnlyTheReportsOwnConnectionOfTheCapitalShare)
{
    RecordingHost host;
    FrameContext context;
    RunFrame(FindFrameRow("clsProPortion", GETSQL), *host.EarlyArgument(), context, [] { return true; });
    EXPECT_EQ(StateOf(context.cnnOwn), "closed");
    EXPECT_EQ(StateOf(ModPub().gcnnAccount), "open");
}

TEST(Frame, DoesNotCloseAConnectionThatTheReportClosedItself)
{
    RecordingHost host;
    FrameContext context;
    RunFrame(FindFrameRow("clsFCSumInfo", GETSQL), *host.EarlyArgument(), context, [&] {
        ModPub().gcnnAccount->Close();
        host.Events().Clear();
        return true;
    });
    EXPECT_EQ(host.Events().Text(), "");
    EXPECT_EQ(ConnectionsLeft(), kForgotten);
}

TEST(Frame, ReplacesGcnnAccountOfAFailedReportWithoutClosingIt)
{
    RecordingHost host;
    FrameContext context;
    const FrameRow& row = FindFrameRow("ClsWtInfo", GETSQL);
    RunFrame(row, *host.EarlyArgument(), context, [] { return " "; });
    const auto first = ModPub().gcnnAccount;
    host.Events().Clear();

    RunFrame(row, *host.EarlyArgument(), context, [] { return ""; });
    EXPECT_EQ(host.Events().Text().find("#1."), std::string::npos) << host.Events().Text();
    EXPECT_EQ(StateOf(first), "open");
    EXPECT_EQ(ConnectionsLeft(), kForgotten);
}

TEST(Frame, ReplacesGcnnSystemOfAnEarlierReportWithoutClosingIt)
{
    RecordingHost host;
    FrameContext context;
    const FrameRow& row = FindFrameRow("clsSfcSumInfo", GETSQL);
    RunFrame(row, *host.EarlyArgument(), context, [] { return true; });
    const auto first = ModPub().gcnnSystem;
    RunFrame(row, *host.EarlyArgument(), context, [] { return true; });
    EXPECT_EQ(StateOf(first), "open");
    EXPECT_NE(ModPub().gcnnSystem, first);
}

TEST(Frame, GivesEachThreadAStateOfItsOwn)
{
    RecordingHost host;
    FrameContext context;
    RunFrame(FindFrameRow("ClsWtInfo", GETSQL), *host.EarlyArgument(), context, [] { return " "; });
    const auto connection = ModPub().gcnnAccount;

    std::thread([] {
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=nothing");
        EXPECT_EQ(ModPub().gstrLanguage, "");
        EXPECT_THROW(CurrentPlatform(), Error);

        RecordingHost other;
        other.Answers().langId = "en-US";
        FrameContext otherContext;
        RunFrame(FindFrameRow("clsFCSumInfo", GETSQL), *other.EarlyArgument(), otherContext,
                 [] { return false; });
        EXPECT_EQ(ConnectionsLeft(), kOpen);
        EXPECT_EQ(ModPub().gstrLanguage, "en-US");
    }).join();

    EXPECT_EQ(ModPub().gcnnAccount, connection);
    EXPECT_EQ(ModPub().gstrLanguage, "zh-CN");
}

}  // namespace kavelin::test
