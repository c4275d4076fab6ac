// Accounts on a server, as a user works with them: the demo account served like an SQL Server.
#include "cli/Demo.h"
#include "cli/Process.h"
#include "database/odbc/PostgresServer.h"
#include "host/Reports.h"
#include "support/TestFolder.h"
#include "support/tds/TdsServer.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

namespace kavelin::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::tds::Denied;
using test::tds::Fault;
using test::tds::FaultKind;
using test::tds::Missing;
using test::tds::ServerOptions;
using test::tds::TdsServer;

constexpr const char* kPassword = "Se;cret\"1";

// The demo account under another name, since one process at a time has an account open.
std::string CopyOfDemo(const test::TestFolder& folder)
{
    const fs::path demo = DemoAccount();
    const fs::path copy = folder / "books.kavelin";
    fs::copy_file(demo, copy);
    fs::copy_file(fs::path(demo).replace_extension(".system.kavelin"), folder / "books.system.kavelin");
    return copy.string();
}

class ServerAccountTest : public testing::Test {
  protected:
    ServerAccountTest() { Serve({}); }

    void Serve(ServerOptions options)
    {
        objServer.reset();
        options.account = strAccount;
        options.database = "Books";
        options.logins = {{"reports", kPassword}};
        objServer = std::make_unique<TdsServer>(options);
    }

    std::string Text() const { return TextAt("tcp:127.0.0.1," + std::to_string(objServer->Port())); }
    static std::string TextAt(const std::string& server)
    {
        return "Provider=SQLOLEDB;Data Source=" + server + ";Initial Catalog=Books;User ID=reports";
    }

    Outcome Run(std::vector<std::string> arguments, const std::string& account, RunOptions options = {}) const
    {
        arguments.insert(arguments.end(), {"--account", account});
        options.environment.emplace("KAVELIN_PASSWORD", kPassword);
        return objProgram.Run(arguments, options);
    }
    Outcome OnServer(std::vector<std::string> arguments, RunOptions options = {}) const
    {
        return Run(std::move(arguments), Text(), std::move(options));
    }

    // The steps that failed, and what they found.
    std::map<std::string, json> FailedSteps(const Outcome& outcome) const
    {
        std::map<std::string, json> failed;
        for (const json& step : json::parse(outcome.out))
            if (step["outcome"] == "failed")
                failed[step["step"].get<std::string>()] = step;
        return failed;
    }

    // The only step that fails, which is this one; exit code 1.
    json OnlyFailure(const std::string& step, const Outcome& outcome) const
    {
        EXPECT_EQ(outcome.exitCode, 1) << outcome.err;
        const auto failed = FailedSteps(outcome);
        EXPECT_EQ(failed.size(), 1u) << outcome.out;
        EXPECT_TRUE(failed.contains(step)) << outcome.out;
        if (!failed.contains(step))
            return {};
        EXPECT_NE(failed.at(step)["advice"], "");
        return failed.at(step);
    }
    Outcome Doctor() const { return OnServer({"doctor", "--format", "json"}); }

    test::TestFolder objFolder;
    std::string strAccount = CopyOfDemo(objFolder);
    std::unique_ptr<TdsServer> objServer;
    Program objProgram;
};

