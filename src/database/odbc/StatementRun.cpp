#include "database/odbc/StatementRun.h"

#include "database/odbc/AdapterErrors.h"
#include "database/odbc/Diagnostics.h"
#include "database/odbc/Utf16.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace kavelin::odbc {

namespace {

constexpr const char* kLost = "08S01";
constexpr const char* kCancelled = "HY008";
constexpr const char* kBadText = "22021";

SQLPOINTER Number(std::uintptr_t number)
{
    return reinterpret_cast<SQLPOINTER>(number);
}

}  // namespace

StatementRun::StatementRun(Link& link, CancelGate& gate, std::int32_t timeout, const std::string& sql)
    : objLink(link),
      objGate(gate),
      strSql(sql),
      objStatement(NewHandle(HandleKind::Statement, link.Connection()))
{
    if (!objStatement.Get())
        FailBy(link.Connection());
    // T-SQL has no ODBC escapes: a { is a {. A driver that knows no such setting doesn't look for them.
    SQLSetStmtAttrW(objStatement.Get(), SQL_ATTR_NOSCAN, Number(SQL_NOSCAN_ON), SQL_IS_UINTEGER);
    if (timeout > 0)
        SQLSetStmtAttrW(objStatement.Get(), SQL_ATTR_QUERY_TIMEOUT,
                        Number(static_cast<std::uintptr_t>(timeout)), SQL_IS_UINTEGER);
    objGate.Enter(objStatement.Get());
}

StatementRun::~StatementRun()
{
    objGate.Leave();
}

void StatementRun::Execute()
{
    Utf16Text text = ToUtf16(strSql);
    if (text.badByte > 0)
        Fail(NoUtf8(text.badByte), kBadText);
    Check(SQL_SUCCESS);  // a Cancel may have come before there was anything to cancel
    Check(SQLExecDirectW(objStatement.Get(), reinterpret_cast<SQLWCHAR*>(text.text.data()),
                         static_cast<SQLINTEGER>(text.text.size())));
}

bool StatementRun::NextResult()
{
    const SQLRETURN result = SQLMoreResults(objStatement.Get());
    Check(result);
    return result != SQL_NO_DATA;
}

int StatementRun::ColumnCount() const
{
    SQLSMALLINT count = 0;
    Check(SQLNumResultCols(objStatement.Get(), &count));
    return count;
}

std::int64_t StatementRun::RowsChanged() const
{
    SQLLEN count = -1;
    Check(SQLRowCount(objStatement.Get(), &count));
    return ColumnCount() == 0 ? count : -1;
}

void StatementRun::Check(short result) const
{
    if (objGate.IsCancelled()) {
        DatabaseError::Details details = DetailsOf("The statement was cancelled.", kCancelled);
        details.strStatement = strSql;
        throw CancelledError(details);
    }
    if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA)
        return;

    FailBy(objStatement);
}

void StatementRun::FailBy(const Handle& handle) const
{
    const std::vector<Diagnostic> diagnostics = ReadDiagnostics(handle);
    DatabaseError::Details details = Summary(diagnostics);
    details.strMessage = WithoutSecret(details.strMessage, objLink.Password());
    details.strStatement = strSql;
    if (TellsOfLostConnection(diagnostics) || objLink.IsDead()) {
        details.strMessage = "The connection to the server was lost. " + details.strMessage;
        details.strSqlState = kLost;
        objLink.MarkLost();
    }
    throw DatabaseError(details);
}

void StatementRun::Fail(const std::string& message, const std::string& sqlState) const
{
    DatabaseError::Details details = DetailsOf(message, sqlState);
    details.strStatement = strSql;
    throw DatabaseError(details);
}

}  // namespace kavelin::odbc
