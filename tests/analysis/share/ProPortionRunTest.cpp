// What the capital share does to the objects of its host: order, statements, faults.
#include "analysis/ProPortionStatements.h"
#include "analysis/clsProPortion.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

const std::string kTotal = "select sum(资金占用额) from ia_ProPortionRpt_temp1";
const std::string kAmounts = "select (资金占用额) from ia_ProPortionRpt_temp";

Rows Amounts(std::size_t count)
{
    return {{"资金占用额"}, std::vector<std::vector<Value>>(count, {Value(50)})};
}

// A run whose record sets give `total` and `items` rows.
void Script(RecordingHost& host, const Value& total, std::size_t items)
{
    host.Answers().sql = "tempdb..share";
    host.Script().rows[kTotal] = {{""}, {{total}}};
    host.Script().rows[kAmounts] = Amounts(items);
}

void SwitchPermissionsOn(RecordingHost& host)
{
    host.SetParameter("IA", "bWarehouseCheck", "TRUE");
    host.SetParameter("IA", "bInventoryCheck", "TRUE");
    host.Answers().lists = {{"Warehouse", "'01','02'"}, {"Inventory", "'A','B'"}};
}

std::string ReadOf(int set, const std::string& parameter)
{
    const std::string name = "@" + std::to_string(set);
    return "#1.OpenRecordset " + name +
           " location=3 type=0 lock=1 Select * FROM AccInformation where cSysID= N'IA' "
           "and cName= N'" +
           parameter + "'\n" + name + ".Close\n";
}

std::string Executed(const std::string& sql)
{
    return "#2.Execute " + ReplaceAll(sql, "\r\n", "⏎") + "\n";
}

// How many statements repaired the shares.
std::size_t Repairs(const RecordingHost& host)
{
    std::size_t count = 0;
    for (const SentStatement& statement : host.Sent())
        count += statement.sql.starts_with("update ");
    return count;
}

bool Happened(RecordingHost& host, const std::string& line)
{
    const auto& lines = host.Events().Lines();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

}  // namespace

TEST(clsProPortion, ReadsSendsAndClosesInItsOrder)
{
    RecordingHost host;
    Script(host, 100, 2);
    host.SetFilter({{"cinvcode", "A", "B"}, {"cNo", "1"}});
    clsProPortion report;
    report.GETSQL(*host.EarlyArgument());

    const std::string account =
        "Login.VosDbName\n#N.ConnectionString = 'account database'\n#N.ConnectionTimeout = 0\n"
        "#N.CommandTimeout = 0\n#N.Open user='' password='' options=-1\n";
    const std::string rangeWalk =
        "RawFilter.FilterList\nFilterList.Count\n"
        "FilterList.Item 1\ncinvcode.LngGrouptoken = 1\ncinvcode.Name\ncinvcode.varValue\ncinvcode.varValue2\n"
        "FilterList.Item 2\ncNo.LngGrouptoken = 1\ncNo.Name\n";
    const std::string rankWalk =
        "RawFilter.FilterList\nFilterList.Count\n"
        "FilterList.Item 1\ncinvcode.LngGrouptoken = 1\ncinvcode.Name\n"
        "FilterList.Item 2\ncNo.LngGrouptoken = 1\ncNo.Name\ncNo.varValue\n";
    EXPECT_EQ(
        host.Events().Text(),
        "e.RawFilter\n"
        "new Connection #1\n"
        "e.Login\n"
        "#1.CursorLocation = 3\n" +
            ReplaceAll(account, "#N", "#1") +
            "new Connection #2\n"
            "#2.CursorLocation = 3\n" +
            ReplaceAll(account, "#N", "#2") +
            "e.DataSource\n"
            "DataSource.Type = 2\n"
            "DataSource.sql\n" +
            rangeWalk +  // thrown away
            Executed(DropIfExists(kLedgerRows)) + "Login.Year\n" + rangeWalk + ReadOf(1, "bWarehouseCheck") +
            ReadOf(2, "bInventoryCheck") +
            Executed(SelectLedgerRows(
                "2008", " 1=1  And IA_Subsidiary.cinvcode>='A' And IA_Subsidiary.cinvcode<='B'",
                " and  ((IA_Subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))"
                "  or IA_Subsidiary.cWhCode is null) ")) +
            "#2.OpenRecordset @3 location=3 type=3 lock=1 " + kTotal + "\n" +
            Executed(DropIfExists(kItemSums)) + Executed(SelectItemSums()) +
            Executed(DropIfExists(kRankedItems)) + Executed(SelectRankedItems()) +
            "#2.OpenRecordset @4 location=3 type=3 lock=1 " + kAmounts +
            "\n"
            "@4.RecordCount\n"
            "@3.Field 0\n" +
            Executed(UpdateLargestShare()) +
            "@4.Close\n"
            "@3.Close\n" +
            rankWalk +
            Executed("select * into  tempdb..share  from ia_ProPortionRpt_temp where  1=1    and cNo<=1") +
            Executed(DropIfExists(kLedgerRows)) + Executed(DropIfExists(kItemSums)) +
            Executed(DropIfExists(kRankedItems)) + "#2.Close\n");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    EXPECT_EQ(report.TempTablename(), "tempdb..share");
}

