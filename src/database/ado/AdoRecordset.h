// Record set over an object shaped like ADODB.Recordset.
#pragma once

#include "frame/Connection.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <string>

namespace kavelin::ado {

class AdoRecordset : public Recordset {
  public:
    // Both open. The connection is asked for details of failures.
    AdoRecordset(std::shared_ptr<LateBound> recordset, std::shared_ptr<LateBound> connection)
        : objRecordset(std::move(recordset)), objConnection(std::move(connection))
    {
    }

    bool Eof() const override;
    void MoveNext() override;
    void MoveFirst() override;
    std::int64_t RecordCount() const override;
    int FieldCount() const override;
    std::string FieldName(int field) const override;
    std::string FieldType(int field) const override;
    Value Field(int field) const override;
    void Close() override;

  private:
    Variant Read(LateBound& object, std::string_view member) const;
    void Call(std::string_view member) const;
    LateBound& Fields() const;
    std::shared_ptr<LateBound> FieldAt(int field) const;

    std::shared_ptr<LateBound> objRecordset;  // null once it is closed
    std::shared_ptr<LateBound> objConnection;
    mutable std::shared_ptr<LateBound> objFields;
};

// Whether the bit for "open" stands in the State of a connection or record set.
bool IsOpen(LateBound& object);

}  // namespace kavelin::ado
