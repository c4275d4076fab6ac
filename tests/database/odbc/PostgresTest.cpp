// The adapter's mechanics, on a server that runs in a process of its own.
#include "database/odbc/Connected.h"
#include "database/odbc/PostgresServer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace kavelin::test {
namespace {

using namespace std::chrono_literals;

class OnPostgres : public testing::Test {
  protected:
    void SetUp() override
    {
        if (!PostgresServer::Shared())
            GTEST_SKIP() << PostgresServer::Missing();
    }

    static std::shared_ptr<Connection> Open()
    {
        return Connected(PostgresServer::Shared()->ConnectionString(), PostgresServer::kUser,
                         PostgresServer::kPassword);
    }
};

TEST_F(OnPostgres, TextOfAllPlanesArrivesWhole)
{
    const auto connection = Open();
    // Latin, Greek, Chinese, a letter of the second plane, an emoji, the last character of the last plane.
    const std::string text = "Aé Ω 存货 \U00020BB7 \U0001F4E6 \U0010FFFD";
    EXPECT_EQ(Single(*connection, "select '" + text + "'"), Value(text));
    EXPECT_EQ(Single(*connection, "select length('" + text + "')"), Value(std::int64_t{13}));
}

TEST_F(OnPostgres, NullsOfEveryTypeAreNull)
{
    const auto connection = Open();
    const auto rows = Rows(*connection,
                           "select null::int, null::float8, null::numeric(38,2), null::timestamp,"
                           " null::varchar(5), null::text, null::bool, null::bytea");
    ASSERT_EQ(rows->FieldCount(), 8);
    for (int i = 0; i < rows->FieldCount(); ++i)
        EXPECT_TRUE(rows->Field(i).IsNull()) << i;
}

TEST_F(OnPostgres, TypesHaveTheirTransactSqlNamesAndValues)
{
    const auto connection = Open();
    const auto rows =
        Rows(*connection,
             "select 7::smallint as a, 8::int as b, 9::bigint as c, 1.5::float8 as d,"
             " 0.25::real as e, 12.50::numeric(10,2) as f, timestamp '2008-07-31 14:30:00.123' as g,"
             " date '2008-07-31' as h, 'x'::varchar(60) as i, 'y'::text as j, true as k,"
             " '\\x01af'::bytea as l");
    const struct {
        std::string type;
        Value value;
    } fields[] = {
        {"smallint", std::int64_t{7}},
        {"int", std::int64_t{8}},
        {"bigint", std::int64_t{9}},
        {"float", 1.5},
        {"real", 0.25},
        {"decimal(10,2)", Decimal(1250, 2)},
        {"datetime", DateTime(std::chrono::sys_days(2008y / 7 / 31) + 14h + 30min + 123ms)},
        {"date", DateTime(std::chrono::sys_days(2008y / 7 / 31))},
        {"nvarchar(60)", "x"},
        {"ntext", "y"},
        {"bit", true},
        {"image", "0x01AF"},
    };
    int field = 0;
    for (const auto& expected : fields) {
        EXPECT_EQ(rows->FieldType(field), expected.type) << field;
        EXPECT_EQ(rows->Field(field), expected.value) << field;
        EXPECT_EQ(rows->FieldName(field), std::string(1, static_cast<char>('a' + field)));
        ++field;
    }
}

TEST_F(OnPostgres, DecimalsKeep38Digits)
{
    const auto connection = Open();
    const std::string texts[] = {
        "99999999999999999999999999999999999999",
        "-99999999999999999999999999999999999999",
        "0.99999999999999999999999999999999999999",
        "-123456789012345678901234567890.12345678",
        "0.00",
    };
    for (const std::string& text : texts)
        EXPECT_EQ(Single(*connection, "select cast('" + text + "' as numeric)"),
                  Value(*Decimal::FromText(text)))
            << text;
}

TEST_F(OnPostgres, ADecimalOf39DigitsIsAnErrorAndNoWrongNumber)
{
    const auto connection = Open();
    const auto failure = Failure(
        [&] { Single(*connection, "select cast('999999999999999999999999999999999999999' as numeric)"); });
    EXPECT_EQ(failure.strSqlState, "22003");
    EXPECT_NE(failure.strMessage.find("38 digits"), std::string::npos) << failure.strMessage;
    EXPECT_EQ(connection->State(), ConnectionState::Open);
}

TEST_F(OnPostgres, AStatementOfMoreThanAMegabyteRuns)
{
    const auto connection = Open();
    const std::string text(3 << 20, 'x');
    EXPECT_EQ(Single(*connection, "select length('" + text + "')"), Value(std::int64_t{3 << 20}));
    const std::string wide = "货" + text + "\U0001F4E6";
    EXPECT_EQ(Single(*connection, "select '" + wide + "'"), Value(wide));
}

TEST_F(OnPostgres, LongTextsOfAnyLengthArriveWhole)
{
    const auto connection = Open();
    // Around the size of the adapter's buffer, with pairs of surrogates across its end.
    for (const int length : {0, 1, 1023, 1024, 2045, 2046, 2047, 2048, 2049, 4096, 70000}) {
        const std::string count = std::to_string(length);
        std::string expected = "a";
        for (int i = 0; i < length; ++i)
            expected += "\U0001F4E6";
        EXPECT_EQ(Single(*connection, "select 'a' || repeat('\U0001F4E6', " + count + ")"), Value(expected))
            << length;
    }
}

TEST_F(OnPostgres, AHundredThousandRowsAreReadAndCounted)
{
    const auto connection = Open();
    const auto rows = Rows(*connection,
                           "select i, i * 1.25 as amount, 'item ' || i as name, i::float8 / 4 as part"
                           " from generate_series(1, 100000) i order by i");
    EXPECT_EQ(rows->RecordCount(), 100000);
    std::int64_t count = 0;
    for (; !rows->Eof(); rows->MoveNext()) {
        ++count;
        ASSERT_EQ(rows->Field(0), Value(count));
        ASSERT_EQ(rows->Field("NAME"), Value("item " + std::to_string(count)));
    }
    EXPECT_EQ(count, 100000);
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("amount"), Value(Decimal(125, 2)));
}

