// A record set over values that a test writes down.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <utility>
#include <vector>

namespace kavelin::host {

class FixedRows : public Recordset {
  public:
    struct Column {
        std::string name, type;
    };

    FixedRows(std::vector<Column> columns, std::vector<std::vector<Value>> rows)
        : objColumns(std::move(columns)), objRows(std::move(rows))
    {
    }

    bool Eof() const override { return intRow >= objRows.size(); }
    void MoveNext() override { ++intRow; }
    void MoveFirst() override { intRow = 0; }
    std::int64_t RecordCount() const override { return static_cast<std::int64_t>(objRows.size()); }
    int FieldCount() const override { return static_cast<int>(objColumns.size()); }
    std::string FieldName(int field) const override { return objColumns.at(field).name; }
    std::string FieldType(int field) const override { return objColumns.at(field).type; }
    Value Field(int field) const override { return objRows.at(intRow).at(field); }
    void Close() override {}

  private:
    std::vector<Column> objColumns;
    std::vector<std::vector<Value>> objRows;
    std::size_t intRow = 0;
};

// Rows 1 to `count` of one int column "n", made while they are read.
class CountingRows : public Recordset {
  public:
    explicit CountingRows(std::int64_t count) : lngCount(count) {}

    bool Eof() const override { return lngRow > lngCount; }
    void MoveNext() override { ++lngRow; }
    void MoveFirst() override { lngRow = 1; }
    std::int64_t RecordCount() const override { return -1; }
    int FieldCount() const override { return 1; }
    std::string FieldName(int) const override { return "n"; }
    std::string FieldType(int) const override { return "int"; }
    Value Field(int) const override { return lngRow; }
    void Close() override {}

  private:
    std::int64_t lngCount;
    std::int64_t lngRow = 1;
};

inline Value Dec(std::string_view text)
{
    return *Decimal::FromText(text);
}

inline Value Day(int year, unsigned month, unsigned day, int seconds = 0, int milliseconds = 0)
{
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    return DateTime(std::chrono::sys_days(date) + std::chrono::seconds(seconds) +
                    std::chrono::milliseconds(milliseconds));
}

}  // namespace kavelin::host
