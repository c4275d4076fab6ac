#include "database/odbc/Handles.h"

#include "database/odbc/AdapterErrors.h"

#include <sql.h>
#include <sqlext.h>

#include <utility>

namespace kavelin::odbc {

Handle::~Handle()
{
    if (objRaw)
        SQLFreeHandle(static_cast<SQLSMALLINT>(enmKind), objRaw);
}

Handle::Handle(Handle&& other) noexcept : enmKind(other.enmKind), objRaw(std::exchange(other.objRaw, nullptr))
{
}

Handle NewEnvironment()
{
    SQLHANDLE raw = SQL_NULL_HANDLE;
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &raw)))
        throw NotConnected("ODBC could not be started on this machine.");
    Handle environment(HandleKind::Environment, raw);
    SQLSetEnvAttr(raw, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(std::uintptr_t{SQL_OV_ODBC3}), 0);
    return environment;
}

Handle NewHandle(HandleKind kind, const Handle& of)
{
    SQLHANDLE raw = SQL_NULL_HANDLE;
    const SQLRETURN result = SQLAllocHandle(static_cast<SQLSMALLINT>(kind), of.Get(), &raw);
    return Handle(kind, SQL_SUCCEEDED(result) ? raw : nullptr);
}

}  // namespace kavelin::odbc
