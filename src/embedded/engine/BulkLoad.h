// Many rows into the tables of an account, all or nothing in each of its databases.
//
//   BulkLoad load(account);
//   BulkTable& ledger = load.Open("IA_Subsidiary", {"AutoID", "cInvCode", "iAInQuantity"});
//   BulkTable& periods = load.Open("vossystem..UA_Period", {...});
//   ledger.Append(row);
//   periods.Append(row);
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

// A table that takes rows, until its load ends or opens the table again.
class BulkTable {
  public:
    virtual ~BulkTable() = default;

    // One value a column, in the order of Open; empty counts as null. Throws BulkLoadError for a value that
    // the column does not take; the load can then only be given up.
    virtual void Append(std::span<const Value> row) = 0;
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

    // `x`, `tempdb..x` or `vossystem..x`. Columns that are not named get their default, the identity its next
    // number, others NULL. Any number of tables may be open; one that is opened again gets its further rows
    // behind those before. Throws DatabaseError for an unknown table or column.
    BulkTable& Open(const std::string& table, const std::vector<std::string>& columns);

    // Keeps all rows: in one transaction a database, the account's first. Throws DatabaseError, which leaves
    // the database that it came from as it was. The load is over.
    void Commit();

  private:
    struct Load;
    std::unique_ptr<Load> objLoad;
};

}  // namespace kavelin::embedded