TEST(clsProPortion, SendsTheStatementsOfItsScenarios)
{
    const struct {
        const char* name;
        std::vector<FakeField> filter;
        bool permissions;
        Value total;
        std::size_t items;
    } cases[] = {
        {"no-filter", {}, false, 100, 2},
        {"all-keys",
         {{"cinvcode", "0101", "0199"},
          {"cwhcode", "01", "03"},
          {"cinvccode", "01", "02"},
          {"imonth", "2008-01-01", "2008-07-31"},
          {"cNo", "10"}},
         false,
         100,
         2},
        {"lower-ends",
         {{"cinvcode", "0101"},
          {"cwhcode", "01"},
          {"cinvccode", "01"},
          {"imonth", "2008-01-01"},
          {"cNo", ""}},
         false,
         100,
         2},
        {"permissions", {}, true, 100, 2},
        {"one-item", {}, false, 100, 1},
        {"zero-total", {}, false, 0, 2},
        {"empty-ledger", {}, false, Value::Null(), 0},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Script(host, c.total, c.items);
        host.SetFilter(c.filter);
        if (c.permissions)
            SwitchPermissionsOn(host);
        clsProPortion().GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("capital-share/") + c.name);
        ExpectScenario(host, "clsProPortion", std::string("capital-share/") + c.name);
        for (const std::int32_t token : host.Filter()->Tokens())
            EXPECT_EQ(token, 1) << c.name;
    }
}

TEST(clsProPortion, RunsItsOwnStatementsOnItsOwnConnectionAndReadsSwitchesOnGcnnAccount)
{
    RecordingHost host;
    Script(host, 100, 2);
    SwitchPermissionsOn(host);
    clsProPortion().GETSQL(*host.EarlyArgument());
    for (const SentStatement& statement : host.Sent())
        EXPECT_EQ(statement.connection, statement.sql.find("AccInformation") == std::string::npos ? 2 : 1)
            << statement.sql;
}

TEST(clsProPortion, RepairsOnlySeveralItemsWithATotalOtherThanZero)
{
    const struct {
        Value total;
        std::size_t items;
        std::size_t repairs;
    } cases[] = {
        {100, 2, 1},           {-100, 2, 1},          {100, 3, 1}, {*Decimal::FromText("0.01"), 2, 1},
        {100, 1, 0},           {100, 0, 0},           {0, 2, 0},   {*Decimal::FromText("0.00"), 2, 0},
        {Value::Null(), 0, 0}, {Value::Null(), 2, 0},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Script(host, c.total, c.items);
        clsProPortion().GETSQL(*host.EarlyArgument());
        EXPECT_EQ(Repairs(host), c.repairs) << c.items << " items";
        EXPECT_TRUE(Happened(host, "@4.Close"));
        EXPECT_TRUE(Happened(host, "@3.Close"));
    }
}