TEST_F(OnPostgres, NumbersAloneComeInBlocks)
{
    const auto connection = Open();
    const auto rows =
        Rows(*connection,
             "select i, case when i % 3 = 0 then null else i::float8 / 4 end,"
             " (i * 1.5)::numeric(12,2), timestamp '2008-01-01' + i * interval '1 minute', i % 2 = 0"
             " from generate_series(1, 100000) i order by i");
    EXPECT_EQ(rows->RecordCount(), 100000);
    for (std::int64_t i = 1; !rows->Eof(); rows->MoveNext(), ++i) {
        ASSERT_EQ(rows->Field(0), Value(i));
        ASSERT_EQ(rows->Field(1), i % 3 == 0 ? Value::Null() : Value(static_cast<double>(i) / 4));
        ASSERT_EQ(rows->Field(2), Value(Decimal(i * 150, 2)));
        ASSERT_EQ(rows->Field(3), Value(DateTime(std::chrono::sys_days(2008y / 1 / 1)) + i * 1min));
        ASSERT_EQ(rows->Field(4), Value(i % 2 == 0));
    }
}

TEST_F(OnPostgres, ARecordSetStaysReadableWhileOtherStatementsRun)
{
    const auto connection = Open();
    connection->Execute("create temp table kept(n int); insert into kept values (1), (2), (3)");
    const auto outer = Rows(*connection, "select n from kept order by n");
    std::string seen;
    for (; !outer->Eof(); outer->MoveNext()) {
        connection->Execute("delete from kept where n = 3");
        seen +=
            ToText(outer->Field(0)) + ":" + ToText(Single(*connection, "select count(*) from kept")) + " ";
    }
    EXPECT_EQ(seen, "1:2 2:2 3:2 ");
}

