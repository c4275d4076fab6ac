#include "frame/Errors.h"
#include "frame/Text.h"
#include "journal/AreaStockStatements.h"
#include "journal/clsAreaStockReport.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

using Args = std::map<std::string, Value>;

std::string SentWith(const Args& args)
{
    RecordingHost host;
    host.Answers().args = args;
    clsAreaStockReport().GETSQL(*host.EarlyArgument());
    return host.Sent().at(0).sql;
}

bool UsesAccountTables(const std::string& sql)
{
    return sql.find(
               " from ia_data_subsidiary ia inner join (select distinct autoid from ia_accountarea) area on "
               "ia.autoid=area.autoid  inner join inventory inv on inv.cinvcode=ia.cinvcode left join warehouse "
               "wh on wh.cwhcode=ia.cwhcode ") != std::string::npos &&
           sql.find("tempdb..", sql.find(" from ")) == std::string::npos;
}

}  // namespace

TEST(clsAreaStockReport, ReadsItsArgumentsRunsOneStatementAndCloses)
{
    RecordingHost host;
    host.Answers().args = {{"IADataTable", "rows"}, {"IAAreeTable", "area"}};
    clsAreaStockReport().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(host.Events().Text(),
              "new Connection #1\n"
              "e.Login\n"
              "#1.CursorLocation = 3\n"
              "Login.VosDbName\n"
              "#1.ConnectionString = 'account database'\n"
              "#1.ConnectionTimeout = 0\n"
              "#1.CommandTimeout = 0\n"
              "#1.Open user='' password='' options=-1\n"
              "e.DataSource\n"
              "DataSource.Type = 2\n"
              "DataSource.sql\n"
              "e.Args\n"
              "Args.Item IADataTable\n"
              "e.Args\n"
              "Args.Item IAAreeTable\n"
              "#1.Execute " +
                  ReplaceAll(SelectAreaRows("tempdb..result", "rows", "area"), "\r\n", "⏎") +
                  "\n"
                  "#1.Close\n");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=closed gcnnSystem=nothing gobjLogin=set");
}

TEST(clsAreaStockReport, SendsTheStatementsOfItsScenarios)
{
    const struct {
        const char* name;
        Args args;
    } cases[] = {
        {"both-tables", {{"IADataTable", "IA_Rows"}, {"IAAreeTable", "IA_Area"}}},
        {"account-tables", {}},
        {"quote-and-bracket", {{"IADataTable", "[IA Rows'1]"}, {"IAAreeTable", "IA]Area'"}}},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().args = c.args;
        clsAreaStockReport().GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("area-table/") + c.name);
        ExpectScenario(host, "clsAreaStockReport", std::string("area-table/") + c.name);
    }
}

TEST(clsAreaStockReport, TakesTheAccountsTablesUnlessBothNamesAreGiven)
{
    EXPECT_TRUE(UsesAccountTables(SentWith({})));
    EXPECT_TRUE(UsesAccountTables(SentWith({{"IADataTable", "IA_Rows"}})));
    EXPECT_TRUE(UsesAccountTables(SentWith({{"IAAreeTable", "IA_Area"}})));
    EXPECT_TRUE(UsesAccountTables(SentWith({{"IADataTable", "IA_Rows"}, {"IAAreeTable", ""}})));
    EXPECT_TRUE(UsesAccountTables(SentWith({{"IADataTable", ""}, {"IAAreeTable", "IA_Area"}})));
    EXPECT_TRUE(UsesAccountTables(SentWith({{"IADataTable", Value::Null()}, {"IAAreeTable", "IA_Area"}})));
    EXPECT_FALSE(UsesAccountTables(SentWith({{"IADataTable", "IA_Rows"}, {"IAAreeTable", "IA_Area"}})));
}

TEST(clsAreaStockReport, PastesNamesWithAQuoteOrABracketAsTheyAre)
{
    const std::string sql = SentWith({{"IADataTable", "[a'b]"}, {"IAAreeTable", "c]d'"}});
    EXPECT_NE(
        sql.find(" from tempdb..[a'b] ia inner join (select distinct autoid from tempdb..c]d') area on "),
        std::string::npos);
}

TEST(clsAreaStockReport, HandsAFailedStatementToTheHostAndLeavesTheConnectionOpen)
{
    RecordingHost host;
    host.Script().failAtStatement = 1;
    EXPECT_THROW(clsAreaStockReport().GETSQL(*host.EarlyArgument()), DatabaseError);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    EXPECT_EQ(host.Sent().size(), 1U);
}

TEST(clsAreaStockReport, ReadsNoFilterNoLanguageAndNoAccountParameter)
{
    RecordingHost host;
    ModPub().gstrLanguage = "en-US";
    clsAreaStockReport().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(ModPub().gstrLanguage, "en-US");
    EXPECT_EQ(host.Sent().size(), 1U);
    EXPECT_EQ(host.Events().Text().find("RawFilter"), std::string::npos);
}

TEST(clsAreaStockReport, CanBeCalledAgainWithOtherArguments)
{
    RecordingHost host;
    clsAreaStockReport report;
    host.Answers().args = {{"IADataTable", "r"}, {"IAAreeTable", "a"}};
    report.GETSQL(*host.EarlyArgument());
    host.Answers().args = {};
    host.Answers().sql = "other";
    report.GETSQL(*host.EarlyArgument());
    EXPECT_TRUE(UsesAccountTables(host.Sent().at(1).sql));
    EXPECT_NE(host.Sent().at(1).sql.find(" into other\r\n"), std::string::npos);
}

}  // namespace kavelin::test
