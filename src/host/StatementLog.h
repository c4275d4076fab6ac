// Watching what is sent to a database: a connection that tells observers of every statement, and the
// observers that write a log and show the statements.
#pragma once

#include "frame/Connection.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

struct StatementRecord {
    std::string sql;
    std::string connection;  // "account 1": what it is for and a number within the process
    double milliseconds = 0;
    std::int64_t rows = -1;                           // changed or given, -1 if not known
    std::optional<std::string> error = std::nullopt;  // its message
    bool connectionLost = false;                      // why it failed
};

// Told by the thread that runs the statement, before and after each.
class StatementObserver {
  public:
    virtual ~StatementObserver() = default;
    virtual void Begins(const std::string& /*sql*/, const std::string& /*connection*/) {}
    virtual void Ended(const StatementRecord& /*record*/) {}
};
using StatementObservers = std::vector<std::shared_ptr<StatementObserver>>;

// Stops a run from outside. Cancel may be called from any thread, but not from a signal handler.
class Cancellation {
  public:
    // Stops the statements that run now; those that would begin later fail with CancelledError, so that a
    // report that traps errors ends too. A statement that is just beginning may slip through: whoever waits
    // for the end calls again.
    void Cancel() noexcept;
    bool IsCancelled() const;

    // Lets statements begin again, for the cleaning up after a cancelled run.
    void Reset();

  private:
    friend class LoggingConnection;
    void Enter(Connection& connection, const std::string& sql);  // throws CancelledError
    void Leave(Connection& connection);

    mutable std::mutex objMutex;
    bool blnCancelled = false;
    std::vector<Connection*> lstRunning;
};

// Hands everything on to the connection that it wraps, and tells the observers of each statement.
class LoggingConnection : public Connection {
  public:
    // `cancellation` may be null.
    LoggingConnection(std::shared_ptr<Connection> inner, std::string name, StatementObservers observers,
                      std::shared_ptr<Cancellation> cancellation);

    void SetCursorLocation(CursorLocation location) override { cnnInner->SetCursorLocation(location); }
    void SetConnectionString(const std::string& text) override { cnnInner->SetConnectionString(text); }
    void SetConnectionTimeout(std::int32_t seconds) override { cnnInner->SetConnectionTimeout(seconds); }
    void SetCommandTimeout(std::int32_t seconds) override { cnnInner->SetCommandTimeout(seconds); }
    void Open(const std::string& user, const std::string& password, std::int32_t options) override
    {
        cnnInner->Open(user, password, options);
    }
    void Close() override { cnnInner->Close(); }
    ConnectionState State() const override { return cnnInner->State(); }
    std::int64_t Execute(const std::string& sql) override;
    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override;
    void Cancel() noexcept override { cnnInner->Cancel(); }

  private:
    template <class Run, class Rows>
    auto Watched(const std::string& sql, Run run, Rows rows);

    std::shared_ptr<Connection> cnnInner;
    std::string strName;
    StatementObservers lstObservers;
    std::shared_ptr<Cancellation> objCancellation;
};

// Appends a JSON line a statement:
//   {"sql": ..., "connection": ..., "ms": ..., "rows": ..., "error": ...}
// `rows` and `error` are null where there is none. A line is one write at the end of the file, so that
// several processes may share it.
class StatementLogFile : public StatementObserver {
  public:
    // Throws Error if the file cannot be opened for appending.
    explicit StatementLogFile(const std::string& path);
    ~StatementLogFile() override;
    StatementLogFile(const StatementLogFile&) = delete;
    StatementLogFile& operator=(const StatementLogFile&) = delete;

    // Throws Error if the line cannot be written: a log with holes is worse than a failed run.
    void Ended(const StatementRecord& record) override;

  private:
    std::string strPath;
    int lngFile = -1;
};

// Shows every statement as it begins, under a comment line with its number and connection.
class StatementPrinter : public StatementObserver {
  public:
    explicit StatementPrinter(std::ostream& out) : objOut(&out) {}
    void Begins(const std::string& sql, const std::string& connection) override;

  private:
    std::ostream* objOut;
    int lngCount = 0;
};

// The observer that KAVELIN_SQL_LOG asks for; null if it is not set.
std::shared_ptr<StatementObserver> LogFromEnvironment();

// What a statement does, in a few words on one line for a progress display: "select into NAME",
// "update NAME", else its beginning.
std::string DescribeStatement(std::string_view sql);

}  // namespace kavelin::host
