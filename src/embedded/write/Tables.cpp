#include "embedded/write/Tables.h"

#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"
#include "frame/Text.h"

#include <algorithm>
#include <stdexcept>

namespace kavelin::embedded {

namespace {

const ColumnInfo& FindColumn(const ObjectInfo& table, std::string_view name)
{
    const auto column =
        std::find_if(table.columns.begin(), table.columns.end(),
                     [&](const ColumnInfo& candidate) { return EqualsNoCase(candidate.name, name); });
    if (column == table.columns.end())
        throw std::logic_error("no column " + std::string(name) + " in " + table.duckName);
    return *column;
}

// The default value as a text, which DuckDB casts. A column whose default is no bare constant, as TRUE and
// TIMESTAMP '...' are none to it, would be added in several statements.
std::string DefaultAsText(const std::string& defaultSql)
{
    const std::size_t quote = defaultSql.find('\'');
    return quote == std::string::npos ? "'" + defaultSql + "'" : defaultSql.substr(quote);
}

std::string Definition(const ColumnInfo& column)
{
    return QuoteName(column.name) + " " + DuckType(column.type) +
           (column.defaultSql ? " DEFAULT " + *column.defaultSql : "");
}

bool HasTextKey(const ObjectInfo& table)
{
    return std::ranges::any_of(
        table.primaryKey, [&](const std::string& name) { return FindColumn(table, name).type.IsText(); });
}

// Texts are equal as they are elsewhere, see TextFold.h. `outer` and `inner` are lower and rtrim in either
// order: by the order DuckErrors.cpp tells a primary key from another index, for DuckDB doesn't name them.
std::string UniqueIndex(const std::string& duckName, const std::string& index,
                        const std::vector<ColumnInfo>& columns, const char* outer, const char* inner)
{
    std::vector<std::string> keys;
    for (const ColumnInfo& column : columns) {
        const std::string name = QuoteName(column.name);
        keys.push_back(column.type.IsText() ? outer + ("(" + std::string(inner)) + "(" + name + "))" : name);
    }
    return "CREATE UNIQUE INDEX " + QuoteName(index) + " ON " + duckName + " (" + Join(keys, ", ") + ")";
}

}  // namespace

std::string CreateTable(const ObjectInfo& table)
{
    std::vector<std::string> parts;
    for (const ColumnInfo& column : table.columns)
        parts.push_back(Definition(column));
    if (!table.primaryKey.empty() && !HasTextKey(table)) {
        std::vector<std::string> names;
        for (const std::string& name : table.primaryKey)
            names.push_back(QuoteName(name));
        parts.push_back("PRIMARY KEY (" + Join(names, ", ") + ")");
    }
    return std::string(table.database == Database::Connection ? "CREATE TEMP TABLE " : "CREATE TABLE ") +
           table.duckName + " (" + Join(parts, ", ") + ")";
}

std::optional<std::string> CreateKeyIndex(const ObjectInfo& table)
{
    if (!HasTextKey(table))
        return std::nullopt;
    std::vector<ColumnInfo> columns;
    for (const std::string& name : table.primaryKey)
        columns.push_back(FindColumn(table, name));
    return UniqueIndex(table.duckName, table.name + ".key", columns, "lower", "rtrim");
}

std::string CreateUniqueIndex(const std::string& duckName, const std::string& index,
                              const std::vector<ColumnInfo>& columns)
{
    return UniqueIndex(duckName, index, columns, "rtrim", "lower");
}

std::string AlterColumn(const ObjectInfo& table, std::string_view column)
{
    const ColumnInfo& changed = FindColumn(table, column);
    return "ALTER TABLE " + table.duckName + " ALTER COLUMN " + QuoteName(changed.name) + " SET DATA TYPE " +
           DuckType(changed.type);
}

std::vector<std::string> AddColumn(const ObjectInfo& table, std::string_view column)
{
    const ColumnInfo& added = FindColumn(table, column);
    const std::string name = QuoteName(added.name);
    const std::string alter = "ALTER TABLE " + table.duckName;
    const std::string add = alter + " ADD COLUMN " + name + " " + DuckType(added.type);
    if (!added.defaultSql)
        return {add};
    const std::string byDefault = " DEFAULT " + DefaultAsText(*added.defaultSql);
    if (!added.nullable)
        return {add + byDefault};
    return {add, alter + " ALTER COLUMN " + name + " SET" + byDefault};
}

}  // namespace kavelin::embedded
