// The server's client is the adapter, and with it FreeTDS's driver: both must see what an SQL Server would
// show.
#include "support/tds/TdsServer.h"

#include "database/odbc/OdbcConnection.h"
#include "frame/Errors.h"
#include "support/tds/TdsAccount.h"
#include "tds/FreeTds.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>

namespace kavelin::test::tds {
namespace {

using namespace std::chrono_literals;

std::shared_ptr<Connection> Open(const std::string& text, const std::string& password = "")
{
    auto connection = odbc::NewConnection();
    connection->SetConnectionString(text);
    connection->SetConnectionTimeout(10);
    connection->Open("", password, -1);
    return connection;
}

std::unique_ptr<Recordset> Rows(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

// Types and values, a line a field: "a int 7".
std::string Fields(Connection& connection, const std::string& sql)
{
    std::string text;
    for (const auto rows = Rows(connection, sql); !rows->Eof(); rows->MoveNext()) {
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            const auto* number = value.As<Decimal>();
            text += rows->FieldName(field) + " " + rows->FieldType(field) + " " +
                    (value.IsNull() ? "null"
                     : number       ? number->ToText()
                                    : ToText(value)) +
                    "\n";
        }
    }
    return text;
}

DatabaseError::Details ErrorOf(const std::function<void()>& act)
{
    try {
        act();
    } catch (const DatabaseError& error) {
        return error.Get();
    }
    ADD_FAILURE() << "nothing failed";
    return {};
}

Fault FaultOf(FaultKind kind, std::string text = "")
{
    Fault fault;
    fault.kind = kind;
    fault.text = std::move(text);
    return fault;
}

class TdsServerTest : public testing::Test {
  protected:
    void SetUp() override
    {
        if (!FreeTdsIsInstalled())
            GTEST_SKIP() << "FreeTDS's ODBC driver is not installed.";
        ::setenv("KAVELIN_ODBC_DRIVER", "FreeTDS", 1);
    }

    void TearDown() override { ::unsetenv("KAVELIN_ODBC_DRIVER"); }

