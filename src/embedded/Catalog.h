// What the front end knows of tables and views: T-SQL's view of them, which DuckDB does not keep
// (lengths, identity columns, nullability of results), beside their names in DuckDB.
#pragma once

#include "embedded/SqlType.h"
#include "embedded/TextFacts.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

// The databases that every connection sees, and the connection's own tables.
enum class Database { Account, System, Tempdb, Connection };

// A column of a table or view, named for others to look it up.
struct ColumnOrigin {
    Database database;
    std::string object, column;

    bool operator==(const ColumnOrigin&) const = default;
};

struct ColumnInfo {
    std::string name;  // as declared
    SqlType type;
    bool nullable = true;
    bool identity = false;
    std::optional<std::string> defaultSql;  // DuckDB's text of the default value
    TextFacts facts;
    // Of a view: the columns that its texts come from. Of `facts` holds what all of them have when a statement
    // is translated, since a table may lose facts at any time.
    std::vector<ColumnOrigin> origins = {};
};

enum class ObjectKind { Table, View };

struct ObjectInfo {
    Database database = Database::Account;
    ObjectKind kind = ObjectKind::Table;
    std::string name;      // as created; `#x` keeps its sign
    std::string duckName;  // in full and quoted: "account"."main"."IA_Subsidiary"
    std::vector<ColumnInfo> columns;
    std::vector<std::string> primaryKey = {};  // of a table in memory; one in the file has it there
};

// The table for which a connection brings the identity numbers of what it inserts.
struct IdentityInsert {
    Database database = Database::Account;
    std::string name;

    bool operator==(const IdentityInsert&) const = default;
};

class Catalog {
  public:
    virtual ~Catalog() = default;

    // The object of that name, without regard to case, or null. The pointer holds until the next change.
    virtual const ObjectInfo* Find(Database database, std::string_view name) const = 0;

    // In full and quoted, the name under which a new table or view of that name is to be made.
    virtual std::string DuckNameForNew(Database database, std::string_view name) const = 0;

    // The language that DBO.UDF_GetLocaleID() answers on this connection, such as zh-CN.
    virtual std::string LocaleId() const = 0;

    // After `set identity_insert T on`; nothing: no table's.
    virtual std::optional<IdentityInsert> IdentityInsertTable() const { return std::nullopt; }
};

}  // namespace kavelin::embedded
