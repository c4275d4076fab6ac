#include "embedded/engine/EmbeddedConnection.h"

#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace kavelin::embedded {

namespace {

DatabaseError::Details ErrorOf(EmbeddedConnection& connection, const std::string& sql)
{
    try {
        connection.Execute(sql);
    } catch (const DatabaseError& error) {
        return error.Get();
    }
    return {};
}

TEST(EmbeddedConnection, IsClosedUntilItIsOpenedAndAfterItIsClosed)
{
    const TestAccount account;
    const auto connection = NewConnection();
    connection->SetCursorLocation(CursorLocation::Client);
    connection->SetConnectionTimeout(15);
    connection->SetCommandTimeout(0);
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
    EXPECT_THROW(connection->Execute("select 1"), DatabaseError);
    EXPECT_THROW(connection->Open("", "", 0), ConnectionError);

    connection->SetConnectionString("Embedded Account=" + account.Path());
    connection->Open("", "", 0);
    EXPECT_EQ(connection->State(), ConnectionState::Open);
    EXPECT_THROW(connection->Open("", "", 0), ConnectionError);

    connection->Close();
    connection->Close();
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
    connection->Cancel();
    connection->Open("", "", 0);
    EXPECT_EQ(ShowRows(*connection, "select 1"), "1\n");
}

TEST(EmbeddedConnection, AnswersItsOwnLanguage)
{
    const TestAccount account;
    const auto chinese = account.Connect();
    const auto english = NewConnection();
    english->SetConnectionString("Locale=en-US;Embedded Account=" + account.Path());
    english->Open("", "", 0);
    chinese->Execute("create view V as select DBO.UDF_GetLocaleID() as c");
    EXPECT_EQ(ShowRows(*chinese, "select DBO.UDF_GetLocaleID()"), "zh-CN\n");
    EXPECT_EQ(ShowRows(*english, "select DBO.UDF_GetLocaleID()"), "en-US\n");
    EXPECT_EQ(ShowRows(*chinese, "select c from V"), "zh-CN\n");
    EXPECT_EQ(ShowRows(*english, "select c from V"), "en-US\n");
}

TEST(EmbeddedConnection, TellsTheRowsThatTheLastStatementChanged)
{
    const TestAccount account;
    const auto connection = account.Connect();
    EXPECT_EQ(connection->Execute("create table T (a int)"), -1);
    EXPECT_EQ(connection->Execute("insert into T values (1), (2), (3)"), 3);
    EXPECT_EQ(connection->Execute("update T set a = 0 where a > 1"), 2);
    EXPECT_EQ(connection->Execute("select a into U from T where a = 0"), 2);
    EXPECT_EQ(connection->Execute("delete T where a = 7"), 0);
    EXPECT_EQ(connection->Execute("select a from T"), -1);
    EXPECT_EQ(
        connection->Execute("delete T\r\nif exists(select * from sysobjects where name='U') drop table U"),
        -1);
    EXPECT_EQ(
        connection->Execute("if exists(select * from sysobjects where name='T') insert into T values (5)"),
        1);
}

TEST(EmbeddedConnection, TellsWhereAnErrorIs)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int, 数量 float)");

    DatabaseError::Details error = ErrorOf(*connection, "select 1\r\nselect N'直运', missing\r\n  from T");
    EXPECT_EQ(error.lngNumber, 207);
    EXPECT_EQ(error.strMessage, "Invalid column name 'missing'.");
    EXPECT_EQ(error.strSqlState, "42S22");
    EXPECT_EQ(error.lngLine, 2);
    EXPECT_EQ(error.lngColumn, 15);
    EXPECT_EQ(error.strStatement, "select 1\r\nselect N'直运', missing\r\n  from T");

    error = ErrorOf(*connection, "select a\r\n  from T where a = )");
    EXPECT_EQ(error.lngNumber, 102);
    EXPECT_EQ(error.lngLine, 2);
    EXPECT_EQ(error.lngColumn, 20);

    // Of an error while it runs, the statement's beginning is known.
    error = ErrorOf(*connection, "insert into T values (1, 0)\r\nselect a / 数量 from T");
    EXPECT_EQ(error.lngNumber, 8134);
    EXPECT_EQ(error.strMessage, "Divide by zero error encountered.");
    EXPECT_EQ(error.lngLine, 2);
    EXPECT_EQ(error.lngColumn, 1);

    EXPECT_EQ(ShowRows(*connection, "select count(*) from T"), "1\n");
}

