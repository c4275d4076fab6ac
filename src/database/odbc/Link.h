// An open connection to a server.
#pragma once

#include "database/odbc/ColumnPlan.h"
#include "database/odbc/Handles.h"

#include <cstdint>
#include <string>

namespace kavelin::odbc {

class Link {
  public:
    // Connects by an ODBC string; `timeout` in seconds, 0 waits for ever. The password is the one in the
    // string, and is kept out of every message. Throws ConnectionError.
    Link(const std::string& odbcText, const std::string& password, std::int32_t timeout);
    ~Link();
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    const Handle& Connection() const { return objConnection; }
    const std::string& Password() const { return strPassword; }
    const ServerFacts& Server() const { return objServer; }

    // Whether the driver knows the connection to be gone.
    bool IsDead() const;

    // Notes that a statement found the connection gone. Nothing can be done with it any more but to drop it.
    void MarkLost() { blnLost = true; }
    bool IsLost() const { return blnLost; }

  private:
    void ReadServerFacts();

    Handle objEnvironment;
    Handle objConnection;
    std::string strPassword;
    ServerFacts objServer;
    bool blnLost = false;
};

}  // namespace kavelin::odbc
