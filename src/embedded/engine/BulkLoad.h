// Many rows into the tables of an account, all or nothing in each of its databases.
//
//   BulkLoad load(account);
//   load.Begin("IA_Subsidiary", {"AutoID", "cInvCode", "iAInQuantity"});
//   load.Append(row);
//   load.Begin("vossystem..UA_Period", {...});
//   ...
//   load.Commit();
#pragma once

#include "frame/Errors.h"
#include "frame/Value.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kavelin::embedded {

class EmbeddedAccount;

// A row that the table does not take.
class BulkLoadError : public DatabaseError {
  public:
    BulkLoadError(Details details, std::string table, std::string column, std::int64_t row)
        : DatabaseError(std::move(details)),
          strTable(std::move(table)),
          strColumn(std::move(column)),
          lngRow(row)
    {
    }

    const std::string& Table() const { return strTable; }
    const std::string& Column() const { return strColumn; }  // empty if it is not one column's fault
    std::int64_t Row() const { return lngRow; }  // of those appended to the table, from 1; 0 if of none

  private:
    std::string strTable;
    std::string strColumn;
    std::int64_t lngRow;
};

class BulkLoad {
  public:
    // Keeps the account open. Tables still in memory move to the file first, so that the rows are written
    // once. Throws DatabaseError.
    explicit BulkLoad(const EmbeddedAccount& account);
    // Without Commit nothing was loaded.
    ~BulkLoad();
    BulkLoad(const BulkLoad&) = delete;
    BulkLoad& operator=(const BulkLoad&) = delete;

    // What is appended from now on goes into that table: `x`, `tempdb..x` or `vossystem..x`. Columns that are
    // not named get their default, the identity its next number, others NULL. A table may come again.
    // Throws DatabaseError for an unknown table or column.
    void Begin(const std::string& table, const std::vector<std::string>& columns);

    // One value a column, in the order of Begin; empty counts as null. Throws BulkLoadError for a value that
    // the column does not take; the load can then only be given up. Throws Error before the first Begin.
    void Append(std::span<const Value> row);

    // Keeps all rows: in one transaction a database, the account's first. Throws DatabaseError, which leaves
    // the database that it came from as it was. The load is over.
    void Commit();

  private:
    struct Load;
    std::unique_ptr<Load> objLoad;
};

}  // namespace kavelin::embedded
