// A few rows of text that the program itself lists, in the form in which tables are written.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <utility>
#include <vector>

namespace kavelin::cli {

class TextRows : public Recordset {
  public:
    using Row = std::vector<std::string>;

    TextRows(Row names, std::vector<Row> rows) : strNames(std::move(names)), lstRows(std::move(rows)) {}

    bool Eof() const override { return intRow >= lstRows.size(); }
    void MoveNext() override { ++intRow; }
    void MoveFirst() override { intRow = 0; }
    std::int64_t RecordCount() const override { return static_cast<std::int64_t>(lstRows.size()); }
    int FieldCount() const override { return static_cast<int>(strNames.size()); }
    std::string FieldName(int field) const override { return strNames.at(field); }
    std::string FieldType(int) const override { return "nvarchar(4000)"; }
    Value Field(int field) const override { return lstRows.at(intRow).at(field); }
    using Recordset::Field;
    void Close() override {}

  private:
    Row strNames;
    std::vector<Row> lstRows;
    std::size_t intRow = 0;
};

// Writes all of them to stdout as a table without a count.
void WriteList(const TextRows::Row& names, std::vector<TextRows::Row> rows);

}  // namespace kavelin::cli
