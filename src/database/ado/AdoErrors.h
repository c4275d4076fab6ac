// Errors of ADO objects as errors of the database.
#pragma once

#include "frame/Errors.h"
#include "frame/host/HostObject.h"

#include <string>
#include <utility>

namespace kavelin::ado {

// What `error`, thrown by an object of `connection`, says: its text, and SQLSTATE and the server's number where
// the connection's Errors tell them of the same failure. `statement` is what was sent, empty for none.
DatabaseError::Details DetailsOf(const Error& error, LateBound& connection, const std::string& statement);

// Whether the statement was stopped, by Connection::Cancel.
bool IsCancelled(const DatabaseError::Details& details);

// Runs `action`; an Error of the host becomes a `Failure` with these details, or a CancelledError.
template <class Failure, class Action>
auto Translated(LateBound& connection, const std::string& statement, Action&& action)
{
    try {
        return action();
    } catch (const Error& error) {
        DatabaseError::Details details = DetailsOf(error, connection, statement);
        if (IsCancelled(details))
            throw CancelledError(std::move(details));
        throw Failure(std::move(details));
    }
}

}  // namespace kavelin::ado
