// The adapter on FreeTDS's driver, which talks to a server that speaks an SQL Server's protocol.
#include "database/odbc/Connected.h"
#include "database/odbc/Drivers.h"
#include "support/tds/TdsAccount.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace kavelin::test {
namespace {

using namespace std::chrono_literals;
using tds::Fault;
using tds::FaultKind;
using tds::TdsAccount;

class OnFreeTds : public testing::Test {
  protected:
    void SetUp() override
    {
        const auto drivers = odbc::InstalledDrivers();
        if (std::ranges::none_of(drivers, [](const auto& d) { return d.kind == odbc::DriverKind::FreeTds; }))
            GTEST_SKIP() << "FreeTDS's ODBC driver is not installed.";
        ::setenv("KAVELIN_ODBC_DRIVER", "FreeTDS", 1);
        objAccount = std::make_unique<TdsAccount>();
    }

    void TearDown() override { ::unsetenv("KAVELIN_ODBC_DRIVER"); }

    std::shared_ptr<Connection> Open() { return Connected(objAccount->ProviderText()); }
    tds::TdsServer& Server() { return objAccount->Server(); }

    // A table of the numbers 0 to 9.
    void MakeDigits()
    {
        objAccount->Inside().Execute("create table Digit (d int)");
        objAccount->Inside().Execute("insert into Digit values (0),(1),(2),(3),(4),(5),(6),(7),(8),(9)");
    }

