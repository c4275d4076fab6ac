#include "host/ReportRun.h"

#include "frame/Errors.h"
#include "frame/ModPub.h"
#include "host/FilterTemplate.h"
#include "host/HostErrors.h"
#include "support/RecordingConnection.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::host {
namespace {

using test::ConnectionScript;
using test::EventLog;
using test::RecordingConnection;
using test::Rows;

// A made-up connection that answers whether a result table exists with `blnResultExists`.
class AnsweringConnection : public RecordingConnection {
  public:
    AnsweringConnection(std::shared_ptr<EventLog> events, std::shared_ptr<ConnectionScript> script,
                        const bool& resultExists)
        : RecordingConnection(std::move(events), std::move(script)), blnResultExists(resultExists)
    {
    }

    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override
    {
        auto rows = RecordingConnection::OpenRecordset(sql, location, type, lock);
        if (blnResultExists && sql.find("from sysobjects where name = N'KavelinResult_") != sql.npos)
            return std::make_unique<test::ScriptedRecordset>(Rows{{"name"}, {{Value("x")}}}, type);
        if (sql.find("select top 1 iYear, iID") == 0)
            return std::make_unique<test::ScriptedRecordset>(
                Rows{{"iYear", "iID"}, {{Value(2008), Value(12)}}}, type);
        return rows;
    }

  private:
    const bool& blnResultExists;
};

class ReportRunTest : public testing::Test {
  protected:
    ConnectionSource Connections(std::shared_ptr<Cancellation> cancellation = nullptr)
    {
        return ConnectionSource({}, std::move(cancellation), [this] {
            return std::make_shared<AnsweringConnection>(objEvents, objScript, blnResultExists);
        });
    }

    static AccountLogin Login()
    {
        AccountLogin login;
        login.connectionString = "Embedded Account=x";
        return login;
    }

    static FilterInput AreaInput() { return FilterInput(TemplateOf("area-table"), ValuePolicy::Checked); }

    std::vector<std::string> Sent() const
    {
        std::vector<std::string> texts;
        for (const auto& statement : objScript->sent)
            texts.push_back(statement.sql);
        return texts;
    }

