// What drivers send for a prepared statement, through ODBC itself: the adapter prepares none.
#include "support/tds/TdsAccount.h"
#include "tds/FreeTds.h"

#include <gtest/gtest.h>
#include <sql.h>
#include <sqlext.h>

namespace kavelin::test::tds {
namespace {

SQLCHAR* Characters(std::string& text)
{
    return reinterpret_cast<SQLCHAR*>(text.data());
}

class PreparedStatement : public testing::Test {
  protected:
    void SetUp() override
    {
        if (!FreeTdsIsInstalled())
            GTEST_SKIP() << "FreeTDS's ODBC driver is not installed.";
        account.Inside().Execute("create table T (a int, b nvarchar(20))");
        account.Inside().Execute("insert into T values (1, N'货'), (2, N'b')");
        SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment);
        SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection);
        std::string text = account.OdbcText();
        EXPECT_TRUE(SQL_SUCCEEDED(SQLDriverConnect(connection, nullptr, Characters(text), SQL_NTS, nullptr, 0,
                                                   nullptr, SQL_DRIVER_NOPROMPT)));
        SQLAllocHandle(SQL_HANDLE_STMT, connection, &statement);
    }

    ~PreparedStatement() override
    {
        if (statement)
            SQLFreeHandle(SQL_HANDLE_STMT, statement);
        if (!connection)
            return;
        SQLDisconnect(connection);
        SQLFreeHandle(SQL_HANDLE_DBC, connection);
        SQLFreeHandle(SQL_HANDLE_ENV, environment);
    }

    bool Prepare(std::string sql) { return SQL_SUCCEEDED(SQLPrepare(statement, Characters(sql), SQL_NTS)); }

    // The first field of all rows, each with a blank behind it; then the result is closed.
    std::string FirstFields()
    {
        std::string fields;
        while (SQLFetch(statement) == SQL_SUCCESS) {
            SQLCHAR field[64] = {};
            SQLLEN length = 0;
            SQLGetData(statement, 1, SQL_C_CHAR, field, sizeof field, &length);
            fields += std::string(reinterpret_cast<const char*>(field)) + " ";
        }
        SQLFreeStmt(statement, SQL_CLOSE);
        return fields;
    }

    SQLINTEGER ErrorNumber()
    {
        SQLCHAR state[6] = {};
        SQLINTEGER number = 0;
        SQLGetDiagRec(SQL_HANDLE_STMT, statement, 1, state, &number, nullptr, 0, nullptr);
        return number;
    }

    TdsAccount account;
    SQLHENV environment = nullptr;
    SQLHDBC connection = nullptr;
    SQLHSTMT statement = nullptr;
};

TEST_F(PreparedStatement, RunsAgainAndAgain)
{
    ASSERT_TRUE(Prepare("select a from T order by a"));
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(SQL_SUCCEEDED(SQLExecute(statement)));
        EXPECT_EQ(FirstFields(), "1 2 ");
    }
}

TEST_F(PreparedStatement, TellsHowManyRowsItChanged)
{
    ASSERT_TRUE(Prepare("update T set b = N'c'"));
    ASSERT_TRUE(SQL_SUCCEEDED(SQLExecute(statement)));
    SQLLEN rows = 0;
    SQLRowCount(statement, &rows);
    EXPECT_EQ(rows, 2);
}

TEST_F(PreparedStatement, FailsAsABatchDoes)
{
    ASSERT_TRUE(Prepare("select 1 / 0"));
    EXPECT_EQ(SQLExecute(statement), SQL_ERROR);
    EXPECT_EQ(ErrorNumber(), 8134);
    SQLFreeStmt(statement, SQL_CLOSE);
    ASSERT_TRUE(Prepare("select a from T where b = N'b'"));
    ASSERT_TRUE(SQL_SUCCEEDED(SQLExecute(statement)));
    EXPECT_EQ(FirstFields(), "2 ");
}

TEST_F(PreparedStatement, IsRefusedWithParameters)
{
    SQLINTEGER parameter = 2;
    SQLLEN length = 0;
    SQLBindParameter(statement, 1, SQL_PARAM_INPUT, SQL_C_SLONG, SQL_INTEGER, 0, 0, &parameter, 0, &length);
    ASSERT_TRUE(Prepare("select a from T where a = ?"));
    EXPECT_EQ(SQLExecute(statement), SQL_ERROR);
    EXPECT_EQ(ErrorNumber(), 8144);
}

}  // namespace
}  // namespace kavelin::test::tds
