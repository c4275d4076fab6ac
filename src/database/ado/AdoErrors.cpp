#include "database/ado/AdoErrors.h"

#include "frame/Guards.h"

#include <memory>

namespace kavelin::ado {

namespace {

// The first of the connection's errors, null if it keeps none. ADO keeps them until the next failure of the
// provider, so they may be of an earlier one.
std::shared_ptr<LateBound> FirstError(LateBound& connection)
{
    const auto errors = ObjectOf<LateBound>(connection.Get("Errors"), "Errors");
    if (ToInt32(ValueOf(errors->Get("Count"), "Errors.Count")) == 0)
        return nullptr;
    return ObjectOf<LateBound>(errors->Call("Item", {Value(0)}), "Errors.Item");
}

}  // namespace

DatabaseError::Details DetailsOf(const Error& error, LateBound& connection, const std::string& statement)
{
    DatabaseError::Details details;
    details.strMessage = error.what();
    details.strStatement = statement;
    // A connection that a host made up may keep no errors.
    IgnoreErrors([&] {
        const auto first = FirstError(connection);
        if (!first || ToText(ValueOf(first->Get("Description"), "Description")) != details.strMessage)
            return;
        details.strSqlState = ToText(ValueOf(first->Get("SQLState"), "SQLState"));
        details.lngNumber = ToInt32(ValueOf(first->Get("NativeError"), "NativeError"));
    });
    return details;
}

bool IsCancelled(const DatabaseError::Details& details)
{
    return details.strSqlState == "HY008";
}

}  // namespace kavelin::ado