TEST_F(ServerAccountTest, EveryReportGivesTheRowsOfTheEmbeddedAccount)
{
    const Outcome item = OnServer(
        {"query", "select top 1 cInvCode from IA_EnSubsidiary order by cInvCode", "--format", "csv"});
    const std::string code =
        item.out.substr(item.out.find('\n') + 1, item.out.rfind('\r') - item.out.find('\n') - 1);
    const std::map<std::string, std::string> needed = {
        {"goods-cost-ledger", "IA_EnSubsidiary.cInvCode=" + code},
        {"goods-template", "iYear=2008"},
        {"stock-summary", "dVouDate=2008-01-01..2008-12-31"},
    };
    std::map<std::string, std::vector<std::string>> commands;
    for (const host::Report& report : host::AllReports()) {
        std::vector<std::string>& command = commands[std::string(report.name)];
        command = {"run", std::string(report.name), "--format", "csv"};
        if (const auto set = needed.find(command[1]); set != needed.end())
            command.insert(command.end(), {"--set", set->second});
    }

    std::map<std::string, Outcome> served;
    for (const auto& [name, command] : commands)
        served[name] = OnServer(command);
    objServer.reset();
    int withRows = 0;
    for (const auto& [name, outcome] : served) {
        const Outcome embedded = Run(commands.at(name), strAccount);
        EXPECT_EQ(embedded.exitCode, 0) << name << ": " << embedded.err;
        EXPECT_EQ(outcome.exitCode, 0) << name << ": " << outcome.err;
        EXPECT_EQ(outcome.out, embedded.out) << name;
        EXPECT_EQ(outcome.err, embedded.err) << name;
        withRows += std::count(outcome.out.begin(), outcome.out.end(), '\n') > 1;
    }
    EXPECT_GE(withRows, 11);
}

TEST_F(ServerAccountTest, OtherCommandsWorkAsOnTheEmbeddedAccount)
{
    const std::vector<std::string> commands[] = {
        {"query", "select cWhCode, cWhName from Warehouse order by cWhCode", "--format", "csv"},
        {"query", "select top 5 AutoID, dKeepDate, iAInQuantity, cVouCode from IA_Subsidiary order by AutoID",
         "--format", "json"},
        {"lookup", "journal", "cWhCode", "--format", "csv"},
        {"account", "check", "--format", "json"},
    };
    std::vector<Outcome> served;
    for (const auto& command : commands)
        served.push_back(OnServer(command));
    objServer.reset();
    for (std::size_t i = 0; i < served.size(); ++i) {
        const Outcome embedded = Run(commands[i], strAccount);
        EXPECT_EQ(served[i].exitCode, 0) << served[i].err;
        EXPECT_EQ(served[i].out, embedded.out) << commands[i][0];
    }
}

TEST_F(ServerAccountTest, IsNamedInTheSettingsWithItsPasswordVariable)
{
    objProgram.Write("kavelin.toml", "account = \"books\"\n[accounts.books]\nconnection = '" + Text() +
                                         "'\npassword_env = \"BOOKS\"\n");
    RunOptions options;
    options.environment["BOOKS"] = kPassword;
    const Outcome outcome = objProgram.Run({"query", "select 1 as one", "--format", "csv"}, options);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "one\r\n1\r\n");
}

TEST_F(ServerAccountTest, TakesAnOdbcString)
{
    const std::string text = "Driver=FreeTDS;Server=127.0.0.1;Port=" + std::to_string(objServer->Port()) +
                             ";Database=Books;UID=reports;TDS_Version=7.4;ClientCharset=UTF-8";
    const Outcome outcome = Run({"query", "select N'库存' as word", "--format", "csv"}, text);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "word\r\n库存\r\n");
}

TEST_F(ServerAccountTest, AsksForThePasswordAtTheTerminalWithoutShowingIt)
{
    RunOptions options;
    options.typed = std::string("wrong\x7f\x7f\x15") + kPassword + "\r";
    const Outcome outcome =
        objProgram.Run({"query", "select 1 as one", "--format", "csv", "--account", Text()}, options);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "one\r\n1\r\n");
    EXPECT_EQ(outcome.err, "Password for tcp:127.0.0.1," + std::to_string(objServer->Port()) + ": \n");
    EXPECT_EQ(outcome.echo, "");
}

TEST_F(ServerAccountTest, EndsWhenTheUserDoesNotWantToTellThePassword)
{
    RunOptions options;
    options.typed = "\x03";
    const Outcome outcome = objProgram.Run({"query", "select 1", "--account", Text()}, options);
    EXPECT_EQ(outcome.exitCode, 130);
    EXPECT_NE(outcome.err.find("Interrupted."), std::string::npos);
}

