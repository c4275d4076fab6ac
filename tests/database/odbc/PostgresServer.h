// A PostgreSQL server of the test program's own: made in a temporary folder, reached by a socket in it, gone
// with the program.
#pragma once

#include <memory>
#include <string>

namespace kavelin::test {

class PostgresServer {
  public:
    static constexpr const char* kUser = "kavelin";
    static constexpr const char* kPassword = "sesame-7Q{;";

    // The program's server, started when it is first asked for. Null where the driver or the server's
    // programs are missing; Missing() then tells what.
    static PostgresServer* Shared();
    static const std::string& Missing();

    // A server for a test that ends it.
    static std::unique_ptr<PostgresServer> New();

    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    // An ODBC string for psqlodbcw, without user and password.
    std::string ConnectionString() const;

    // Ends server and sessions at once, as a failing machine would.
    void Kill();

  private:
    PostgresServer();

    std::string strFolder;
    int lngProcess = 0;
};

}  // namespace kavelin::test