    std::unique_ptr<TdsAccount> objAccount;
};

TEST_F(OnFreeTds, TextOfAllPlanesArrivesWholeBothWays)
{
    const auto connection = Open();
    const std::string text = "Aé Ω 存货 \U00020BB7 \U0001F4E6 \U0010FFFD";
    connection->Execute("create table T (a nvarchar(60), b nvarchar(max))");
    connection->Execute("insert into T values (N'" + text + "', N'" + text + "')");
    EXPECT_EQ(Single(objAccount->Inside(), "select a from T"), Value(text));
    EXPECT_EQ(Single(*connection, "select a from T"), Value(text));  // in a block
    EXPECT_EQ(Single(*connection, "select b from T"), Value(text));  // alone
}

TEST_F(OnFreeTds, BlocksOfRowsKeepEveryValueAndEveryNull)
{
    MakeDigits();
    const auto connection = Open();
    const auto rows =
        Rows(*connection,
             "select n, case when d = 7 then null else N'第' + convert(nvarchar(10), n) end as t,"
             " convert(decimal(38,10), n) / 4 as amount, case when d = 5 then null else n end as i"
             " from (select a.d, a.d + 10 * b.d + 100 * c.d + 1000 * e.d + 10000 * f.d as n"
             "       from Digit a, Digit b, Digit c, Digit e, Digit f) x order by n");
    ASSERT_EQ(rows->RecordCount(), 100'000);
    for (std::int64_t n = 0; !rows->Eof(); rows->MoveNext(), ++n) {
        ASSERT_EQ(rows->Field("n"), Value(n));
        ASSERT_EQ(rows->Field("t"), n % 10 == 7 ? Value::Null() : Value("第" + std::to_string(n)));
        ASSERT_EQ(*rows->Field("amount").As<Decimal>(), Decimal(n * 25, 2));
        ASSERT_EQ(rows->Field("i"), n % 10 == 5 ? Value::Null() : Value(n));
    }
}

TEST_F(OnFreeTds, ValuesOfAnyLengthStandBetweenOthers)
{
    const auto connection = Open();
    std::string text;
    for (int i = 0; i < 50'000; ++i)
        text += "货\U0001F4E6";
    connection->Execute(
        "create table T (a int, x nvarchar(max), b nvarchar(5), y nvarchar(max), d decimal(38,2))");
    connection->Execute("insert into T values (1, N'" + text + "', N'b', null, -12.50)");
    connection->Execute("insert into T values (2, N'', null, N'" + text + "', null)");
    const auto rows = Rows(*connection, "select a, x, b, y, d from T order by a");
    EXPECT_EQ(rows->Field("x"), Value(text));
    EXPECT_EQ(rows->Field("b"), Value("b"));
    EXPECT_TRUE(rows->Field("y").IsNull());
    EXPECT_EQ(rows->Field("d"), Value(Decimal(-1250, 2)));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("x"), Value(""));
    EXPECT_TRUE(rows->Field("b").IsNull());
    EXPECT_EQ(rows->Field("y"), Value(text));
    EXPECT_TRUE(rows->Field("d").IsNull());
}

TEST_F(OnFreeTds, NumbersAndDatesAreExact)
{
    const struct {
        const char* type;
        Value value;
    } cases[] = {
        {"decimal(38,0)", *Decimal::FromText("-99999999999999999999999999999999999999")},
        {"decimal(38,38)", *Decimal::FromText("0.99999999999999999999999999999999999999")},
        {"decimal(38,2)", *Decimal::FromText("-123456789012345678901234567890123456.78")},
        {"money", Decimal(-1, 4)},
        {"money", *Decimal::FromText("922337203685477.5807")},
        {"datetime", DateTime(std::chrono::sys_days(2008y / 7 / 31) + 23h + 59min + 59s + 997ms)},
        {"datetime", DateTime(std::chrono::sys_days(1753y / 1 / 1))},
        {"float", 0.1},
        {"float", -1.7976931348623157e308},
        {"bigint", std::int64_t{-9223372036854775807}},
    };
    const auto connection = Open();
    for (const auto& c : cases) {
        Server().Answer("select own", {{{"a", tds::TypeOf(c.type)}}, {{c.value}}});
        EXPECT_EQ(Single(*connection, "select own"), c.value) << c.type;
    }
}

TEST_F(OnFreeTds, BracesAndQuestionMarksAreTextLikeOther)
{
    const auto connection = Open();
    EXPECT_EQ(Single(*connection, "select N'{d ''x''} ? {fn now()} {call p(?)}'"),
              Value("{d 'x'} ? {fn now()} {call p(?)}"));
}

TEST_F(OnFreeTds, AStatementThatChangesNoRowsDoesNotEndTheBatch)
{
    const auto connection = Open();
    connection->Execute("create table T (a int)");
    EXPECT_EQ(connection->Execute("delete from T where a = 1"), 0);
    EXPECT_EQ(connection->Execute("delete from T where a = 1 insert into T values (1), (2)"), 2);
    EXPECT_EQ(connection->Execute("insert into T values (3) delete from T where a = 9"), 0);
    const auto failure = Failure([&] { connection->Execute("delete from T where a = 9 select 1 / 0"); });
    EXPECT_EQ(failure.lngNumber, 8134);
    const auto rows = Rows(*connection, "delete from T where a = 9 select a from T order by a");
    EXPECT_EQ(rows->RecordCount(), 3);
}

TEST_F(OnFreeTds, AnErrorBehindARecordSetIsNotLost)
{
    const auto connection = Open();
    const std::string sql = "select 1 as a\r\nselect b from Nowhere";
    const auto failure = Failure([&] { Rows(*connection, sql); });
    EXPECT_EQ(failure.lngNumber, 208);
    EXPECT_EQ(failure.strSqlState, "42S02");
    EXPECT_EQ(failure.strMessage, "Invalid object name 'Nowhere'.");
    EXPECT_EQ(failure.strStatement, sql);
    EXPECT_EQ(failure.lngLine, 2);
    EXPECT_EQ(connection->State(), ConnectionState::Open);
}

TEST_F(OnFreeTds, AWordOfTheServerIsNoError)
{
    const auto connection = Open();
    EXPECT_EQ(connection->Execute("use [tempdb]"), -1);  // "Changed database context to 'tempdb'."
    EXPECT_EQ(Single(*connection, "use [Account_001] select 1"), Value(std::int64_t{1}));
}

TEST_F(OnFreeTds, AFailedLoginTellsTheServersNumberAndNoPassword)
{
    for (const std::string password :
         {"wrong-secret", "wr;ong", "wr}ong", "{wrong", "wr'ong\"", " wrong ", "密码"}) {
        const auto failure =
            Failure<ConnectionError>([&] { Connected(objAccount->ProviderText(), "", password); });
        EXPECT_EQ(failure.lngNumber, 18456) << password;
        EXPECT_EQ(failure.strMessage.find(password), std::string::npos) << failure.strMessage;
        EXPECT_EQ(failure.strMessage.find('['), std::string::npos) << failure.strMessage;
        EXPECT_EQ(Server().Logins().back().password, password);
    }
}

TEST_F(OnFreeTds, APasswordOfAnyCharactersArrivesAsItIs)
{
    for (const std::string password : {"p;w", "p}w", "{p", "p}", "p'w\"", " p ", "p=w", "密码;\U0001F4E6"}) {
        tds::ServerOptions options;
        options.logins = {{"kavelin", password}};
        TdsAccount account(options);
        EXPECT_EQ(Connected("Provider=P.1;Data Source=127.0.0.1," + std::to_string(account.Server().Port()) +
                                ";Initial Catalog=Account_001;User ID=kavelin",
                            "", password)
                      ->State(),
                  ConnectionState::Open)
            << password;
        EXPECT_EQ(
            Connected("Driver=FreeTDS;Server=127.0.0.1;Port=" + std::to_string(account.Server().Port()) +
                          ";Database=Account_001;TDS_Version=7.4",
                      "kavelin", password)
                ->State(),
            ConnectionState::Open)
            << password;
    }
}

TEST_F(OnFreeTds, AMissingDatabaseIsToldBeforeTheLoginThatFailsForIt)
{
    const auto failure = Failure<ConnectionError>([&] {
        Connected("Provider=P.1;Data Source=127.0.0.1," + std::to_string(Server().Port()) +
                  ";Initial Catalog=Nowhere;User ID=kavelin;Password='Secret;1'");
    });
    EXPECT_EQ(failure.lngNumber, 4060) << failure.strMessage;
}

TEST_F(OnFreeTds, AServerThatIsNotThereIsAConnectionError)
{
    const std::string text = objAccount->ProviderText();
    Server().Stop();
    const auto failure = Failure<ConnectionError>([&] { Connected(text); });
    EXPECT_FALSE(failure.strMessage.empty());
    EXPECT_EQ(failure.strMessage.find("Secret"), std::string::npos);
}

TEST_F(OnFreeTds, AConnectionTimeoutEndsWaitingForASilentServer)
{
    tds::ServerOptions options;
    options.silent = true;
    TdsAccount silent(options);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THROW(
        {
            auto connection = odbc::NewConnection();
            connection->SetConnectionString(silent.ProviderText() + ";Connect Timeout=1");
            connection->Open("", "", -1);
        },
        ConnectionError);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 10s);
}

TEST_F(OnFreeTds, ATimeoutInTheStringMustBeANumberOfSeconds)
{
    for (const std::string seconds : {"soon", "-1", "5s"})
        EXPECT_THROW(
            {
                auto connection = odbc::NewConnection();
                connection->SetConnectionString(objAccount->ProviderText() + ";Connect Timeout=" + seconds);
                connection->Open("", "", -1);
            },
            ConnectionError)
            << seconds;
}

TEST_F(OnFreeTds, AConnectionThatEndsIsToldAsLostAndNothingIsSentAgain)
{
    MakeDigits();
    for (const FaultKind kind : {FaultKind::Drop, FaultKind::DropInRows}) {
        const auto connection = Open();
        Fault fault;
        fault.kind = kind;
        fault.rows = 4;
        Server().Order(fault);
        const std::size_t before = Server().Batches().size();
        const auto failure = Failure([&] { Rows(*connection, "select d from Digit"); });
        EXPECT_TRUE(failure.strMessage.starts_with("The connection to the server was lost. "))
            << failure.strMessage;
        EXPECT_EQ(failure.strSqlState, "08S01");
        EXPECT_EQ(connection->State(), ConnectionState::Closed);
        EXPECT_EQ(Failure([&] { connection->Execute("select 1"); }).strSqlState, "08003");
        EXPECT_EQ(Server().Batches().size(), before + 1);
        connection->Open("", "", -1);
        EXPECT_EQ(Single(*connection, "select 1"), Value(std::int64_t{1}));
    }
}

TEST_F(OnFreeTds, ACommandTimeoutEndsAStatementAndNotTheConnection)
{
    const auto connection = Open();
    Fault fault;
    fault.kind = FaultKind::Delay;
    fault.delay = 60s;
    Server().Order(fault);
    connection->SetCommandTimeout(1);
    const auto failure = Failure([&] { connection->Execute("select 1"); });
    EXPECT_EQ(failure.strSqlState, "HYT00") << failure.strMessage;
    EXPECT_EQ(connection->State(), ConnectionState::Open);
    EXPECT_EQ(Single(*connection, "select 2"), Value(std::int64_t{2}));
}

TEST_F(OnFreeTds, CancelFromAnotherThreadStopsTheStatement)
{
    const auto connection = Open();
    Fault fault;
    fault.kind = FaultKind::Delay;
    fault.delay = 60s;
    Server().Order(fault);
    const auto begin = std::chrono::steady_clock::now();
    std::thread cancelling([&] {
        std::this_thread::sleep_for(300ms);
        connection->Cancel();
    });
    EXPECT_THROW(Rows(*connection, "select 1"), CancelledError);
    cancelling.join();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s);
    EXPECT_EQ(Single(*connection, "select 2"), Value(std::int64_t{2}));
}

