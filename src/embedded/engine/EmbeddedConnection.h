// frame's Connection on an embedded account.
#pragma once

#include "frame/Connection.h"

#include <memory>
#include <string>

namespace kavelin::embedded {

// The connection string is that of ConnectionString.h. An embedded account knows no users, so user and
// password are taken and not looked at; so are the time-outs, since Cancel stops a statement at any time.
// The destructor closes; what Close would throw is lost then.
class EmbeddedConnection : public Connection {
  public:
    EmbeddedConnection();
    ~EmbeddedConnection() override;
    EmbeddedConnection(const EmbeddedConnection&) = delete;
    EmbeddedConnection& operator=(const EmbeddedConnection&) = delete;

    void SetCursorLocation(CursorLocation location) override;
    void SetConnectionString(const std::string& text) override;
    void SetConnectionTimeout(std::int32_t seconds) override;
    void SetCommandTimeout(std::int32_t seconds) override;

    void Open(const std::string& user, const std::string& password, std::int32_t options) override;

    // Its record sets close with it, its `#` tables go. The last connection to an account moves the tables
    // that are still in memory to the file; throws DatabaseError if that fails, the connection is closed
    // all the same.
    void Close() override;
    ConnectionState State() const override;

    std::int64_t Execute(const std::string& sql) override;

    // The first rows of the batch, all of which is run. If no statement gives rows: a set without fields.
    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override;

    void Cancel() noexcept override;

    // What the batch is taken to mean and the DuckDB statements that it becomes, for a reader, see Explain.h.
    // Nothing is run. Throws DatabaseError.
    std::string Explain(const std::string& sql);

  private:
    struct Opened;
    Opened& Required() const;

    std::string strConnection;
    std::unique_ptr<Opened> objOpened;  // null while closed
    // Cancel comes from another thread, when the connection may just be closing.
    struct CancelGuard;
    std::unique_ptr<CancelGuard> objGuard;
};

}  // namespace kavelin::embedded
