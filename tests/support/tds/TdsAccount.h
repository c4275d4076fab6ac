// A new embedded account in a folder of its own, served as an SQL Server serves one. It has no tables yet: a
// test makes those that it needs.
#pragma once

#include "frame/Connection.h"
#include "support/TestFolder.h"
#include "support/tds/TdsServer.h"

#include <memory>
#include <string>

namespace kavelin::test::tds {

class TdsAccount {
  public:
    // `options.account` is set here.
    explicit TdsAccount(ServerOptions options = {});
    ~TdsAccount();

    TdsServer& Server() { return *objServer; }

    // An embedded connection to the same account, open, that the server knows nothing of.
    Connection& Inside() { return *cnnInside; }

    // Connection strings with user and password of the server's first login, in the form of the provider,
    // "Provider=...;Data Source=tcp:127.0.0.1,...", and of FreeTDS's ODBC driver.
    std::string ProviderText() const;
    std::string OdbcText() const;

  private:
    TestFolder objFolder;
    std::unique_ptr<TdsServer> objServer;
    std::unique_ptr<Connection> cnnInside;
};

}  // namespace kavelin::test::tds
