// Connections of a host: its own object shaped like ADODB.Connection, or a connection of the library.
#pragma once

#include "frame/Connection.h"
#include "frame/host/ConnectionObject.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <string_view>

namespace kavelin::automation {

// The connection that a host gave. Throws Error, naming `what`, if it is none. Record sets of a late-bound one
// are made by the thread's platform.
std::shared_ptr<Connection> ConnectionOf(const Variant& connection, std::string_view what);

// A host's object that took the place of `before`. Throws Error if it is no connection.
std::shared_ptr<ConnectionObject> ConnectionLike(const ConnectionObject& before, const HostObjectPtr& object);

// The ADO object behind a connection; null where there is none.
HostObjectPtr AdoObjectOf(Connection& connection);

// What a host gets for the account's connection: the ADO object, or gcnnAccount as a ConnectionObject. Nothing
// for another connection without an object.
HostObjectPtr ObjectOfAccount(Connection& account);

}  // namespace kavelin::automation
