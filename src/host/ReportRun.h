// A report from values to result table.
#pragma once

#include "frame/Connection.h"
#include "host/Config.h"
#include "host/FilterInput.h"
#include "host/HostConnection.h"
#include "host/HostPlatform.h"
#include "host/Reports.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::host {

// An account with everything that a login needs, passwords among it.
struct AccountLogin {
    std::string connectionString;
    std::string accountId = "001";
    std::string user = "demo";
    std::string password;
    std::string language = "zh-CN";
    int year = 0;   // 0: the account's latest
    int month = 0;  // likewise
    std::map<std::string, UserRights> users;
    std::filesystem::path settingsFile;
};

// The login that the settings give for the account.
AccountLogin LoginFor(const Config& config, const AccountSettings& account);

// Opens the account at construction and keeps it open, so that an embedded account stays loaded between
// runs. Runs on the thread that calls Run, one at a time.
class ReportRun {
  public:
    // Throws ConnectionError; DatabaseError if the account's periods cannot be read.
    ReportRun(AccountLogin login, ConnectionSource connections, MessageSink onMessage = {});

    // Drops the result table, ignoring every error.
    ~ReportRun();
    ReportRun(const ReportRun&) = delete;
    ReportRun& operator=(const ReportRun&) = delete;

    // Runs the report; its result table stays until the next Run or the end of this object. Throws what
    // the report throws, and ReportError if it ended without its result table.
    void Run(const Report& report, const FilterInput& input);

    // A name of its own for every run, letters, digits and `_` only. Empty before the first run.
    const std::string& TableName() const { return strTable; }

    // The rows of the latest run in the report's order. Throws DatabaseError.
    std::unique_ptr<Recordset> OpenResult();

    // What the report showed during the latest run.
    const std::vector<ShownMessage>& Messages() const { return lstMessages; }

    // The host's own connection, which is open.
    Connection& Account() { return *cnnHost; }

    // The login that reports get, with year and month filled in.
    LoginContext& Login() { return *objLogin; }

  private:
    void DropResultQuiet() noexcept;  // also after a cancelled run

    ConnectionSource objConnections;
    std::shared_ptr<Connection> cnnHost;
    std::shared_ptr<HostLogin> objLogin;
    std::shared_ptr<HostPlatform> objPlatform;
    MessageSink objOnMessage;
    std::vector<ShownMessage> lstMessages;
    const Report* objReport = nullptr;
    std::string strTable;
};

}  // namespace kavelin::host
