#include "host/StatementLog.h"

#include "frame/Errors.h"
#include "host/HostConnection.h"
#include "support/RecordingConnection.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace kavelin::host {
namespace {

using test::ConnectionScript;
using test::EventLog;
using test::RecordingConnection;

struct NotingObserver : StatementObserver {
    void Begins(const std::string& sql, const std::string& connection) override
    {
        lines.push_back("begins " + connection + ": " + sql);
    }
    void Ended(const StatementRecord& record) override
    {
        lines.push_back("ended " + record.connection + ": " + record.sql + ", rows " +
                        std::to_string(record.rows) + ", error " + record.error.value_or("none"));
    }
    std::vector<std::string> lines;
};

class LoggingConnectionTest : public testing::Test {
  protected:
    LoggingConnection Make(StatementObservers observers, std::shared_ptr<Cancellation> cancellation = nullptr)
    {
        return LoggingConnection(std::make_shared<RecordingConnection>(objEvents, objScript), "account 1",
                                 std::move(observers), std::move(cancellation));
    }

    static auto OpenStatic(Connection& connection, const std::string& sql)
    {
        return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    }

    std::shared_ptr<EventLog> objEvents = std::make_shared<EventLog>();
    std::shared_ptr<ConnectionScript> objScript = std::make_shared<ConnectionScript>();
};

TEST_F(LoggingConnectionTest, HandsEverythingOn)
{
    auto connection = Make({});
    connection.SetCursorLocation(CursorLocation::Client);
    connection.SetConnectionString("Embedded Account=x");
    connection.SetConnectionTimeout(0);
    connection.SetCommandTimeout(0);
    connection.Open("u", "p", -1);
    EXPECT_EQ(connection.State(), ConnectionState::Open);
    connection.Execute("select 1");
    OpenStatic(connection, "select 2");
    connection.Cancel();
    connection.Close();
    EXPECT_EQ(connection.State(), ConnectionState::Closed);

    auto bare = std::make_shared<EventLog>();
    RecordingConnection same(bare, std::make_shared<ConnectionScript>());
    same.SetCursorLocation(CursorLocation::Client);
    same.SetConnectionString("Embedded Account=x");
    same.SetConnectionTimeout(0);
    same.SetCommandTimeout(0);
    same.Open("u", "p", -1);
    same.Execute("select 1");
    OpenStatic(same, "select 2");
    same.Cancel();
    same.Close();
    EXPECT_EQ(objEvents->Text(), bare->Text());
}

TEST_F(LoggingConnectionTest, TellsEveryObserverBeforeAndAfterAStatement)
{
    objScript->rows["select 2"] = {{"n"}, {{Value(1)}, {Value(2)}}};
    const auto observer = std::make_shared<NotingObserver>();
    auto connection = Make({observer});
    connection.Open("", "", -1);
    OpenStatic(connection, "select 2");
    ASSERT_EQ(observer->lines.size(), 2u);
    EXPECT_EQ(observer->lines[0], "begins account 1: select 2");
    EXPECT_EQ(observer->lines[1], "ended account 1: select 2, rows 2, error none");
}

TEST_F(LoggingConnectionTest, TellsTheErrorOfAFailedStatementAndPassesItOn)
{
    objScript->failures["bad"] = "no such thing";
    const auto observer = std::make_shared<NotingObserver>();
    auto connection = Make({observer});
    connection.Open("", "", -1);
    EXPECT_THROW(connection.Execute("bad"), DatabaseError);
    EXPECT_EQ(observer->lines.back(), "ended account 1: bad, rows -1, error no such thing");
}

TEST_F(LoggingConnectionTest, RefusesStatementsAfterACancellationUntilItIsReset)
{
    const auto cancellation = std::make_shared<Cancellation>();
    const auto observer = std::make_shared<NotingObserver>();
    auto connection = Make({observer}, cancellation);
    connection.Open("", "", -1);
    cancellation->Cancel();
    EXPECT_TRUE(cancellation->IsCancelled());
    EXPECT_THROW(connection.Execute("select 1"), CancelledError);
    EXPECT_TRUE(observer->lines.empty());
    cancellation->Reset();
    EXPECT_NO_THROW(connection.Execute("select 1"));
}

// A statement that runs until somebody cancels it.
class WaitingConnection : public RecordingConnection {
  public:
    using RecordingConnection::RecordingConnection;
    std::int64_t Execute(const std::string&) override
    {
        while (!blnCancelled)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        throw CancelledError(DatabaseError::Details{"stopped", "HY008", 0, "", 0, 0});
    }
    void Cancel() noexcept override { blnCancelled = true; }

  private:
    std::atomic<bool> blnCancelled = false;
};

TEST_F(LoggingConnectionTest, StopsTheStatementThatRuns)
{
    const auto cancellation = std::make_shared<Cancellation>();
    LoggingConnection connection(std::make_shared<WaitingConnection>(objEvents, objScript), "account 1", {},
                                 cancellation);
    std::jthread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        cancellation->Cancel();
    });
    EXPECT_THROW(connection.Execute("waitfor"), CancelledError);
}

class StatementLogFileTest : public testing::Test {
  protected:
    StatementLogFileTest()
    {
        strPath =
            std::filesystem::temp_directory_path() / ("kavelin-log-" + std::to_string(::getpid()) + ".jsonl");
        std::filesystem::remove(strPath);
    }
    ~StatementLogFileTest() override { std::filesystem::remove(strPath); }

