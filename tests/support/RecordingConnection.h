// Connections and record sets that write all that is done to them into the event log.
#pragma once

#include "support/EventLog.h"
#include "support/ScriptedRecordset.h"
#include "support/StatementLog.h"

#include "frame/Connection.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::test {

// What all connections of a host share.
struct ConnectionScript {
    // Rows by statement text; every other statement gives none.
    std::map<std::string, Rows> rows;

    // Rows by the beginning of a statement, where no whole text is known.
    std::map<std::string, Rows> rowsByStart;

    // Statements that fail, each time, with a DatabaseError of this message.
    std::map<std::string, std::string> failures;

    // The `failAtStatement`-th statement or record set of the host fails, from 1; 0 for none.
    std::size_t failAtStatement = 0;
    // The connection of this number fails to open; 0 for none.
    int failAtOpen = 0;

    std::vector<SentStatement> sent;  // also those that failed
    int connections = 0;              // made so far
    int recordsets = 0;               // opened so far

    // Makes the real connection behind each recording one; null where no database is needed.
    std::function<std::unique_ptr<Connection>()> makeInner;
};

// The lines, for connection number 1:
//   #1.CursorLocation = 3
//   #1.ConnectionString = 'TEXT'           also ConnectionTimeout, CommandTimeout
//   #1.Open user='' password='' options=-1
//   #1.Execute STATEMENT                   CR LF in it shown as "⏎"
//   #1.OpenRecordset @1 location=3 type=0 lock=1 STATEMENT
//   @1.Field NAME                          also RecordCount, MoveNext, MoveFirst, Close
//   #1.Close
// Looking at a state, at an end or at names of fields writes nothing.
class RecordingConnection : public Connection {
  public:
    RecordingConnection(std::shared_ptr<EventLog> events, std::shared_ptr<ConnectionScript> script);

    int Number() const { return lngNumber; }

    void SetCursorLocation(CursorLocation location) override;
    void SetConnectionString(const std::string& text) override;
    void SetConnectionTimeout(std::int32_t seconds) override;
    void SetCommandTimeout(std::int32_t seconds) override;
    void Open(const std::string& user, const std::string& password, std::int32_t options) override;
    void Close() override;
    ConnectionState State() const override { return objState; }
    std::int64_t Execute(const std::string& sql) override;
    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override;
    void Cancel() noexcept override;

  private:
    void Note(const std::string& what);
    void FailIfPlanned(const std::string& sql) const;
    template <class Run, class RowCount>
    auto Send(const std::string& sql, Run run, RowCount rowCount);

    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<ConnectionScript> objScript;
    std::unique_ptr<Connection> cnnInner;  // null for a made-up connection
    int lngNumber;
    ConnectionState objState = ConnectionState::Closed;
};

}  // namespace kavelin::test