    bool blnResultExists = true;
    std::shared_ptr<EventLog> objEvents = std::make_shared<EventLog>();
    std::shared_ptr<ConnectionScript> objScript = std::make_shared<ConnectionScript>();
};

TEST_F(ReportRunTest, LogsInToTheLatestPeriodOfTheAccount)
{
    ReportRun run(Login(), Connections());
    EXPECT_EQ(run.Login().Year(), "2008");
    EXPECT_EQ(run.Login().Month(), 12);
    EXPECT_EQ(run.Login().VosDbName(), "Embedded Account=x;Locale=zh-CN");
    ASSERT_EQ(Sent().size(), 2u);  // the first looks for tables of a demo
    EXPECT_EQ(
        Sent()[1],
        "select top 1 iYear, iID from VosSystem..UA_Period where cAcc_ID = N'001' and iYear <> 9999 and "
        "isnull(bIsDelete, 0) = 0 and iYear <= isnull((select max(iYear) from IA_Subsidiary), 9998) "
        "order by iYear desc, iID desc");
}

TEST_F(ReportRunTest, TakesTheYearAndMonthThatItIsTold)
{
    AccountLogin login = Login();
    login.year = 2007;
    EXPECT_EQ(ReportRun(login, Connections()).Login().Year(), "2007");
    EXPECT_NE(Sent().back().find(" and iYear = 2007 "), std::string::npos);
    login.month = 3;
    const std::size_t before = Sent().size();
    ReportRun run(login, Connections());
    EXPECT_EQ(run.Login().Year(), "2007");
    EXPECT_EQ(run.Login().Month(), 3);
    EXPECT_EQ(Sent().size(), before + 1);
}

TEST_F(ReportRunTest, RunsAReportIntoATableOfItsOwnAndDropsItAfterwards)
{
    std::string table;
    {
        ReportRun run(Login(), Connections());
        FilterInput input = AreaInput();
        input.Set("iadatatable=rows");
        input.Set("IAAreeTable=lines");
        run.Run(FindReport("area-table"), input);
        table = run.TableName();
        EXPECT_EQ(table.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_"),
                  table.npos);
        run.OpenResult();
        EXPECT_EQ(Sent().back(), "select * from " + table);

        run.Run(FindReport("area-table"), input);
        EXPECT_NE(run.TableName(), table);
    }
    std::string statement;
    for (const std::string& sent : Sent())
        if (sent.find(" into " + table) != sent.npos)
            statement = sent;
    EXPECT_NE(statement.find("tempdb..rows ia"), std::string::npos) << statement;
    EXPECT_NE(statement.find("tempdb..lines"), std::string::npos) << statement;
    const auto sent = Sent();
    EXPECT_EQ(std::count(sent.begin(), sent.end(), "drop table " + table), 1);
    EXPECT_EQ(sent.back().rfind("drop table KavelinResult_", 0), 0u);
}

TEST_F(ReportRunTest, ReadsTheResultInTheReportsOrder)
{
    ReportRun run(Login(), Connections());
    FilterInput input(TemplateOf("capital-share"), ValuePolicy::Checked);
    input.Set("imonth=2008-01-01..2008-06-30");
    input.Set("cno=10");
    objScript->rows["select sum(资金占用额) from ia_ProPortionRpt_temp1"] = {{""}, {{Value(0)}}};
    run.Run(FindReport("capital-share"), input);
    run.OpenResult();
    EXPECT_EQ(Sent().back(), "select * from " + run.TableName() + " order by cNo");

    std::string all;
    for (const std::string& sent : Sent())
        all += sent + "\n";
    EXPECT_NE(all.find(" and dkeepdate >= '2008-01-01' and dkeepdate <= '2008-06-30'"), std::string::npos)
        << all;
    EXPECT_NE(all.find(" and cNo<=10"), std::string::npos) << all;
    EXPECT_NE(all.find(" where iyear=2008 "), std::string::npos) << all;
}

TEST_F(ReportRunTest, GivesBackWhatAReportLeftOpen)
{
    ReportRun run(Login(), Connections());
    run.Run(FindReport("capital-share"), FilterInput(TemplateOf("capital-share"), ValuePolicy::Checked));
    EXPECT_EQ(ModPub().gcnnAccount, nullptr);
    EXPECT_EQ(ModPub().gobjPlatform, nullptr);
    EXPECT_EQ(run.Account().State(), ConnectionState::Open);
}

TEST_F(ReportRunTest, PassesTheErrorOfAReportOn)
{
    ReportRun run(Login(), Connections());
    objScript->failAtStatement = objScript->sent.size() + 1;
    EXPECT_THROW(run.Run(FindReport("area-table"), AreaInput()), DatabaseError);
    EXPECT_EQ(ModPub().gobjPlatform, nullptr);
    EXPECT_NO_THROW(run.Run(FindReport("area-table"), AreaInput()));
}

TEST_F(ReportRunTest, FailsIfAReportLeavesNoResult)
{
    blnResultExists = false;
    ReportRun run(Login(), Connections());
    EXPECT_THROW(run.Run(FindReport("area-table"), AreaInput()), ReportError);
}

TEST_F(ReportRunTest, PassesTheErrorOfAConnectionOn)
{
    objScript->failAtOpen = 1;
    EXPECT_THROW(ReportRun(Login(), Connections()), DatabaseError);
}

TEST_F(ReportRunTest, DropsItsTableAfterACancelledRunToo)
{
    const auto cancellation = std::make_shared<Cancellation>();
    {
        ReportRun run(Login(), Connections(cancellation));
        run.Run(FindReport("area-table"), AreaInput());
        cancellation->Cancel();
        EXPECT_THROW(run.OpenResult(), CancelledError);
    }
    EXPECT_EQ(Sent().back().rfind("drop table KavelinResult_", 0), 0u);
}

TEST(Reports, KnowElevenDialogsTheAreaTableAndTheTemplateByName)
{
    EXPECT_EQ(AllReports().size(), 13u);
    std::size_t dialogs = 0;
    for (const Report& report : AllReports())
        dialogs += !report.filterId.empty();
    EXPECT_EQ(dialogs, 11u);
    const Report& report = FindReport("Capital-Share");
    EXPECT_EQ(report.className, "clsProPortion");
    EXPECT_EQ(report.filterId, "2BEEF300-28F0-4716-9D8A-9F0424174763");
    EXPECT_EQ(report.Title("en-US"), "Capital share");
    EXPECT_EQ(report.Title("zh-CN"), "存货资金占用分析");
}

TEST(Reports, RefuseAnUnknownNameWithTheNearest)
{
    try {
        FindReport("capital-shar");
        FAIL();
    } catch (const UsageError& e) {
        EXPECT_STREQ(e.what(), "There is no report \"capital-shar\". Did you mean capital-share?");
    }
}

}  // namespace
}  // namespace kavelin::host
