// A report from values to result table.
#pragma once

#include "frame/Connection.h"
#include "host/AccountLogin.h"
#include "host/FilterInput.h"
#include "host/HostConnection.h"
#include "host/HostPlatform.h"
#include "host/Reports.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::host {

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

    // Runs the report and opens what is behind a row of its result, counted from 1 in the report's order, by
    // an action of its toolbar; `onShow` takes it. What could not be opened stands in Messages. Throws as
    // Run, and UsageError for a row that is not there.
    void RunAndOpen(const Report& report, const FilterInput& input, std::int64_t row,
                    const std::string& action, ViewerSink onShow);

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
    using Afterwards = std::function<void(LateBound& report)>;

    // `afterwards` runs while the state of the report's thread is as the report left it.
    void Run(const Report& report, const FilterInput& input, const Afterwards& afterwards);
    void OpenRow(LateBound& report, std::int64_t row, const std::string& action);
    void DropResultQuiet() noexcept;  // also after a cancelled run

    ConnectionSource objConnections;
    std::shared_ptr<Connection> cnnHost;
    std::shared_ptr<HostLogin> objLogin;
    std::shared_ptr<HostPlatform> objPlatform;
    MessageSink objOnMessage;
    ViewerSink objOnShow;
    std::vector<ShownMessage> lstMessages;
    const Report* objReport = nullptr;
    std::string strTable;
};

}  // namespace kavelin::host
