// Rows into one table through DuckDB's appender, within the transaction of a session.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/engine/DuckDb.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kavelin::embedded {

class TableAppender {
  public:
    // `columns` are the table's columns that the rows bring, in their order. Throws DuckError; DatabaseError
    // if the table has no such column.
    TableAppender(Session& session, const ObjectInfo& table, const std::vector<std::string>& columns);
    ~TableAppender();
    TableAppender(const TableAppender&) = delete;
    TableAppender& operator=(const TableAppender&) = delete;

    // Throws BulkLoadError, DuckError.
    void Append(std::span<const Value> row);

    // All rows are in the table, and the table is as it is then: columns with the facts that still hold.
    // Throws DuckError.
    ObjectInfo Finish();

  private:
    struct Column;
    struct Handles;
    void WriteRow(std::span<const Value> row);
    void Flush();

    ObjectInfo objTable;
    std::size_t intGiven;  // values a row
    std::vector<Column> objColumns;
    std::unique_ptr<Handles> objHandles;
    std::int64_t lngRows = 0;
    std::string strBuffer;
};

}  // namespace kavelin::embedded