TEST_F(OnFreeTds, AStatementOfMoreThanAMegabyteArrivesAsItStands)
{
    const auto connection = Open();
    connection->Execute("create table T (t nvarchar(max))");
    const std::string text = "货" + std::string(1 << 20, 'x') + "\U0001F4E6";
    const std::string sql = "insert into T values (N'" + text + "')";
    connection->Execute(sql);
    EXPECT_EQ(Server().Batches().back(), sql);
    EXPECT_EQ(Single(*connection, "select t from T"), Value(text));
}

TEST_F(OnFreeTds, ALiteralLongerThanAnyColumnComesBackWhole)
{
    const std::string text = "货" + std::string(1 << 20, 'x') + "\U0001F4E6";
    EXPECT_EQ(Single(*Open(), "select N'" + text + "' as t"), Value(text));
}

TEST_F(OnFreeTds, OnlyTheBatchesThatWereGivenAreSent)
{
    const auto connection = Open();
    const auto before = Server().Batches();
    connection->Execute("create table T (a int)");
    Rows(*connection, "select a from T");
    auto after = Server().Batches();
    after.erase(after.begin(), after.begin() + static_cast<std::ptrdiff_t>(before.size()));
    EXPECT_EQ(after, (std::vector<std::string>{"create table T (a int)", "select a from T"}));
}

}  // namespace
}  // namespace kavelin::test
