// Connection over an object shaped like ADODB.Connection, whatever makes it: the real one, or a host's own.
#pragma once

#include "frame/Connection.h"
#include "frame/host/HostObject.h"

#include <functional>
#include <memory>
#include <string>

namespace kavelin::ado {

// Makes an object shaped like ADODB.Recordset, not open.
using RecordsetMaker = std::function<std::shared_ptr<LateBound>()>;

class AdoConnection : public Connection {
  public:
    AdoConnection(std::shared_ptr<LateBound> connection, RecordsetMaker makeRecordset);

    // The object itself, for handing on.
    const std::shared_ptr<LateBound>& Object() const { return objConnection; }
    // A connection over another object that takes this one's place.
    std::shared_ptr<AdoConnection> Over(std::shared_ptr<LateBound> connection) const;

    void SetCursorLocation(CursorLocation location) override;
    void SetConnectionString(const std::string& text) override;
    void SetConnectionTimeout(std::int32_t seconds) override;
    void SetCommandTimeout(std::int32_t seconds) override;
    void Open(const std::string& user, const std::string& password, std::int32_t options) override;
    void Close() override;
    ConnectionState State() const override;
    std::int64_t Execute(const std::string& sql) override;
    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override;
    // From another thread only where the object itself may be called from there.
    void Cancel() noexcept override;

  private:
    std::shared_ptr<LateBound> objConnection;
    RecordsetMaker objMakeRecordset;
};

}  // namespace kavelin::ado
