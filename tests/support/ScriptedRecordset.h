// Rows made up by a test.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <vector>

namespace kavelin::test {

struct Rows {
    std::vector<std::string> fields;
    std::vector<std::vector<Value>> rows;
};

class ScriptedRecordset : public Recordset {
  public:
    // A forward-only set doesn't know its count and can't be begun again.
    ScriptedRecordset(Rows rows, CursorType type) : objRows(std::move(rows)), objType(type) {}

    bool Eof() const override { return lngRow >= objRows.rows.size(); }
    void MoveNext() override;
    void MoveFirst() override;
    std::int64_t RecordCount() const override;
    int FieldCount() const override { return static_cast<int>(objRows.fields.size()); }
    std::string FieldName(int field) const override
    {
        return objRows.fields.at(static_cast<std::size_t>(field));
    }
    std::string FieldType(int field) const override;
    Value Field(int field) const override;
    void Close() override {}

  private:
    Rows objRows;
    CursorType objType;
    std::size_t lngRow = 0;
};

}  // namespace kavelin::test
