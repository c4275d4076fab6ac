// The rows of a table in pieces, so that a table of any size passes through little memory.
#pragma once

#include "frame/Connection.h"
#include "frame/Value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::snapshot {

struct PagedTable {
    std::string name;
    std::vector<std::string> columns;
    std::string pageColumn;  // one of the table's; the pages follow its order, as the database sorts it
    std::string condition;   // of the rows wanted; empty: all
};

// The greatest value of the page column among the next `rows` rows, in a set of one row; null behind the last
// row. `after` is null for the first page.
std::string SelectPageEnd(const PagedTable& table, const Value& after, std::int64_t rows);

// The rows behind `after` up to `end`; without an end those whose page column is null.
std::string SelectPage(const PagedTable& table, const Value& after, const Value& end);

class TablePages {
  public:
    // A page has `rows` rows, and more if several of them have the same value in the page column: they all
    // come in one.
    TablePages(Connection& connection, PagedTable table, std::int64_t rows);

    // The next page, which may be empty; null behind the last one. Throws DatabaseError.
    std::unique_ptr<Recordset> Next();

  private:
    std::unique_ptr<Recordset> Open(const std::string& sql);

    Connection& cnnSource;
    PagedTable objTable;
    std::int64_t lngRows;
    Value varAfter = Value::Null();
    bool blnBegun = false;
};

}  // namespace kavelin::snapshot
