// A recording host on a small embedded account of its own.
#pragma once

#include "support/RecordingHost.h"

#include "embedded/EmbeddedAccount.h"

#include <filesystem>
#include <memory>
#include <string>

namespace kavelin::test {

class AccountHost : public RecordingHost {
  public:
    // Makes the account in a folder of its own, which goes with the host. The login leads to it.
    AccountHost();
    ~AccountHost();

    // Runs T-SQL on the account, outside of what is recorded.
    void Run(const std::string& sql);

    // The connection of the two around, open.
    Connection& Outside() { return *cnnOutside; }

    // Whether the account database has a table of that name.
    bool HasTable(const std::string& name);

    // The rows of a query: the fields' names in the first line, fields between commas, nothing for a null, ""
    // for an empty text, decimals with all digits of their scale.
    std::string Query(const std::string& sql);

    // Fails the running test unless the query gives the content of tests/results/NAME.csv.
    void ExpectRows(const std::string& sql, const std::string& name);

  private:
    std::filesystem::path objFolder;
    std::shared_ptr<embedded::EmbeddedAccount> objAccount;  // keeps the database open between connections
    std::unique_ptr<Connection> cnnOutside;
};

}  // namespace kavelin::test
