// frame's Connection on a server, over ODBC.
#pragma once

#include "frame/Connection.h"

#include <memory>

namespace kavelin::odbc {

// A connection that is not open yet. Its connection string is that of ConnectionText.h.
//
// Every record set is read whole when it is opened, so that it stays readable whatever becomes of the
// connection. A batch ends at its first error. A connection that the server or the network ended is closed
// when a statement finds out, and never opened again by itself. Without SetConnectionTimeout the connection
// string's time-out counts, else 15 seconds; without SetCommandTimeout a statement takes as long as it takes.
std::shared_ptr<Connection> NewConnection();

}  // namespace kavelin::odbc