    std::vector<nlohmann::json> Lines() const
    {
        std::ifstream stream(strPath);
        std::vector<nlohmann::json> lines;
        for (std::string line; std::getline(stream, line);)
            lines.push_back(nlohmann::json::parse(line));
        return lines;
    }

    std::filesystem::path strPath;
};

TEST_F(StatementLogFileTest, WritesALineAStatement)
{
    StatementLogFile log(strPath);
    log.Ended({"select '资金'\r\nfrom t", "account 1", 1.5, 3, std::nullopt});
    log.Ended({"bad \xFF", "account 2", 0, -1, "it failed"});
    const auto lines = Lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], nlohmann::json({{"sql", "select '资金'\r\nfrom t"},
                                        {"connection", "account 1"},
                                        {"ms", 1.5},
                                        {"rows", 3},
                                        {"error", nullptr}}));
    EXPECT_EQ(lines[1]["error"], "it failed");
    EXPECT_TRUE(lines[1]["rows"].is_null());
}

TEST_F(StatementLogFileTest, IsSharedByProcesses)
{
    const std::string longText(20000, 'x');
    std::vector<pid_t> children;
    for (int child = 0; child < 4; ++child) {
        const pid_t pid = ::fork();
        if (pid == 0) {
            StatementLogFile log(strPath);
            for (int i = 0; i < 50; ++i)
                log.Ended({longText, "account " + std::to_string(child), 0, i, std::nullopt});
            ::_exit(0);
        }
        children.push_back(pid);
    }
    for (const pid_t pid : children)
        ::waitpid(pid, nullptr, 0);
    EXPECT_EQ(Lines().size(), 200u);
}

TEST_F(StatementLogFileTest, RefusesAFileThatCannotBeWritten)
{
    EXPECT_THROW(StatementLogFile(std::filesystem::temp_directory_path().string()), Error);
}

TEST(StatementPrinter, ShowsNumberConnectionAndText)
{
    std::ostringstream out;
    StatementPrinter printer(out);
    printer.Begins("select 1\r\nfrom t", "report 1");
    printer.Begins("select 2", "report 2");
    EXPECT_EQ(out.str(), "-- 1, report 1\nselect 1\nfrom t\n-- 2, report 2\nselect 2\n");
}

TEST(DescribeStatement, SaysWhatIsDoneToWhat)
{
    const struct {
        std::string_view sql, description;
    } cases[] = {
        {"if exists (SELECT name FROM sysobjects WHERE name = 'a' And xtype = 'U') Drop Table a",
         "drop table a"},
        {"select  x,\r\n y \r\n into temp1 From t", "select into temp1"},
        {"insert into t (a) select 1", "insert into t"},
        {"update  t  set a=1", "update t"},
        {"delete from t", "delete from t"},
        {"create table t (a int)", "create table t"},
        {"Select * FROM AccInformation where cSysID= N'into x'", "read AccInformation"},
        {"exec  something", "exec something"},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DescribeStatement(c.sql), c.description) << c.sql;
}

TEST(HostConnection, RefusesAnythingButAnEmbeddedAccount)
{
    for (const char* text : {"", "Server=sql01;Database=UF;UID=sa", "demo"}) {
        const auto connection = CreateConnection();
        connection->SetConnectionString(text);
        EXPECT_THROW(connection->Open("", "", -1), ConnectionError) << text;
        EXPECT_EQ(connection->State(), ConnectionState::Closed);
        EXPECT_THROW(connection->Execute("select 1"), ConnectionError);
        EXPECT_NO_THROW(connection->Close());
    }
}

TEST(HostConnection, QuotesAPathThatNeedsIt)
{
    EXPECT_EQ(EmbeddedConnectionString("/data/a b.kavelin", "zh-CN"),
              "Embedded Account=/data/a b.kavelin;Locale=zh-CN");
    EXPECT_EQ(EmbeddedConnectionString("/da;ta/\"a\".kavelin", "en-US"),
              "Embedded Account=\"/da;ta/\"\"a\"\".kavelin\";Locale=en-US");
}

TEST(HostConnection, AddsTheLocaleWhereAnEmbeddedAccountNamesNone)
{
    EXPECT_EQ(WithLocale("embedded account=a", "en-US"), "embedded account=a;Locale=en-US");
    EXPECT_EQ(WithLocale("Embedded Account=a; locale=zh-CN", "en-US"), "Embedded Account=a; locale=zh-CN");
    EXPECT_EQ(WithLocale("Server=a", "en-US"), "Server=a");
}

TEST(ConnectionSource, GivesEveryConnectionANameOfItsOwn)
{
    const auto observer = std::make_shared<NotingObserver>();
    const auto events = std::make_shared<EventLog>();
    const auto script = std::make_shared<ConnectionScript>();
    const ConnectionSource source({observer}, nullptr,
                                  [&] { return std::make_shared<RecordingConnection>(events, script); });
    source.Open("report", "x", "secret")->Execute("a");
    source.Open("report", "x", "")->Execute("a");
    EXPECT_EQ(observer->lines[0].rfind("begins report ", 0), 0u);
    EXPECT_NE(observer->lines[0], observer->lines[2]);
    EXPECT_NE(events->Text().find("Open user='' password='secret' options=-1"), std::string::npos);
}

}  // namespace
}  // namespace kavelin::host
