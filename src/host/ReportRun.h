// A report from values to result table.
#pragma once

#include "frame/Connection.h"
#include "host/FailedStatements.h"
#include "host/FilterInput.h"
#include "host/HostCallArgs.h"
#include "host/HostFilter.h"
#include "host/ReportManager.h"
#include "host/Reports.h"
#include "host/Session.h"

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
    // As Session.
    ReportRun(AccountLogin login, ConnectionSource connections, MessageSink onMessage = {});

    // Drops the result table, ignoring every error.
    ~ReportRun();
    ReportRun(const ReportRun&) = delete;
    ReportRun& operator=(const ReportRun&) = delete;

    // Goes through the report's dialog and runs it; its result table stays until the next Run or the end of
    // this object. Throws what the dialog and the report throw, and ReportError if it ended without its
    // result table.
    void Run(const Report& report, const FilterInput& input);

    // Runs the report and opens what is behind a row of its result, counted from 1 in the report's order, by
    // an action of its toolbar; `onShow` takes it. What could not be opened stands in Messages. Throws as
    // Run, and UsageError for a row that is not there.
    void RunAndOpen(const Report& report, const FilterInput& input, std::int64_t row,
                    const std::string& action, ViewerSink onShow);

    // Runs the report and a command of its toolbar that draws it again; the result is that of the drawing.
    // Throws as Run, and Error for a command that draws nothing.
    void RunAndDrawAgain(const Report& report, const FilterInput& input, const std::string& action);

    // A name of its own for every run, letters, digits and `_` only. Empty before the first run.
    const std::string& TableName() const { return strTable; }

    // The rows of the latest run in the report's order. Throws DatabaseError.
    std::unique_ptr<Recordset> OpenResult();

    // Columns that the report's table shows, as TableColumns::names, without those that the latest run took
    // out of the view.
    std::string TableColumns() const { return objManager->VisibleColumns(); }

    // What the latest run is about: periods, and whatever else was asked for, in the login's language.
    const std::string& Subject() const { return strSubject; }

    // What the report showed during the latest run.
    const std::vector<ShownMessage>& Messages() const { return objSession.Messages(); }

    // The host's own connection, which is open.
    Connection& Account() { return objSession.Account(); }

    // The login that reports get, with year and month filled in.
    LoginContext& Login() { return *objSession.Login(); }

  private:
    using Afterwards = std::function<void(LateBound& report)>;

    // `afterwards` runs while the state of the report's thread is as the report left it.
    void Run(const Report& report, const FilterInput& input, const Afterwards& afterwards);
    // Has the result made; the object that did it.
    std::shared_ptr<LateBound> MakeResult(const Report& report, const std::shared_ptr<HostFilter>& filter);
    void OpenRow(LateBound& report, std::int64_t row, const std::string& action);
    void DrawAgain(LateBound& report, const std::string& action);
    void DropResultQuiet() noexcept;  // also after a cancelled run

    // Throws ReportError where the result is missing, or a statement failed of which nobody was told: the figures
    // would not be whole.
    void ExpectWholeResult();

    std::shared_ptr<FailedStatements> objFailed = std::make_shared<FailedStatements>();
    Session objSession;
    const Report* objReport = nullptr;
    std::string strTable;
    std::string strSubject;
    std::shared_ptr<ReportManager> objManager;  // of the latest run; null before it
    std::shared_ptr<HostCallArgs> objCall;      // while a report of the class runs
    std::function<void()> objDraw;              // what RefreshList does; empty: nothing
};

}  // namespace kavelin::host