TEST_F(ServerAccountTest, NamesTheVariableWhereNobodyCanBeAsked)
{
    const Outcome outcome = objProgram.Run({"run", "capital-share", "--account", Text()});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.err.find("KAVELIN_PASSWORD"), std::string::npos) << outcome.err;
}

TEST_F(ServerAccountTest, RefusesAPasswordOnTheCommandLineWithoutRepeatingIt)
{
    const Outcome outcome = objProgram.Run({"run", "capital-share", "--account", Text() + ";PWD=topsecret"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.err.find("KAVELIN_PASSWORD"), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.err.find("topsecret"), std::string::npos) << outcome.err;
}

TEST_F(ServerAccountTest, WritesThePasswordNowhere)
{
    objServer->Order({.kind = FaultKind::Refuse, .text = "from AA_Enum", .message = {50000, 16, "Refused."}});
    const std::string log = (objFolder / "statements.jsonl").string();
    std::string written;
    const auto keep = [&](std::vector<std::string> arguments, const std::string& account,
                          const char* password) {
        RunOptions options;
        options.environment["KAVELIN_SQL_LOG"] = log;
        options.environment["KAVELIN_PASSWORD"] = password;
        const Outcome outcome = Run(std::move(arguments), account, options);
        written += outcome.out + outcome.err;
        return outcome.exitCode;
    };
    EXPECT_EQ(keep({"run", "capital-share", "--show-sql"}, Text(), kPassword), 0);
    EXPECT_EQ(keep({"run", "capital-share", "--show-sql"}, Text(), "Wrong;\"7"), 3);
    EXPECT_EQ(keep({"query", "select * from Nowhere"}, Text(), kPassword), 1);
    EXPECT_EQ(keep({"run", "journal", "--show-sql"}, TextAt("tcp:127.0.0.1,1"), kPassword), 3);
    keep({"doctor"}, Text(), kPassword);
    keep({"doctor", "--format", "json"}, Text(), "Wrong;\"7");
    objServer->Order({.kind = FaultKind::Drop, .text = "from IA_Subsidiary", .again = true});
    EXPECT_NE(keep({"run", "journal", "--show-sql"}, Text(), kPassword), 0);

    std::ostringstream statements;
    statements << std::ifstream(log).rdbuf();
    ASSERT_GT(statements.str().size(), 1000u);
    written += statements.str();
    for (const char* secret : {"Se;cret", "cret\"1", "cret\\\"1", "cret\"\"1", "Wrong;", "\"7", "\"\"7"})
        EXPECT_EQ(written.find(secret), std::string::npos) << secret;
}

TEST_F(ServerAccountTest, TakesTSqlThatOnlyAServerKnows)
{
    const Outcome outcome = OnServer({"query", "select @@spid", "--format", "csv"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("51"), std::string::npos) << outcome.out;
}

TEST_F(ServerAccountTest, RefusesToExplainWhatAServerMakesOfTSql)
{
    const Outcome outcome = OnServer({"query", "--explain", "select 1"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.err.find("--explain shows what an embedded account makes of T-SQL"), std::string::npos);
}

TEST_F(ServerAccountTest, TellsOfALostConnectionWhereverItIsLost)
{
    for (const char* statement :
         {"sysobjects", "UA_Period", "into  KavelinResult", "select * from KavelinResult"}) {
        objServer->ClearFaults();
        objServer->Order({.kind = FaultKind::Drop, .text = statement});
        const Outcome outcome = OnServer({"run", "capital-share"});
        EXPECT_EQ(outcome.exitCode, 1) << statement << ": " << outcome.err;
        EXPECT_NE(outcome.err.find("The connection to the server was lost."), std::string::npos)
            << outcome.err;
    }
    EXPECT_EQ(OnServer({"run", "capital-share"}).exitCode, 0);
}

TEST_F(ServerAccountTest, ShowsNothingOfAJournalWhoseConnectionWasLost)
{
    objServer->Order({.kind = FaultKind::Drop, .text = "Insert Into"});
    const Outcome outcome = OnServer({"run", "journal"});
    objServer->ClearFaults();
    EXPECT_EQ(outcome.exitCode, 1) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("The report failed: The connection to the server was lost."),
              std::string::npos)
        << outcome.err;
}

TEST_F(ServerAccountTest, TheDoctorFindsNothingAmissOnAWholeServer)
{
    const Outcome outcome = OnServer({"doctor"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.out << outcome.err;
    EXPECT_NE(outcome.out.find("Reports can run on this account."), std::string::npos);
    EXPECT_EQ(outcome.out.find("failed"), std::string::npos);

    for (const json& step : json::parse(Doctor().out))
        EXPECT_EQ(step["outcome"], "ok") << step;

    // Nothing stays behind.
    const Outcome left = OnServer(
        {"query", "select name from sysobjects where name like N'KavelinDoctor%'", "--format", "csv"});
    EXPECT_EQ(left.out, "name\r\n");
}

TEST_F(ServerAccountTest, TheDoctorTellsOfAWrongPasswordAndAnUnknownUser)
{
    RunOptions options;
    options.environment["KAVELIN_PASSWORD"] = "wrong";
    const json step = OnlyFailure("login", OnServer({"doctor", "--format", "json"}, options));
    EXPECT_NE(step["found"].get<std::string>().find("Login failed"), std::string::npos) << step;
    OnlyFailure("login", Run({"doctor", "--format", "json"}, Text() + ";User ID=nobody"));
}

TEST_F(ServerAccountTest, TheDoctorTellsOfAClosedPortAndAnUnknownMachine)
{
    const json closed = OnlyFailure("server", Run({"doctor", "--format", "json"}, TextAt("tcp:127.0.0.1,1")));
    EXPECT_EQ(closed["found"], "Nobody listens at 127.0.0.1 port 1.");
    const json unknown =
        OnlyFailure("server", Run({"doctor", "--format", "json"}, TextAt("no-such-machine.invalid")));
    EXPECT_EQ(unknown["found"], "The name no-such-machine.invalid has no address.");
}

TEST_F(ServerAccountTest, TheDoctorTellsOfAMissingDriver)
{
    RunOptions options;
    options.environment["KAVELIN_ODBC_DRIVER"] = "No Such Driver";
    OnlyFailure("driver", OnServer({"doctor", "--format", "json"}, options));
    OnlyFailure("driver",
                Run({"doctor", "--format", "json"}, "Driver=No Such Driver;Server=127.0.0.1;Port=" +
                                                        std::to_string(objServer->Port()) + ";UID=reports"));
    const json unknown = OnlyFailure("login", Run({"doctor", "--format", "json"}, "DSN=nowhere"));
    EXPECT_NE(unknown["advice"].get<std::string>().find("odbc.ini"), std::string::npos) << unknown;
}

TEST_F(ServerAccountTest, TheDoctorTellsOfAStringThatLacksSomething)
{
    const json step =
        OnlyFailure("connection", Run({"doctor", "--format", "json"}, "Provider=SQLOLEDB;User ID=reports"));
    EXPECT_EQ(step["found"], "The connection string names no server.");
}

TEST_F(ServerAccountTest, TheDoctorTellsOfAMissingDatabase)
{
    const Outcome outcome = Run({"doctor", "--format", "json"}, Text() + ";Initial Catalog=Bokos");
    const json step = OnlyFailure("database", outcome);
    EXPECT_NE(step["found"].get<std::string>().find("Bokos"), std::string::npos) << step;
    EXPECT_NE(outcome.out.find("Logged in as reports."), std::string::npos) << outcome.out;
}

TEST_F(ServerAccountTest, TheDoctorTellsOfAnOldServerAndAWrongCollation)
{
    ServerOptions old;
    old.version = "8.00.2039";
    Serve(old);
    OnlyFailure("version", Doctor());
    ServerOptions level;
    level.compatibilityLevel = 80;
    Serve(level);
    OnlyFailure("version", Doctor());
    ServerOptions collation;
    collation.tempdbCollation = "SQL_Latin1_General_CP1_CI_AS";
    Serve(collation);
    OnlyFailure("collation", Doctor());
}

TEST_F(ServerAccountTest, TheDoctorTellsOfWhatTheSystemDatabaseLacks)
{
    objProgram.Write("kavelin.toml", "[accounts.books]\nconnection = '" + Text() + "'\nid = \"999\"\n");
    const json step = OnlyFailure("periods", Run({"doctor", "--format", "json"}, "books"));
    EXPECT_EQ(step["details"], json({"001"}));

    Fault gone = Missing("UA_Period");
    gone.again = true;
    objServer->Order(gone);
    EXPECT_TRUE(FailedSteps(Doctor()).contains("periods"));
}

TEST_F(ServerAccountTest, TheDoctorNamesMissingTablesColumnsAndRights)
{
    Fault gone = Missing("rdrecords32");
    gone.again = true;
    objServer->Order(gone);
    json step = OnlyFailure("objects", Doctor());
    EXPECT_EQ(step["details"],
              json({"rdrecords32: goods-cost-summary goods-summary goods-template journal"}));

    objServer->ClearFaults();
    ASSERT_EQ(OnServer({"query",
                        "select cWhCode, cWhName, cDepCode, cWhValueStyle into Narrow from Warehouse "
                        "drop table Warehouse select * into Warehouse from Narrow"})
                  .exitCode,
              0);
    step = OnlyFailure("columns", Doctor());
    ASSERT_EQ(step["details"].size(), 1u);
    EXPECT_TRUE(step["details"][0].get<std::string>().starts_with("Warehouse.bInCost: abc")) << step;
}

TEST_F(ServerAccountTest, TheDoctorTellsOfRightsThatTheLoginLacks)
{
    Fault denied;
    denied.kind = FaultKind::Refuse;
    denied.text = "from Vendor where 1=0";
    denied.again = true;
    denied.message = {229, 14, "The SELECT permission was denied on the object 'Vendor', database 'Books'."};
    objServer->Order(denied);
    EXPECT_EQ(OnlyFailure("select", Doctor())["details"], json({"Vendor: dialogs estimate-balance journal"}));

    const struct {
        const char* text;
        const char* database;
        const char* step;
    } cases[] = {
        {"create table KavelinDoctor", "Books", "create"},
        {"create table tempdb..KavelinDoctor", "tempdb", "tempdb"},
    };
    for (const auto& c : cases) {
        objServer->ClearFaults();
        objServer->Order(Denied(c.text, "CREATE TABLE", c.database));
        const json step = OnlyFailure(c.step, Doctor());
        EXPECT_EQ(step["found"],
                  std::string("CREATE TABLE permission denied in database '") + c.database + "'.");
    }
}

TEST_F(ServerAccountTest, TheDoctorTellsOfParametersAndLanguagesThatTheAccountLacks)
{
    ASSERT_EQ(
        OnServer({"query", "update AccInformation set cValue = N'?' where cName = N'cValueStyle'"}).exitCode,
        0);
    const json step = OnlyFailure("parameters", Doctor());
    EXPECT_EQ(step["details"].size(), 1u) << step;
    ASSERT_EQ(OnServer({"query",
                        "update AccInformation set cValue = N'按仓库核算' where cName = N'cValueStyle' "
                        "delete from AA_Enum where LocaleID = N'en-US'"})
                  .exitCode,
              0);
    OnlyFailure("language", OnServer({"doctor", "--format", "json", "--language", "en-US"}));
}

TEST_F(ServerAccountTest, TheDoctorTellsWhereTheConnectionWasLost)
{
    objServer->Order({.kind = FaultKind::Drop, .text = "from Vendor where 1=0"});
    const Outcome outcome = Doctor();
    OnlyFailure("objects", outcome);
    for (const json& step : json::parse(outcome.out))
        if (step["step"] == "parameters") {
            EXPECT_EQ(step["found"], "The connection was lost.");
        }
}

TEST_F(ServerAccountTest, TheDoctorLeavesNoTableBehindWhereItsConnectionWasLost)
{
    for (const char* statement : {"insert into KavelinDoctor", "insert into tempdb..KavelinDoctor"}) {
        objServer->Order({.kind = FaultKind::Drop, .text = statement});
        EXPECT_EQ(Doctor().exitCode, 1) << statement;
    }
    for (const char* catalogue : {"sysobjects", "tempdb..sysobjects"}) {
        const Outcome left = OnServer(
            {"query", std::string("select name from ") + catalogue + " where name like N'KavelinDoctor%'",
             "--format", "csv"});
        EXPECT_EQ(left.out, "name\r\n") << left.err;
    }
}

TEST_F(ServerAccountTest, LeavesNoTableBehindWhereTheDoctorIsInterrupted)
{
    objServer->Order(
        {.kind = FaultKind::Delay, .text = "insert into KavelinDoctor", .delay = std::chrono::seconds(20)});
    RunOptions options;
    options.interruptAfter = std::chrono::milliseconds(1500);
    const Outcome outcome = OnServer({"doctor"}, options);
    EXPECT_EQ(outcome.exitCode, 130) << outcome.err;
    const Outcome left = OnServer(
        {"query", "select name from sysobjects where name like N'KavelinDoctor%'", "--format", "csv"});
    EXPECT_EQ(left.out, "name\r\n");
}

TEST_F(ServerAccountTest, TheDoctorKnowsThatAnotherDatabaseIsNoServerForReports)
{
    const std::string driver = "/usr/lib/x86_64-linux-gnu/odbc/libsqlite3odbc.so";
    if (!fs::exists(driver))
        GTEST_SKIP() << "SQLite's ODBC driver is not installed.";
    const Outcome outcome = Run({"doctor", "--format", "json"},
                                "Driver=" + driver + ";Database=" + (objFolder / "books.sqlite").string());
    EXPECT_EQ(outcome.exitCode, 1);
    const auto failed = FailedSteps(outcome);
    for (const char* step : {"version", "periods", "objects"})
        EXPECT_TRUE(failed.contains(step)) << step << ": " << outcome.out;
    EXPECT_FALSE(failed.contains("driver")) << outcome.out;
    EXPECT_FALSE(failed.contains("login")) << outcome.out;
}

TEST_F(ServerAccountTest, TheDoctorTellsWhatAServerOfAnotherMakerLacks)
{
    test::PostgresServer* server = test::PostgresServer::Shared();
    if (!server)
        GTEST_SKIP() << test::PostgresServer::Missing();
    const std::string text = server->ConnectionString() + ";UID=" + test::PostgresServer::kUser;
    RunOptions options;
    options.environment["KAVELIN_PASSWORD"] = "wrong";
    OnlyFailure("login", Run({"doctor", "--format", "json"}, text, options));

    options.environment["KAVELIN_PASSWORD"] = test::PostgresServer::kPassword;
    const Outcome outcome = Run({"doctor", "--format", "json"}, text, options);
    EXPECT_EQ(outcome.exitCode, 1) << outcome.err;
    const auto failed = FailedSteps(outcome);
    for (const char* step : {"version", "periods", "objects", "create", "tempdb"})
        EXPECT_TRUE(failed.contains(step)) << step << ": " << outcome.out;
    EXPECT_EQ(failed.size(), 5u) << outcome.out;
    EXPECT_EQ((outcome.out + outcome.err).find("sesame"), std::string::npos);
}

TEST_F(ServerAccountTest, TheDoctorLooksAtEmbeddedAccountsToo)
{
    objServer.reset();
    const Outcome outcome = Run({"doctor", "--format", "json"}, strAccount);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.out << outcome.err;
    for (const json& step : json::parse(outcome.out)) {
        const std::string name = step["step"];
        const bool ofServers = name == "driver" || name == "server" || name == "login" || name == "version" ||
                               name == "collation";
        EXPECT_EQ(step["outcome"], ofServers ? "skipped" : "ok") << step;
    }
    OnlyFailure("database", Run({"doctor", "--format", "json"}, "Embedded Account=nowhere.kavelin"));
}

}  // namespace
}  // namespace kavelin::cli