TEST(clsProPortion, MoveDataDetailGivesTrueAndCanBeCalledAgain)
{
    RecordingHost host;
    Script(host, 100, 2);
    clsProPortion report;
    report.GETSQL(*host.EarlyArgument());
    const std::size_t first = host.Sent().size();
    report.GETSQL(*host.EarlyArgument());
    EXPECT_EQ(host.Sent().size(), 2 * first);
    EXPECT_EQ(host.Sent().back().connection, 4);
    EXPECT_FALSE(Happened(host, "#1.Close"));
    EXPECT_FALSE(Happened(host, "#3.Close"));
    EXPECT_TRUE(Happened(host, "#4.Close"));
}

// A failed statement is an error of the call: nothing is sent behind it, nothing is closed.
TEST(clsProPortion, StopsAtEachStatementThatFailsWithBothConnectionsOpen)
{
    constexpr std::size_t kStatements = 15;
    for (std::size_t k = 1; k <= kStatements; ++k) {
        RecordingHost host;
        Script(host, 100, 2);
        host.Script().failAtStatement = k;
        clsProPortion report;
        try {
            report.GETSQL(*host.EarlyArgument());
            ADD_FAILURE() << "statement " << k << " failed unnoticed";
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.what(), "planned failure of statement " + std::to_string(k));
            EXPECT_EQ(error.Get().strStatement, host.Sent().back().sql);
        }
        EXPECT_EQ(host.Sent().size(), k);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set") << k;
        EXPECT_FALSE(Happened(host, "#1.Close")) << k;
        EXPECT_FALSE(Happened(host, "#2.Close")) << k;
        EXPECT_FALSE(Happened(host, "ResourceObject.ShowMessage")) << k;
        EXPECT_EQ(report.TempTablename(), "tempdb..share");
    }
    RecordingHost host;
    Script(host, 100, 2);
    clsProPortion().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(host.Sent().size(), kStatements);
}

// With permissions on, each switch is read twice: the failure of the second read lifts the restriction
// without a word, that of the first is an error of the call.
TEST(clsProPortion, LosesARestrictionSilentlyWhenTheAuthorisationFails)
{
    const struct {
        std::size_t statement;
        bool fails;
        bool warehouses;
        bool items;
    } cases[] = {
        {2, true, false, false}, {3, false, false, true}, {4, true, false, false}, {5, false, true, false}};
    for (const auto& c : cases) {
        RecordingHost host;
        Script(host, 100, 2);
        SwitchPermissionsOn(host);
        host.Script().failAtStatement = c.statement;
        if (c.fails) {
            EXPECT_THROW(clsProPortion().GETSQL(*host.EarlyArgument()), DatabaseError);
            continue;
        }
        EXPECT_NO_THROW(clsProPortion().GETSQL(*host.EarlyArgument()));
        const std::string& ledger = host.Sent().at(5).sql;
        EXPECT_EQ(ledger.find("IN ('01','02')") != std::string::npos, c.warehouses) << ledger;
        EXPECT_EQ(ledger.find("IN ('A','B')") != std::string::npos, c.items) << ledger;
    }
}

TEST(clsProPortion, LetsEveryFaultOfTheHostsObjectsThrough)
{
    RecordingHost whole;
    Script(whole, 100, 2);
    whole.SetFilter({{"cinvcode", "A", "B"}, {"cNo", "1"}});
    clsProPortion().GETSQL(*whole.EarlyArgument());
    const std::vector<std::string> events = whole.Events().Lines();

    for (std::size_t step = 1; step <= events.size(); ++step) {
        RecordingHost host;
        Script(host, 100, 2);
        host.SetFilter({{"cinvcode", "A", "B"}, {"cNo", "1"}});
        host.Events().FailAt(step);
        EXPECT_THROW(clsProPortion().GETSQL(*host.EarlyArgument()), PlannedFailure) << events[step - 1];
        EXPECT_EQ(host.Events().Lines().size(), step) << events[step - 1];
    }
}

}  // namespace kavelin::test
