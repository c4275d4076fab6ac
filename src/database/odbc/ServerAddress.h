// Where a server listens, from the forms in which connection strings name it.
#pragma once

#include <string>
#include <string_view>

namespace kavelin::odbc {

struct ServerAddress {
    std::string host;      // a name, or an address without brackets
    int port = 0;          // 0: none named; the usual one is 1433
    std::string instance;  // empty: the server's only or first one

    bool operator==(const ServerAddress&) const = default;
};

// `host`, `host,1433`, `tcp:host,1433`, `host\instance`, `[::1],1433`; `.` and `(local)` are this machine.
// Throws ConnectionError for an empty host, a port that is none, and a protocol other than tcp.
ServerAddress ParseServer(std::string_view text);

}  // namespace kavelin::odbc
