// What the goods-in-transit summary does to the objects of its host: order, statements, faults.
#include "goods/GoodsClauses.h"
#include "goods/GoodsSumStatements.h"
#include "goods/clsFCSumInfo.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

const std::vector<FakeField> kAllKeys = {
    {"Inventory.cInvCCode", "01"},
    {"Ia_Ensubsidiary.cBustype", "委托代销"},
    {"iUnitNumber", "1"},
    {"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"},
    {"Ia_Ensubsidiary.dKeepDate", "2008-07-01", "2008-07-31"},
    {"iYear", "2008"},
    {"DispatchList.cDLCode", "D1", "D2"},
};
const std::string kAllKeysWhere =
    "iYear = 2008 and DispatchList.cDLCode >= N'D1' and DispatchList.cDLCode <= N'D2'";

const std::vector<FakeField> kYear = {{"iYear", "2008"}};

void Prepare(RecordingHost& host, const std::vector<FakeField>& fields, const std::string& token)
{
    host.Answers().sql = "tempdb..goods";
    host.SetFilter(fields);
    host.Filter()->whereByToken[0] = token;
}

bool Happened(RecordingHost& host, const std::string& line)
{
    return std::ranges::find(host.Events().Lines(), line) != host.Events().Lines().end();
}

// The lines of what was shown to the user, with their icons.
std::vector<std::string> Shown(RecordingHost& host)
{
    std::vector<std::string> shown;
    for (const std::string& line : host.Events().Lines())
        if (line.starts_with("ResourceObject.ShowMessage "))
            shown.push_back(line.substr(std::string("ResourceObject.ShowMessage ").size()));
    return shown;
}

std::string WorkTable()
{
    return "Tempdb..[FCSFCItem" + Machine().MachineName() + "7]";
}

}  // namespace

TEST(clsFCSumInfo, SendsTheStatementsOfItsScenarios)
{
    const struct {
        const char* name;
        std::vector<FakeField> fields;
        std::string token;
    } cases[] = {
        {"all-keys", kAllKeys, kAllKeysWhere},
        {"year-only", kYear, "iYear = 2008"},
        {"lower-ends",
         {{"Ia_Ensubsidiary.cBustype", "普通销售"},
          {"Ia_Ensubsidiary.dVouDate", "2008-07-01"},
          {"Ia_Ensubsidiary.dKeepDate", "2008-07-01"},
          {"iYear", "2008"}},
         "iYear = 2008"},
        {"upper-ends",
         {{"Ia_Ensubsidiary.cBustype", "分期收款"},
          {"Ia_Ensubsidiary.dVouDate", "", "2008-07-31"},
          {"Ia_Ensubsidiary.dKeepDate", "", "2008-07-31"},
          {"iYear", "2008"}},
         "iYear = 2008"},
        {"no-filter", {}, ""},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, c.fields, c.token);
        clsFCSumInfo report;
        report.GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("goods-summary/") + c.name);
        ExpectScenario(host, "clsFCSumInfo", std::string("goods-summary/") + c.name);
        EXPECT_FALSE(Happened(host, "new ResourceObject")) << c.name;
    }
}

TEST(clsFCSumInfo, FillsItsWorkTableAndBuildsTheResultInOneOrder)
{
    RecordingHost host;
    Prepare(host, kYear, "iYear = 2008");
    clsFCSumInfo report;
    report.GETSQL(*host.EarlyArgument());

    std::vector<std::string> sent;
    for (const SentStatement& statement : host.Sent())
        sent.push_back(statement.sql);
    const std::string table = WorkTable();
    const std::string open = "iYear = 2008 and  ( ia_ensubsidiary.imonth  = 0 ) ";
    EXPECT_EQ(sent, (std::vector<std::string>{
                        DropGoodsWorkTable("FCSFCItem" + Machine().MachineName() + "7"),
                        CreateGoodsSumTable(table),
                        InsertGoodsOpening(table, open, 0),
                        InsertGoodsMovement(table, "iYear = 2008 and 1 = 1 ", 0),
                        UpdateGoodsEnd(table),
                        SelectGoodsSums(table),
                        SelectGoodsResult("tempdb..goods", "2008", 0),
                    }));
    EXPECT_EQ(report.TempTablename(), "tempdb..goods");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
}

TEST(clsFCSumInfo, ReadsItsArgumentInTheFramesOrderInBothEntries)
{
    RecordingHost early;
    Prepare(early, {}, "");
    clsFCSumInfo().GETSQL(*early.EarlyArgument());
    const std::string begin =
        "e.RawFilter\nnew Connection #1\ne.Login\n#1.CursorLocation = 3\nLogin.VosDbName\n"
        "#1.ConnectionString = 'account database'\n#1.ConnectionTimeout = 0\n#1.CommandTimeout = 0\n"
        "#1.Open user='' password='' options=-1\n"
        "e.DataSource\nDataSource.Type = 2\nDataSource.sql\ne.LangID\nRawFilter.FilterList\n";
    EXPECT_TRUE(early.Events().Text().starts_with(begin)) << early.Events().Text();

    RecordingHost late;
    Prepare(late, {}, "");
    clsFCSumInfo report;
    report.GetSqlForOld(*late.LateArgument());
    EXPECT_TRUE(Happened(late, "late DataSource.Typecode = 2")) << late.Events().Text();
    EXPECT_EQ(late.Sent().size(), early.Sent().size());
    EXPECT_EQ(report.TempTablename(), "tempdb..goods");
    EXPECT_EQ(ModPub().gstrLanguage, "zh-CN");
}

