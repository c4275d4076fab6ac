// What the commands share that send statements: the log, --show-sql, the progress line and Ctrl-C.
//
//   Work work({.showSql = true, .statements = 14});
//   ReportRun run(login, work.Connections(), work.Messages());
#pragma once

#include "cli/Interrupt.h"
#include "cli/ProgressLine.h"
#include "frame/Connection.h"
#include "host/HostConnection.h"
#include "host/HostPlatform.h"

#include <memory>
#include <string>

namespace kavelin::cli {

struct WorkOptions {
    bool showSql = false;
    int statements = 0;  // that the run will send, for the progress line; 0 if nobody knows
};

class Work {
  public:
    explicit Work(const WorkOptions& options = {});
    ~Work();
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    // Connections that are watched, and that Ctrl-C stops.
    host::ConnectionSource Connections() const;

    // Shows a report's messages on stderr.
    host::MessageSink Messages() const;

    // For the progress line, where no statement tells what goes on.
    void Show(const std::string& text);

    // To be called before something is written: the progress line goes, until the next statement or for good.
    void HideProgress() const;
    void EndProgress() const;

    // Throws CancelledError once Ctrl-C was pressed.
    void StopIfInterrupted() const;

    // The rows, which end with CancelledError once Ctrl-C was pressed. `rows` and this object must outlive
    // the result.
    std::unique_ptr<Recordset> Stoppable(Recordset& rows) const;

  private:
    std::shared_ptr<host::Cancellation> objCancellation;
    std::shared_ptr<ProgressLine> objProgress;  // null where stderr is no terminal or shows the statements
    host::StatementObservers lstObservers;
    Interrupt objInterrupt;
};

}  // namespace kavelin::cli
