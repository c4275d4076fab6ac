// The adapter on SQLite's driver, which bounds no text, stores any value in any column and runs in this process.
#include "database/odbc/Connected.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

namespace kavelin::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* kDriver = "/usr/lib/x86_64-linux-gnu/odbc/libsqlite3odbc.so";

// The library that reads odbc.ini keeps what it read until the process ends. The driver loads it and lets it go,
// and what was kept would then look lost to the leak checker.
void KeepIniLibrary()
{
    ::dlopen("libodbcinst.so.2", RTLD_NOW | RTLD_NODELETE);
}

class OnSqlite : public testing::Test {
  protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(kDriver))
            GTEST_SKIP() << "SQLite's ODBC driver is not installed.";
        KeepIniLibrary();
    }

    std::shared_ptr<Connection> Open()
    {
        return Connected("Driver=" + std::string(kDriver) + ";Database=" + (objFolder / "books.db").string());
    }

    TestFolder objFolder;
};

// Its driver has no wide calls, so only ASCII gets through.
TEST_F(OnSqlite, TextAndNullsAreStoredAndReadBack)
{
    const auto connection = Open();
    const std::string text = "plain text";
    connection->Execute("create table t(a nvarchar(10), b text)");
    EXPECT_EQ(connection->Execute("insert into t values ('" + text + "', null)"), 1);
    const auto rows = Rows(*connection, "select a, b from t");
    EXPECT_EQ(rows->Field("a"), Value(text));
    EXPECT_TRUE(rows->Field("b").IsNull());
}

TEST_F(OnSqlite, AValueLongerThanItsColumnSaysArrivesWhole)
{
    const auto connection = Open();
    connection->Execute("create table t(a varchar(3))");
    const std::string text(5000, 'x');
    connection->Execute("insert into t values ('" + text + "')");
    EXPECT_EQ(Single(*connection, "select a from t"), Value(text));
}

TEST_F(OnSqlite, DecimalsComeAsExactText)
{
    const auto connection = Open();
    connection->Execute("create table t(a text)");
    connection->Execute("insert into t values ('12345678901234567890123456789012345678')");
    EXPECT_EQ(Single(*connection, "select a from t"), Value("12345678901234567890123456789012345678"));
}

TEST_F(OnSqlite, DatesArriveAsDates)
{
    const auto connection = Open();
    connection->Execute("create table t(a timestamp, b date)");
    connection->Execute("insert into t values ('2008-07-31 14:30:00.123', '2008-07-31')");
    const auto rows = Rows(*connection, "select a, b from t");
    EXPECT_EQ(rows->Field("a"), Value(DateTime(std::chrono::sys_days(2008y / 7 / 31) + 14h + 30min + 123ms)));
    EXPECT_EQ(rows->Field("b"), Value(DateTime(std::chrono::sys_days(2008y / 7 / 31))));
    EXPECT_EQ(rows->FieldType(0), "datetime");
}

TEST_F(OnSqlite, AHundredThousandRowsOfTextAreRead)
{
    const auto connection = Open();
    const auto rows = Rows(*connection,
                           "with recursive n(i) as (select 1 union all select i + 1 from n where i < 100000)"
                           " select i, 'item ' || i as name from n");
    EXPECT_EQ(rows->RecordCount(), 100000);
    for (int i = 1; i < 100000; ++i)
        rows->MoveNext();
    EXPECT_EQ(rows->Field("name"), Value("item 100000"));
}

TEST_F(OnSqlite, AnErrorHasTheDriversNumberAndNoBrackets)
{
    const auto connection = Open();
    const auto failure = Failure([&] { connection->Execute("select * from nowhere"); });
    EXPECT_EQ(failure.strMessage.find('['), std::string::npos) << failure.strMessage;
    EXPECT_NE(failure.strMessage.find("no such table: nowhere"), std::string::npos) << failure.strMessage;
    EXPECT_EQ(failure.lngNumber, 1);
    EXPECT_EQ(failure.strStatement, "select * from nowhere");
    EXPECT_EQ(connection->State(), ConnectionState::Open);
}

TEST_F(OnSqlite, CancelFromAnotherThreadStopsTheStatement)
{
    const auto connection = Open();
    std::thread cancelling([&] {
        std::this_thread::sleep_for(200ms);
        connection->Cancel();
    });
    EXPECT_THROW(Rows(*connection,
                      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 2000000000)"
                      " select count(*) from n"),
                 CancelledError);
    cancelling.join();
    EXPECT_EQ(Single(*connection, "select 1"), Value(std::int64_t{1}));
}

TEST_F(OnSqlite, ADataSourceOfTheUsersIsOpenedByItsName)
{
    const std::string file = (objFolder / "odbc.ini").string();
    WriteFile(file, "[books]\nDriver=" + std::string(kDriver) +
                        "\nDatabase=" + (objFolder / "books.db").string() + "\n");
    ::setenv("ODBCINI", file.c_str(), 1);
    const auto connection = Connected("dsn=books");
    ::unsetenv("ODBCINI");
    connection->Execute("create table t(a int)");
    EXPECT_TRUE(std::filesystem::exists(objFolder / "books.db"));
}

TEST_F(OnSqlite, ADriverThatIsNotThereIsAConnectionError)
{
    const auto failure =
        Failure<ConnectionError>([&] { Connected("Driver=/nowhere/libnothing.so;PWD=secret-word"); });
    EXPECT_NE(failure.strMessage.find("/nowhere/libnothing.so"), std::string::npos) << failure.strMessage;
    EXPECT_EQ(failure.strMessage.find("secret-word"), std::string::npos);
    const auto dsn = Failure<ConnectionError>([&] { Connected("DSN=no such source", "u", "secret-word"); });
    EXPECT_EQ(dsn.strSqlState, "IM002");
}

}  // namespace
}  // namespace kavelin::test
