// A report run by the host on an account: one of the demo company, or a small one of the test's own.
#pragma once

#include "demo/profiles/Profile.h"
#include "host/ReportRun.h"
#include "support/TestFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::test {

// The test program's own, with few lines; goes with the program.
std::string AccountOf(const demo::Profile& profile);

// An account with the whole schema, and rows that the test gives it. Goes with the object.
class SmallAccount {
  public:
    SmallAccount();

    void Run(const std::string& sql);
    const std::string& Path() const { return strPath; }

  private:
    TestFolder objFolder;
    std::string strPath;
};

// A copy of a profile's account, for a test that changes it. Goes with the object.
class AccountCopy {
  public:
    explicit AccountCopy(const demo::Profile& profile);
    ~AccountCopy();
    AccountCopy(const AccountCopy&) = delete;
    AccountCopy& operator=(const AccountCopy&) = delete;

    const std::string& Path() const { return strPath; }

  private:
    std::string strPath;
};

// The login that the host makes for the account in `path`.
host::AccountLogin LoginTo(const std::string& path, const std::string& language,
                           const std::string& user = "");

// Connections whose statements go into the log of the test run.
host::ConnectionSource LoggedConnections();

class AccountReport {
  public:
    // Runs the report on the account in `path`. `settings` are KEY=VALUE as on the command line.
    AccountReport(const std::string& path, const std::string& report,
                  const std::vector<std::string>& settings, const std::string& language = "zh-CN");
    // On the account of a profile.
    AccountReport(const demo::Profile& profile, const std::string& report,
                  const std::vector<std::string>& settings);

    // Runs it once more, with other values.
    void RunAgain(const std::vector<std::string>& settings);

    // Changes the account.
    void Execute(const std::string& sql) { objRun->Account().Execute(sql); }

    // A query on the account; "{}" in it stands for the result table. Fields between " | ", rows in lines.
    std::string Rows(const std::string& sql);
    std::vector<std::vector<std::string>> Table(const std::string& sql);

    const std::vector<host::ShownMessage>& Messages() const { return objRun->Messages(); }

  private:
    std::string strReport;
    std::unique_ptr<host::ReportRun> objRun;
};

std::vector<std::string> ProfileNames();

// For test names: "goodssent" of "goods-sent".
std::string PlainName(std::string name);

}  // namespace kavelin::test