TEST_F(OnPostgres, ARecordSetOutlivesItsConnection)
{
    auto connection = Open();
    const auto rows = Rows(*connection, "select 'still here'");
    connection->Close();
    connection.reset();
    EXPECT_EQ(rows->Field(0), Value("still here"));
}

TEST_F(OnPostgres, OnlyAStaticRecordSetIsCountedAndBegunAgain)
{
    const auto connection = Open();
    const auto rows = connection->OpenRecordset("select 1", CursorLocation::Client, CursorType::ForwardOnly,
                                                LockType::ReadOnly);
    EXPECT_EQ(rows->RecordCount(), -1);
    EXPECT_THROW(rows->MoveFirst(), Error);
    rows->MoveNext();
    EXPECT_TRUE(rows->Eof());
    EXPECT_THROW(rows->MoveNext(), Error);
    EXPECT_THROW(rows->Field(0), Error);
    EXPECT_THROW(rows->FieldName(1), Error);
    rows->Close();
    rows->Close();
    EXPECT_THROW(rows->Eof(), Error);
}

TEST_F(OnPostgres, ExecuteGivesTheRowsOfTheLastStatementThatChangedAny)
{
    const auto connection = Open();
    connection->Execute("create temp table counted(n int)");
    EXPECT_EQ(connection->Execute("insert into counted select generate_series(1, 5)"), 5);
    EXPECT_EQ(connection->Execute("update counted set n = n + 1; delete from counted where n > 4"), 2);
    EXPECT_EQ(connection->Execute("delete from counted where n > 100"), 0);
    EXPECT_EQ(connection->Execute("update counted set n = 0; select n from counted"), 3);
    EXPECT_EQ(connection->Execute("select n from counted"), -1);
}

TEST_F(OnPostgres, ARecordSetIsTheFirstResultWithColumns)
{
    const auto connection = Open();
    connection->Execute("create temp table batch(n int)");
    const auto rows = Rows(*connection, "insert into batch values (4); select n from batch; select 99");
    EXPECT_EQ(rows->RecordCount(), 1);
    EXPECT_EQ(rows->Field(0), Value(std::int64_t{4}));
    const auto none = Rows(*connection, "insert into batch values (5)");
    EXPECT_EQ(none->FieldCount(), 0);
    EXPECT_TRUE(none->Eof());
    EXPECT_EQ(Single(*connection, "select count(*) from batch"), Value(std::int64_t{2}));
}

TEST_F(OnPostgres, AnErrorInALaterStatementOfABatchIsNotLost)
{
    const auto connection = Open();
    const std::string batches[] = {
        "select 1; select * from nowhere",
        "create temp table lost(n int); insert into lost values (1); insert into nowhere values (1)",
        "select 1; select 2; select 1 / 0",
    };
    for (const std::string& sql : batches) {
        const auto executed = Failure([&] { connection->Execute(sql); });
        EXPECT_FALSE(executed.strMessage.empty()) << sql;
        EXPECT_EQ(executed.strStatement, sql);
        EXPECT_FALSE(Failure([&] { Rows(*connection, sql); }).strMessage.empty()) << sql;
        EXPECT_EQ(Single(*connection, "select 'goes on'"), Value("goes on"));
    }
}

TEST_F(OnPostgres, AnErrorInTheMiddleOfTheRowsIsNotTakenForTheirEnd)
{
    const auto connection = Open();
    const auto failure =
        Failure([&] { Rows(*connection, "select 10 / (5000 - i) from generate_series(1, 10000) i"); });
    EXPECT_EQ(failure.strSqlState, "22012");
    EXPECT_FALSE(failure.strMessage.empty());
}