TEST(EmbeddedConnection, GivesTheFirstRowsOfABatchOrAllOfThem)
{
    const TestAccount account;
    const auto connection = account.Connect();
    EXPECT_EQ(ShowRows(*connection,
                       "create table T (a int)\r\ninsert into T values (7)\r\nselect a from T\r\nselect 2"),
              "7\n");

    const auto none = connection->OpenRecordset("insert into T values (8)", CursorLocation::Server,
                                                CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(none->FieldCount(), 0);
    EXPECT_TRUE(none->Eof());
    EXPECT_EQ(none->RecordCount(), 0);

    const auto first =
        connection->OpenRecordset("select a from T order by a\r\ndelete T\r\nselect count(*) as n from T",
                                  CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(ShowRows(*first), "7\n8\n");
    EXPECT_EQ(ShowRows(*connection, "select count(*) from T"), "0\n");
}

TEST(EmbeddedConnection, ExplainsWithoutRunning)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int)");
    const std::string text = connection->Explain(
        "insert into T values (1)\r\nif exists(select * from sysobjects where name='T') drop table T");
    EXPECT_NE(text.find("INSERT INTO \"work\".\"main\".\"T\""), std::string::npos) << text;
    EXPECT_NE(text.find("if a row comes"), std::string::npos) << text;
    EXPECT_NE(text.find("DROP TABLE"), std::string::npos) << text;
    EXPECT_EQ(ShowRows(*connection, "select count(*) from T"), "0\n");
    EXPECT_THROW(connection->Explain("select * from missing"), DatabaseError);
}

TEST(EmbeddedConnection, StopsAStatementFromAnotherThread)
{
    using Clock = std::chrono::steady_clock;
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute(
        "create table T (n int)\r\ninsert into T values (1), (2), (3), (4), (5), (6), (7), (8)\r\n"
        "insert into T select a.n * 8 + b.n from T a, T b\r\n"
        "insert into T select a.n * 80 + b.n from T a, T b");

    Clock::time_point cancelled;
    std::thread stopper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        cancelled = Clock::now();
        connection->Cancel();
    });
    // 5,256 rows by themselves three times: it would run for hours.
    EXPECT_THROW(connection->Execute("select sum(a.n + 0.5 * b.n * c.n) as s into U from T a, T b, T c"),
                 CancelledError);
    const auto stopped = Clock::now();
    stopper.join();
    EXPECT_LT(stopped - cancelled, std::chrono::milliseconds(500));

    // Nothing is left of it, and the connection goes on.
    EXPECT_EQ(ShowRows(*connection, "select count(*) from sysobjects where name = 'U'"), "0\n");
    EXPECT_EQ(connection->Execute("select 1 as s into U"), 1);
}

TEST(EmbeddedConnection, IsNotStoppedByACancelThatCameWhileNothingRan)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Cancel();
    EXPECT_EQ(ShowRows(*connection, "select 1"), "1\n");
}

TEST(EmbeddedConnection, TakesItsOwnTablesWithIt)
{
    const TestAccount account;
    const auto handle = OpenAccount(account.Path());
    const auto first = account.Connect();
    const auto second = account.Connect();
    first->Execute("select 1 as a into #T");
    second->Execute("select 2 as a into #T");
    EXPECT_EQ(ShowRows(*first, "select a from #t"), "1\n");
    EXPECT_EQ(ShowRows(*second, "select a from #t"), "2\n");
    first->Close();
    first->Open("", "", 0);
    EXPECT_THROW(first->Execute("drop table #T"), DatabaseError);
    EXPECT_EQ(ShowRows(*second, "select a from #t"), "2\n");
}

}  // namespace

}  // namespace kavelin::embedded
