// Shared by the tests against real drivers.
#pragma once

#include "database/odbc/OdbcConnection.h"
#include "frame/Connection.h"
#include "frame/Errors.h"
#include "frame/Value.h"

#include <memory>
#include <string>

namespace kavelin::test {

inline std::shared_ptr<Connection> Connected(const std::string& text, const std::string& user = {},
                                             const std::string& password = {})
{
    auto connection = odbc::NewConnection();
    connection->SetConnectionString(text);
    connection->SetConnectionTimeout(0);
    connection->SetCommandTimeout(0);
    connection->Open(user, password, -1);
    return connection;
}

inline std::unique_ptr<Recordset> Rows(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

// The first value of the first row.
inline Value Single(Connection& connection, const std::string& sql)
{
    return Rows(connection, sql)->Field(0);
}

// What the call throws; an error without text if it throws nothing.
template <class Thrown = DatabaseError, class Call>
DatabaseError::Details Failure(Call call)
{
    try {
        call();
    } catch (const Thrown& error) {
        return error.Get();
    }
    return {};
}

}  // namespace kavelin::test