TEST_F(OnPostgres, NoticesAreNoErrors)
{
    const auto connection = Open();
    EXPECT_NO_THROW(
        connection->Execute("do $$ begin raise notice 'only a word'; raise warning 'or two'; end $$"));
    EXPECT_EQ(Single(*connection, "select 1"), Value(std::int64_t{1}));
}

TEST_F(OnPostgres, AnErrorCarriesStateStatementAndTheServersText)
{
    const auto connection = Open();
    const std::string sql = "select * from nowhere";
    const auto failure = Failure([&] { connection->Execute(sql); });
    EXPECT_EQ(failure.strSqlState, "42P01");
    EXPECT_EQ(failure.strStatement, sql);
    EXPECT_NE(failure.strMessage.find("relation \"nowhere\" does not exist"), std::string::npos);
    EXPECT_EQ(failure.strMessage.find('['), std::string::npos) << failure.strMessage;
}

TEST_F(OnPostgres, AFailedLoginIsAConnectionErrorWithoutThePassword)
{
    const std::string wrong = "Wrong;Pass}word";
    const auto failure = Failure<ConnectionError>(
        [&] { Connected(PostgresServer::Shared()->ConnectionString(), PostgresServer::kUser, wrong); });
    EXPECT_NE(failure.strMessage.find("authentication failed"), std::string::npos) << failure.strMessage;
    EXPECT_EQ(failure.strMessage.find("Wrong"), std::string::npos) << failure.strMessage;
    EXPECT_EQ(failure.strMessage.find('['), std::string::npos) << failure.strMessage;
    EXPECT_EQ(failure.strSqlState.substr(0, 2), "08");
    EXPECT_TRUE(failure.strStatement.empty());
}

TEST_F(OnPostgres, UserAndPasswordOfTheStringCountUnlessOpenNamesOthers)
{
    const std::string base = PostgresServer::Shared()->ConnectionString();
    const std::string own =
        ";UID=" + std::string(PostgresServer::kUser) + ";PWD={" + PostgresServer::kPassword + "}";
    EXPECT_EQ(Connected(base + own)->State(), ConnectionState::Open);
    EXPECT_EQ(
        Connected(base + ";uid=nobody;pwd=wrong", PostgresServer::kUser, PostgresServer::kPassword)->State(),
        ConnectionState::Open);
    EXPECT_THROW(Connected(base + own, "", "wrong"), ConnectionError);
}

TEST_F(OnPostgres, AServerThatIsNotThereIsAConnectionError)
{
    const std::string elsewhere = "Driver=PostgreSQL Unicode;Server=/tmp/no such folder;Port=5432;Database=x";
    const auto failure = Failure<ConnectionError>([&] { Connected(elsewhere, "u", "secret-word"); });
    EXPECT_FALSE(failure.strMessage.empty());
    EXPECT_EQ(failure.strMessage.find("secret-word"), std::string::npos);
}

TEST_F(OnPostgres, ASessionThatTheServerEndedIsALostConnection)
{
    const auto connection = Open(), other = Open();
    const std::string session = ToText(Single(*connection, "select pg_backend_pid()"));
    EXPECT_EQ(Single(*other, "select pg_terminate_backend(" + session + ")"), Value(true));
    std::this_thread::sleep_for(200ms);

    const auto failure = Failure([&] { connection->Execute("select 1"); });
    EXPECT_EQ(failure.strSqlState, "08S01");
    EXPECT_TRUE(failure.strMessage.starts_with("The connection to the server was lost. "))
        << failure.strMessage;
    EXPECT_EQ(failure.strStatement, "select 1");
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
    EXPECT_EQ(Failure([&] { connection->Execute("select 1"); }).strMessage, "The connection is not open.");

    connection->Open(PostgresServer::kUser, PostgresServer::kPassword, -1);
    EXPECT_EQ(Single(*connection, "select 2"), Value(std::int64_t{2}));
}

