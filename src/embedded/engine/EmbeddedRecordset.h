// The rows of a statement as frame's Recordset.
#pragma once

#include "embedded/engine/BatchRunner.h"
#include "frame/Connection.h"

#include <memory>
#include <optional>

namespace kavelin::embedded {

// Shared with the connection, which takes the rows away when it closes: a forgotten recordset must not hold
// the account's file. Null inside: closed.
using SharedRows = std::shared_ptr<std::optional<RowSet>>;

class EmbeddedRecordset : public Recordset {
  public:
    // `rows` without a set: a record set without fields, which stands at its end.
    EmbeddedRecordset(SharedRows rows, CursorType type);

    bool Eof() const override;
    void MoveNext() override;
    void MoveFirst() override;
    std::int64_t RecordCount() const override;

    int FieldCount() const override;
    std::string FieldName(int field) const override;
    std::string FieldType(int field) const override;
    Value Field(int field) const override;
    using Recordset::Field;

    void Close() override;

  private:
    RowSet& Rows() const;
    const ResultColumn& ColumnAt(int field) const;

    SharedRows objRows;
    CursorType objType;
    std::int64_t lngRow = 0;
};

}  // namespace kavelin::embedded
