// Rows in memory as frame's Recordset.
#pragma once

#include "database/odbc/RowReader.h"
#include "frame/Connection.h"

#include <optional>

namespace kavelin::odbc {

class OdbcRecordset : public Recordset {
  public:
    OdbcRecordset(ResultRows rows, CursorType type) : objRows(std::move(rows)), enmType(type) {}

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
    const ResultRows& Rows() const;
    std::size_t IndexOf(int field) const;

    std::optional<ResultRows> objRows;  // nothing once closed
    CursorType enmType;
    std::size_t lngRow = 0;
};

}  // namespace kavelin::odbc