// The passes divide by the rate of the chosen or of the stock unit; the result shows the unit of that number in
// the group, which for 0 is the group's unit of number 0.
TEST(clsFCSumInfo, ShowsAnotherUnitThanItCountsByUnlessANumberIsChosen)
{
    const std::string result = SelectGoodsResult("T", "2008", 0);
    EXPECT_NE(result.find("ComputationUnit.iNumber = 0)"), std::string::npos);
    EXPECT_EQ(result.find("cSTComUnitCode"), std::string::npos);
    EXPECT_NE(InsertGoodsOpening("T", "", 0).find("cSTComUnitCode"), std::string::npos);
    EXPECT_EQ(InsertGoodsMovement("T", "", 1).find("cSTComUnitCode"), std::string::npos);
}

TEST(clsFCSumInfo, SumsQuantitiesWithoutATestOfTheDirection)
{
    const std::string movement = InsertGoodsMovement("T", "", 0);
    EXPECT_NE(movement.find("\r\nsum(IA_EnSubsidiary.iAInQuantity),\r\n"), std::string::npos);
    EXPECT_NE(movement.find("\r\nsum(IA_EnSubsidiary.iAOutQuantity),\r\n"), std::string::npos);
    EXPECT_NE(
        movement.find("sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInPrice,0)"),
        std::string::npos);
}

TEST(clsFCSumInfo, HasAViewFilterThatDoesNothing)
{
    RecordingHost host;
    EXPECT_EQ(clsFCSumInfo().GetViewFilter("anything"), "");
    EXPECT_EQ(host.Events().Text(), "");
}

// A failed statement ends its step and is shown; the steps behind it run, and the run counts as a success.
TEST(clsFCSumInfo, ShowsTheFailureOfEachStatementAndGoesOnWithTheNextStep)
{
    // Drop and creation, movement and end balance, sums and result are a step each.
    const struct {
        std::size_t failing, sent;
    } cases[] = {{1, 6}, {2, 7}, {3, 7}, {4, 6}, {5, 7}, {6, 6}, {7, 7}};
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, kAllKeys, kAllKeysWhere);
        host.Script().failAtStatement = c.failing;
        clsFCSumInfo report;
        EXPECT_NO_THROW(report.GETSQL(*host.EarlyArgument()));
        EXPECT_EQ(host.Sent().size(), c.sent) << c.failing;
        EXPECT_EQ(Shown(host), (std::vector<std::string>{"planned failure of statement " +
                                                         std::to_string(c.failing) + ", 48"}));
        EXPECT_TRUE(Happened(host, "#1.Close")) << c.failing;
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set") << c.failing;
    }
}

TEST(clsFCSumInfo, ShowsEachOfSeveralFailures)
{
    RecordingHost host;
    Prepare(host, kYear, "iYear = 2008");
    const std::string table = WorkTable();
    host.Script().failures[CreateGoodsSumTable(table)] = "no room";
    host.Script().failures[UpdateGoodsEnd(table)] = "no table";
    host.Script().failures[SelectGoodsSums(table)] = "no sums";
    clsFCSumInfo().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(Shown(host), (std::vector<std::string>{"no room, 48", "no table, 48", "no sums, 48"}));
}

// Faults of the frame's steps and of its end reach the host, those of the filter and of showing a message end
// the run quietly and leave the connection open.
TEST(clsFCSumInfo, LetsFaultsOfTheHostsObjectsThroughInTheFramesStepsOnly)
{
    RecordingHost whole;
    Prepare(whole, kAllKeys, kAllKeysWhere);
    clsFCSumInfo().GETSQL(*whole.EarlyArgument());
    const std::vector<std::string> events = whole.Events().Lines();
    const auto frame = std::ranges::find(events, "e.LangID") - events.begin() + 1;
    const auto filter = std::ranges::find(events, "RawFilter.GetWhereWithToken 0") - events.begin() + 1;

    for (std::size_t step = 1; step <= events.size(); ++step) {
        RecordingHost host;
        Prepare(host, kAllKeys, kAllKeysWhere);
        host.Events().FailAt(step);
        const std::string& event = events[step - 1];
        if (step <= static_cast<std::size_t>(frame) || event == "#1.Close") {
            EXPECT_THROW(clsFCSumInfo().GETSQL(*host.EarlyArgument()), PlannedFailure) << event;
            continue;
        }
        EXPECT_NO_THROW(clsFCSumInfo().GETSQL(*host.EarlyArgument())) << event;
        if (step <= static_cast<std::size_t>(filter)) {
            EXPECT_TRUE(host.Sent().empty()) << event;
            EXPECT_TRUE(ConnectionsLeft().starts_with("gcnnAccount=open")) << event;
        }
    }
}

// A successful run takes its connection away; the steps of another call each tell that they have none.
TEST(clsFCSumInfo, GivesFalseWithoutAFilterAndShowsThatThereIsNoConnection)
{
    RecordingHost host;
    clsFCSumInfo report;
    EXPECT_FALSE(report.MoveDataDetail());
    Prepare(host, kYear, "iYear = 2008");
    report.GETSQL(*host.EarlyArgument());
    EXPECT_TRUE(report.MoveDataDetail());
    EXPECT_EQ(Shown(host).size(), 4u);
}

TEST(clsFCSumInfo, EndsWithFalseWhereAMessageCannotBeShown)
{
    RecordingHost host;
    Prepare(host, kYear, "iYear = 2008");
    host.Script().failAtStatement = 3;
    host.Events().FailAt("ResourceObject.ShowMessage planned failure of statement 3, 48");
    clsFCSumInfo report;
    EXPECT_NO_THROW(report.GETSQL(*host.EarlyArgument()));
    EXPECT_EQ(host.Sent().size(), 3u);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
}

}  // namespace kavelin::test
