// One batch on its way through the driver, result by result.
#pragma once

#include "database/odbc/CancelGate.h"
#include "database/odbc/Handles.h"
#include "database/odbc/Link.h"
#include "frame/Errors.h"

#include <cstdint>
#include <string>

namespace kavelin::odbc {

// Every failure throws DatabaseError with the statement's text, CancelledError after a Cancel. What still
// waits on the server when a run ends is given up. A connection that is found gone is marked as lost.
class StatementRun {
  public:
    // `timeout` in seconds, 0 waits for ever.
    StatementRun(Link& link, CancelGate& gate, std::int32_t timeout, const std::string& sql);
    ~StatementRun();
    StatementRun(const StatementRun&) = delete;
    StatementRun& operator=(const StatementRun&) = delete;

    // Sends the batch; the run then stands on its first result.
    void Execute();

    // Goes to the next result; false behind the last.
    bool NextResult();

    int ColumnCount() const;

    // The rows that the statement of this result changed, -1 if it changes none.
    std::int64_t RowsChanged() const;

    // Throws unless `result`, of the call made last, is a success of any kind or tells that there is no more.
    void Check(short result) const;

    [[noreturn]] void Fail(const std::string& message, const std::string& sqlState) const;

    void* Get() const { return objStatement.Get(); }
    const ServerFacts& Server() const { return objLink.Server(); }

  private:
    // By what the last call on the handle left.
    [[noreturn]] void FailBy(const Handle& handle) const;

    Link& objLink;
    CancelGate& objGate;
    const std::string& strSql;
    Handle objStatement;
};

}  // namespace kavelin::odbc
