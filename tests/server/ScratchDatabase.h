// A database on a server that a test may fill, and that is gone or empty again afterwards.
#pragma once

#include "frame/Connection.h"
#include "host/AccountLogin.h"
#include "host/HostConnection.h"
#include "snapshot/CopyPlan.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::test::server {

struct ServerAccess {
    std::string connectionString;  // without database and password
    std::string password;
    std::string database;  // one that is there and empty; empty: databases are made
};

class ScratchDatabase {
  public:
    // Makes the database, or takes the one named. Makes the database VosSystem where the server has none.
    // Throws Error for a database that is not empty, DatabaseError.
    ScratchDatabase(const ServerAccess& access, const host::ConnectionSource& connections);

    // Tidies up if that has not been done; what goes wrong then is lost.
    ~ScratchDatabase();
    ScratchDatabase(const ScratchDatabase&) = delete;
    ScratchDatabase& operator=(const ScratchDatabase&) = delete;

    const std::string& Name() const { return strName; }

    // The number under which the system database has this account's rows; no other account's.
    const std::string& AccountId() const { return strAccountId; }

    // The login of the server for this database.
    host::AccountLogin Login() const;

    // Drops what was made: the database, or all that lies in it, and the rows of the system database, with
    // that if it was made. Gives a line for each thing that could not be dropped.
    std::vector<std::string> TidyUp();

  private:
    std::shared_ptr<Connection> Open(const std::string& database) const;
    void DropObjects(Connection& connection, std::vector<std::string>& left) const;
    void DropSystemRows(Connection& connection, std::vector<std::string>& left) const;

    ServerAccess objAccess;
    host::ConnectionSource objConnections;
    std::string strName;
    std::string strAccountId;
    bool blnMadeDatabase = false;
    bool blnMadeSystem = false;
    bool blnHadPeriods = false;
    bool blnTidy = true;
};

}  // namespace kavelin::test::server