    TdsAccount account;
    TdsServer& server = account.Server();
};

// --- login -------------------------------------------------------------------------------------

TEST_F(TdsServerTest, LetsInByBothFormsOfConnectionString)
{
    for (const std::string& text : {account.ProviderText(), account.OdbcText()})
        EXPECT_EQ(Fields(*Open(text), "select 1 as a"), "a int 1\n") << text;
}

TEST_F(TdsServerTest, ReadsUserPasswordAndDatabaseFromALogin)
{
    Open(account.OdbcText());
    ASSERT_FALSE(server.Logins().empty());
    const LoginMessage login = server.Logins().back();
    EXPECT_EQ(login.user, "kavelin");
    EXPECT_EQ(login.password, "Secret;1");
    EXPECT_EQ(login.database, "Account_001");
}

TEST_F(TdsServerTest, RefusesAWrongPassword)
{
    const auto error = ErrorOf([&] { Open(account.ProviderText(), "wrong"); });
    EXPECT_EQ(error.lngNumber, 18456);
    EXPECT_EQ(error.strMessage.find("wrong"), std::string::npos);
}

TEST_F(TdsServerTest, RefusesADatabaseThatItDoesNotHave)
{
    const auto error = ErrorOf([&] {
        Open("Driver=FreeTDS;Server=127.0.0.1;Port=" + std::to_string(server.Port()) +
             ";Database=Nowhere;UID=kavelin;PWD={Secret;1};TDS_Version=7.4");
    });
    EXPECT_EQ(error.lngNumber, 4060) << error.strMessage;
}

TEST_F(TdsServerTest, SaysNothingWhereItIsToBeSilent)
{
    ServerOptions options;
    options.silent = true;
    TdsAccount silent(options);
    const auto begin = std::chrono::steady_clock::now();
    auto connection = odbc::NewConnection();
    connection->SetConnectionString(silent.ProviderText());
    connection->SetConnectionTimeout(1);
    EXPECT_THROW(connection->Open("", "", -1), ConnectionError);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s);
}

TEST_F(TdsServerTest, TellsInWhichDatabaseASessionIs)
{
    const auto connection = Open(account.OdbcText());
    connection->Execute("use [tempdb]");
    EXPECT_EQ(Fields(*connection, "select db_name()"), " nvarchar(128) tempdb\n");
    EXPECT_EQ(ErrorOf([&] { connection->Execute("use Nowhere"); }).lngNumber, 911);
}

// --- values ------------------------------------------------------------------------------------

TEST_F(TdsServerTest, SendsEachTypeAsTheAccountHasIt)
{
    account.Inside().Execute(
        "create table T (b bit, t tinyint, s smallint, i int, l bigint, m money, d decimal(38,10), f float, "
        "w datetime, v varchar(10), n nvarchar(10), x nvarchar(max))");
    account.Inside().Execute(
        "insert into T select 1, 255, -32768, -2147483648, 9223372036854775807, -922337203685477.5808, "
        "-9999999999999999999999999999.9999999999, 1.5, '2008-07-31 14:30:00', '货a', N'货😀 ', N''");
    EXPECT_EQ(Fields(*Open(account.OdbcText()), "select * from T"),
              "b bit True\n"
              "t tinyint 255\n"
              "s smallint -32768\n"
              "i int -2147483648\n"
              "l bigint 9223372036854775807\n"
              "m money -922337203685477.5808\n"
              "d decimal(38,10) -9999999999999999999999999999.9999999999\n"
              "f float 1.5\n"
              "w datetime 2008-07-31 14:30:00\n"
              "v varchar(10) 货a\n"
              "n nvarchar(10) 货😀 \n"
              "x nvarchar(max) \n");
}

TEST_F(TdsServerTest, SendsNullsOfEachType)
{
    account.Inside().Execute(
        "create table T (b bit, t tinyint, s smallint, i int, l bigint, m money, d decimal(38,10), f float, "
        "w datetime, v varchar(10), n nvarchar(10), x nvarchar(max))");
    account.Inside().Execute("insert into T (b) select null");
    const auto connection = Open(account.OdbcText());
    const auto rows = Rows(*connection, "select * from T");
    ASSERT_EQ(rows->FieldCount(), 12);
    for (int field = 0; field < rows->FieldCount(); ++field)
        EXPECT_TRUE(rows->Field(field).IsNull()) << rows->FieldName(field);
}

TEST_F(TdsServerTest, SendsTextWithoutLimitOfAnyLength)
{
    account.Inside().Execute("create table T (x nvarchar(max))");
    std::string text;
    for (int i = 0; i < 30'000; ++i)
        text += "货币";
    account.Inside().Execute("insert into T select N'" + text + "'");
    const auto connection = Open(account.ProviderText());
    const auto rows = Rows(*connection, "select x from T");
    EXPECT_EQ(rows->Field(0), Value(text));
}

TEST_F(TdsServerTest, SendsTypesOfAServersOwnWhereATestOrdersThem)
{
    const DateTime day = std::chrono::sys_days(std::chrono::year(2008) / 7 / 31);
    const struct {
        const char* type;
        Value value;
        const char* told = type;  // FreeTDS names small types by their families
    } cases[] = {
        {"uniqueidentifier", "6F9619FF-8B86-D011-B42D-00C04FC964FF"},
        {"date", day},
        {"smalldatetime", day + 90min, "datetime"},
        {"real", 0.5},
        {"smallmoney", Decimal(-12500, 4), "money"},
        {"nchar(3)", "货a "},
        {"char(3)", "abc"},
        {"ntext", "货😀"},
        {"text", "货"},
        {"varbinary(8)", "0x01AF"},
    };
    const auto connection = Open(account.OdbcText());
    for (const auto& c : cases) {
        server.Answer("select own", {{{"a", TypeOf(c.type)}}, {{c.value}, {Value::Null()}}});
        const auto rows = Rows(*connection, "select own");
        EXPECT_EQ(rows->FieldType(0), c.told);
        EXPECT_EQ(ToText(rows->Field(0)), ToText(c.value)) << c.type;
        rows->MoveNext();
        EXPECT_TRUE(rows->Field(0).IsNull()) << c.type;
    }
}

TEST_F(TdsServerTest, SendsAHundredThousandRows)
{
    account.Inside().Execute("create table Digit (d int)");
    account.Inside().Execute("insert into Digit values (0),(1),(2),(3),(4),(5),(6),(7),(8),(9)");
    const auto connection = Open(account.OdbcText());
    const auto rows = Rows(*connection,
                           "select a.d + 10 * b.d + 100 * c.d + 1000 * e.d + 10000 * f.d as n, N'第' as t "
                           "from Digit a, Digit b, Digit c, Digit e, Digit f order by 1");
    ASSERT_EQ(rows->RecordCount(), 100'000);
    std::int64_t wanted = 0;
    for (; !rows->Eof(); rows->MoveNext(), ++wanted)
        ASSERT_EQ(rows->Field(0), Value(wanted));
}

// --- batches -----------------------------------------------------------------------------------

TEST_F(TdsServerTest, TakesABatchOfAMegabyteAsItStands)
{
    account.Inside().Execute("create table T (x nvarchar(max))");
    std::string batch = "insert into T values ";
    while (batch.size() < 1'200'000)
        batch += std::string(batch.ends_with(' ') ? "" : ",") + "(N'" + std::string(100, 'x') + "货')";
    const auto connection = Open(account.OdbcText());
    connection->Execute(batch);
    EXPECT_EQ(server.Batches().back(), batch);
    EXPECT_GT(ToDouble(Rows(*connection, "select count(*) from T")->Field(0)), 10'000);
}

TEST_F(TdsServerTest, CountsTheRowsOfEachStatement)
{
    const auto connection = Open(account.OdbcText());
    EXPECT_EQ(connection->Execute("create table T (a int)"), -1);
    EXPECT_EQ(connection->Execute("insert into T values (1), (2), (3)"), 3);
    EXPECT_EQ(connection->Execute("delete from T where a = 1 update T set a = 5"), 2);
    EXPECT_EQ(connection->Execute("select a into U from T"), 2);
    EXPECT_EQ(connection->Execute("set nocount on delete from T"), -1);
}

TEST_F(TdsServerTest, GivesTheFirstRowsOfABatch)
{
    const auto connection = Open(account.OdbcText());
    EXPECT_EQ(
        Fields(*connection, "create table T (a int) insert into T values (7) select a from T select 8 as b"),
        "a int 7\n");
}

TEST_F(TdsServerTest, KeepsTheConnectionsOwnTablesApart)
{
    const auto first = Open(account.OdbcText());
    const auto second = Open(account.OdbcText());
    first->Execute("select 1 as a into #T");
    EXPECT_EQ(Fields(*first, "select a from #T"), "a int 1\n");
    EXPECT_EQ(ErrorOf([&] { second->Execute("select a from #T"); }).lngNumber, 208);
}

// --- errors ------------------------------------------------------------------------------------

TEST_F(TdsServerTest, TellsErrorsByTheServersNumbers)
{
    account.Inside().Execute("create table T (a int not null primary key)");
    account.Inside().Execute("insert into T values (1)");
    const struct {
        std::int32_t number;
        const char* batch;
        const char* message;
    } cases[] = {
        {102, "select 1 +", "Incorrect syntax near '+'."},
        {207, "select b from T", "Invalid column name 'b'."},
        {208, "select a from Nowhere", "Invalid object name 'Nowhere'."},
        {2714, "create table T (b int)", "There is already an object named 'T' in the database."},
        {8134, "select 1 / 0", "Divide by zero error encountered."},
    };
    const auto connection = Open(account.OdbcText());
    for (const auto& c : cases) {
        const auto error = ErrorOf([&] { connection->Execute(c.batch); });
        EXPECT_EQ(error.lngNumber, c.number) << c.batch;
        EXPECT_EQ(error.strMessage, c.message) << c.batch;
    }
    EXPECT_EQ(ErrorOf([&] { connection->Execute("insert into T values (1)"); }).lngNumber, 2627);
    EXPECT_EQ(Fields(*connection, "select a from T"), "a int 1\n");
}

TEST_F(TdsServerTest, TellsOfAValueThatItCannotSendAndGoesOn)
{
    server.Answer("select own", {{{"a", TypeOf("nvarchar(1)")}}, {{"abc"}}});
    const auto connection = Open(account.OdbcText());
    EXPECT_EQ(ErrorOf([&] { Rows(*connection, "select own"); }).lngNumber, 50000);
    EXPECT_EQ(Fields(*connection, "select null as a"), "a int null\n");
}

TEST_F(TdsServerTest, KeepsWhatABatchDidBeforeItsError)
{
    const auto connection = Open(account.OdbcText());
    const auto error = ErrorOf(
        [&] { connection->Execute("create table T (a int)\r\ninsert into T values (1)\r\nselect 1 / 0"); });
    EXPECT_EQ(error.lngNumber, 8134);
    EXPECT_EQ(Fields(*connection, "select a from T"), "a int 1\n");
}

TEST_F(TdsServerTest, FailsAfterTheRowsOfAnEarlierStatement)
{
    const auto connection = Open(account.OdbcText());
    EXPECT_EQ(ErrorOf([&] { Rows(*connection, "select 1 as a select 1 / 0"); }).lngNumber, 8134);
    EXPECT_EQ(Fields(*connection, "select 2 as a"), "a int 2\n");
}

// --- faults ------------------------------------------------------------------------------------

TEST_F(TdsServerTest, RefusesWhatATestOrders)
{
    server.Order(Denied("create table", "CREATE TABLE", "Account_001"));
    const auto connection = Open(account.OdbcText());
    const auto error = ErrorOf([&] { connection->Execute("create table T (a int)"); });
    EXPECT_EQ(error.lngNumber, 262);
    EXPECT_EQ(error.strMessage, "CREATE TABLE permission denied in database 'Account_001'.");
    EXPECT_EQ(Fields(*connection, "select 1 as a"), "a int 1\n");
    server.ClearFaults();
    connection->Execute("create table T (a int)");
}

TEST_F(TdsServerTest, FailsBehindTheResultsWhereATestOrdersIt)
{
    Fault fault = FaultOf(FaultKind::RefuseLater);
    fault.message = {547, 16, "The statement conflicted."};
    const auto connection = Open(account.OdbcText());
    server.Order(fault);
    EXPECT_EQ(ErrorOf([&] { Rows(*connection, "select 1 as a"); }).lngNumber, 547);
}

TEST_F(TdsServerTest, RemarksWithoutFailing)
{
    const auto connection = Open(account.OdbcText());
    server.Order(NullWarnings());
    EXPECT_EQ(connection->Execute("create table T (a int)"), -1);
    EXPECT_EQ(connection->Execute("insert into T values (1), (2)"), 2);
    EXPECT_EQ(Fields(*connection, "select sum(a) as s from T"), "s int 3\n");
    EXPECT_EQ(ErrorOf([&] { connection->Execute("insert into T values (3) select 1 / 0"); }).lngNumber, 8134);
}

TEST_F(TdsServerTest, EndsTheConnectionWithoutAnAnswer)
{
    const auto connection = Open(account.OdbcText());
    Fault fault = FaultOf(FaultKind::Drop, "select");
    fault.skip = 1;
    server.Order(fault);
    EXPECT_EQ(Fields(*connection, "select 1 as a"), "a int 1\n");
    EXPECT_THROW(connection->Execute("select 2"), DatabaseError);
    EXPECT_EQ(connection->State(), ConnectionState::Closed);
    EXPECT_EQ(server.Batches().back(), "select 2");  // and it came once only
    EXPECT_EQ(Fields(*Open(account.OdbcText()), "select 3 as a"), "a int 3\n");
}

TEST_F(TdsServerTest, EndsTheConnectionWithinItsRows)
{
    account.Inside().Execute("create table T (a int)");
    account.Inside().Execute("insert into T values (1), (2), (3), (4)");
    const auto connection = Open(account.OdbcText());
    for (const std::int64_t rows : {std::int64_t{0}, std::int64_t{2}, std::int64_t{4}}) {
        const auto each = Open(account.OdbcText());
        Fault fault = FaultOf(FaultKind::DropInRows);
        fault.rows = rows;
        server.Order(fault);
        EXPECT_THROW(Rows(*each, "select a from T"), DatabaseError) << rows;
        EXPECT_EQ(each->State(), ConnectionState::Closed) << rows;
    }
    EXPECT_EQ(Fields(*connection, "select 1 as a"), "a int 1\n");
}

TEST_F(TdsServerTest, StopsAWaitingStatementThatIsCancelled)
{
    Fault fault = FaultOf(FaultKind::Delay, "select");
    fault.delay = 60s;
    server.Order(fault);
    const auto connection = Open(account.OdbcText());
    const auto begin = std::chrono::steady_clock::now();
    std::thread other([&] {
        while (server.Batches().empty() || server.Batches().back() != "select 1")
            std::this_thread::sleep_for(5ms);
        connection->Cancel();
    });
    EXPECT_THROW(connection->Execute("select 1"), CancelledError);
    other.join();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30s);
    EXPECT_EQ(Fields(*connection, "select 2 as a"), "a int 2\n");
}

TEST_F(TdsServerTest, LetsAStatementRunIntoItsTimeOut)
{
    Fault fault = FaultOf(FaultKind::Delay, "select");
    fault.delay = 60s;
    server.Order(fault);
    const auto connection = Open(account.OdbcText());
    connection->SetCommandTimeout(1);
    EXPECT_THROW(connection->Execute("select 1"), DatabaseError);
}

TEST_F(TdsServerTest, EndsAllSessionsWhenItStops)
{
    const auto connection = Open(account.OdbcText());
    server.Stop();
    EXPECT_THROW(connection->Execute("select 1"), DatabaseError);
    EXPECT_THROW(Open(account.OdbcText()), ConnectionError);
}

TEST_F(TdsServerTest, ServesSeveralSessionsAtOnce)
{
    account.Inside().Execute("create table T (a int)");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&, i] {
            const auto connection = Open(account.OdbcText());
            for (int k = 0; k < 10; ++k)
                connection->Execute("insert into T values (" + std::to_string(i) + ")");
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(Fields(*Open(account.OdbcText()), "select count(*) as n, sum(a) as s from T"),
              "n int 40\ns int 60\n");
}

}  // namespace
}  // namespace kavelin::test::tds
