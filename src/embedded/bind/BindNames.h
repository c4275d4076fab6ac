// Names of objects: which database, which object, and how messages write them.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/syntax/Tree.h"

#include <optional>
#include <string>

namespace kavelin::embedded {

class BindContext;

// `x` is of the account, `tempdb..x` and `vossystem..x` of those databases, `#x` of the connection.
// Nothing for any other database and for a schema other than dbo.
std::optional<Database> DatabaseOf(const ObjectName& name);

// As written: "tempdb..x", "dbo.x".
std::string WrittenName(const ObjectName& name);

// The object of that name, or null.
const ObjectInfo* FindObject(const ObjectName& name, const BindContext& context);

// The object of that name. Throws SqlError 208.
const ObjectInfo& NeedObject(const ObjectName& name, const BindContext& context);

// What a new object of that name is: database, name and name in DuckDB, no columns yet. Throws SqlError
// 2714 if there is one already, 208 for a database that is not there.
ObjectInfo NewObject(const ObjectName& name, ObjectKind kind, const BindContext& context);

// The place of a column in a table, without regard to case.
std::optional<std::size_t> ColumnPosition(const std::vector<ColumnInfo>& columns, const Name& name);

}  // namespace kavelin::embedded
