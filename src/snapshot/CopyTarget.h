// Where a copy goes.
#pragma once

#include "embedded/EmbeddedAccount.h"
#include "frame/Connection.h"
#include "frame/Errors.h"
#include "frame/Value.h"
#include "snapshot/Schema.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kavelin::snapshot {

// A value that its column does not take.
class BadCell : public Error {
  public:
    BadCell(std::string column, const std::string& message) : Error(message), strColumn(std::move(column)) {}
    const std::string& Column() const { return strColumn; }

  private:
    std::string strColumn;
};

// Rows on their way into one table. What is not finished may have left rows there or not.
class RowWriter {
  public:
    virtual ~RowWriter() = default;

    // One value a column, in the order of CopyTarget::Open. Throws BadCell, DatabaseError.
    virtual void Append(std::span<const Value> row) = 0;

    // All rows are in the table. Throws DatabaseError.
    virtual void Finish() = 0;
};

using Columns = std::vector<const embedded::ColumnInfo*>;

class CopyTarget {
  public:
    virtual ~CopyTarget() = default;

    // Open.
    virtual Connection& Account() = 0;

    // The table must be there. At most one writer at a time. Throws DatabaseError.
    virtual std::unique_ptr<RowWriter> Open(const SchemaObject& table, const Columns& columns) = 0;

    // Whether its views may give way to tables: those of an account that the scripts of the schema made.
    virtual bool MayDropViews() const = 0;
};

// Rows go past the T-SQL, many at a time; a table has all of them or none.
std::unique_ptr<CopyTarget> EmbeddedTarget(std::shared_ptr<Connection> connection,
                                           std::shared_ptr<embedded::EmbeddedAccount> account);

// Rows go as insert statements, which SQL Server takes from 2008 on.
std::unique_ptr<CopyTarget> ServerTarget(std::shared_ptr<Connection> connection);

}  // namespace kavelin::snapshot
