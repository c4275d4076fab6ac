#include "database/odbc/Link.h"

#include "database/odbc/AdapterErrors.h"
#include "database/odbc/Diagnostics.h"
#include "database/odbc/Utf16.h"
#include "frame/Text.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>

namespace kavelin::odbc {

Link::Link(const std::string& odbcText, const std::string& password, std::int32_t timeout)
    : objEnvironment(NewEnvironment()),
      objConnection(NewHandle(HandleKind::Connection, objEnvironment)),
      strPassword(password)
{
    const SQLHDBC connection = objConnection.Get();
    if (!connection)
        throw ConnectionError(Summary(ReadDiagnostics(objEnvironment)));
    SQLSetConnectAttrW(connection, SQL_ATTR_LOGIN_TIMEOUT,
                       reinterpret_cast<SQLPOINTER>(static_cast<std::uintptr_t>(std::max(timeout, 0))),
                       SQL_IS_UINTEGER);

    Utf16Text text = ToUtf16(odbcText);
    if (text.badByte > 0)
        throw NotConnected(NoUtf8(text.badByte));
    SQLSMALLINT length = 0;
    const SQLRETURN result =
        SQLDriverConnectW(connection, nullptr, reinterpret_cast<SQLWCHAR*>(text.text.data()), SQL_NTS,
                          nullptr, 0, &length, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(result)) {
        DatabaseError::Details details = Summary(ReadDiagnostics(objConnection));
        details.strMessage = WithoutSecret(details.strMessage, strPassword);
        throw ConnectionError(details);
    }
    ReadServerFacts();
}

Link::~Link()
{
    SQLDisconnect(objConnection.Get());
}

void Link::ReadServerFacts()
{
    std::u16string name(256, u'\0');
    SQLSMALLINT bytes = 0;
    if (!SQL_SUCCEEDED(SQLGetInfoW(objConnection.Get(), SQL_DBMS_NAME, name.data(),
                                   static_cast<SQLSMALLINT>(name.size() * sizeof(char16_t)), &bytes)))
        return;
    objServer.isSqlServer = ToLower(FromUtf16(name)).find("sql server") != std::string::npos;
}

bool Link::IsDead() const
{
    SQLUINTEGER dead = SQL_CD_FALSE;
    const SQLRETURN result =
        SQLGetConnectAttrW(objConnection.Get(), SQL_ATTR_CONNECTION_DEAD, &dead, sizeof dead, nullptr);
    return SQL_SUCCEEDED(result) && dead == SQL_CD_TRUE;
}

}  // namespace kavelin::odbc