TEST_F(OnPostgres, ASessionEndedWhileItsStatementRunsIsALostConnection)
{
    const auto connection = Open(), other = Open();
    const std::string session = ToText(Single(*connection, "select pg_backend_pid()"));
    std::thread ending([&] {
        std::this_thread::sleep_for(300ms);
        Single(*other, "select pg_terminate_backend(" + session + ")");
    });
    const auto failure = Failure([&] { connection->Execute("select pg_sleep(30)"); });
    ending.join();
    EXPECT_EQ(failure.strSqlState, "08S01") << failure.strMessage;
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
}

TEST_F(OnPostgres, AServerThatDiesIsALostConnection)
{
    const auto server = PostgresServer::New();
    const auto connection =
        Connected(server->ConnectionString(), PostgresServer::kUser, PostgresServer::kPassword);
    const auto rows = Rows(*connection, "select 'read before'");
    server->Kill();
    const auto failure = Failure([&] { Rows(*connection, "select 1"); });
    EXPECT_EQ(failure.strSqlState, "08S01") << failure.strMessage;
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
    EXPECT_EQ(rows->Field(0), Value("read before"));
    EXPECT_THROW(connection->Open(PostgresServer::kUser, PostgresServer::kPassword, -1), ConnectionError);
}

TEST_F(OnPostgres, CancelFromAnotherThreadStopsTheStatement)
{
    const auto connection = Open();
    const auto begin = std::chrono::steady_clock::now();
    std::thread cancelling([&] {
        std::this_thread::sleep_for(300ms);
        connection->Cancel();
    });
    const auto failure = Failure<CancelledError>([&] { connection->Execute("select pg_sleep(30)"); });
    cancelling.join();
    EXPECT_EQ(failure.strMessage, "The statement was cancelled.");
    EXPECT_EQ(failure.strStatement, "select pg_sleep(30)");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 10s);
    EXPECT_EQ(Single(*connection, "select 'next'"), Value("next"));
}

TEST_F(OnPostgres, CancelWithoutAStatementDoesNothing)
{
    const auto connection = Open();
    connection->Cancel();
    EXPECT_EQ(Single(*connection, "select 1"), Value(std::int64_t{1}));
    connection->Close();
    connection->Cancel();
}

TEST_F(OnPostgres, ACommandTimeoutEndsAStatementAndNotTheConnection)
{
    const auto connection = Open();
    connection->SetCommandTimeout(1);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THROW(connection->Execute("select pg_sleep(30)"), DatabaseError);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 10s);
    connection->SetCommandTimeout(0);
    EXPECT_EQ(connection->State(), ConnectionState::Open);
    EXPECT_NO_THROW(connection->Execute("select pg_sleep(1.2)"));
}

TEST_F(OnPostgres, TextThatIsNoUtf8IsRefusedBeforeItIsSent)
{
    const auto connection = Open();
    const auto failure = Failure([&] { connection->Execute("select '\xC3'"); });
    EXPECT_EQ(failure.strMessage, "The text is no UTF-8: its byte 9 begins no character.");
    EXPECT_EQ(Single(*connection, "select 1"), Value(std::int64_t{1}));
}

TEST_F(OnPostgres, StateTellsAndClosingTwiceIsNoError)
{
    const auto connection = odbc::NewConnection();
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
    EXPECT_EQ(Failure([&] { connection->Execute("select 1"); }).strSqlState, "08003");
    connection->SetConnectionString(PostgresServer::Shared()->ConnectionString());
    connection->Open(PostgresServer::kUser, PostgresServer::kPassword, -1);
    EXPECT_EQ(connection->State(), ConnectionState::Open);
    EXPECT_THROW(connection->Open(PostgresServer::kUser, PostgresServer::kPassword, -1), ConnectionError);
    connection->Close();
    connection->Close();
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
}

}  // namespace
}  // namespace kavelin::test
