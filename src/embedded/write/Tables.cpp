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

std::string Definition(const ColumnInfo& column)
{
    return QuoteName(column.name) + " " + DuckType(column.type) +
           (column.defaultSql ? " DEFAULT " + *column.defaultSql : "");
}

}  // namespace

std::string CreateTable(const ObjectInfo& table, const std::vector<std::string>& primaryKey)
{
    std::vector<std::string> parts;
    for (const ColumnInfo& column : table.columns)
        parts.push_back(Definition(column));
    if (!primaryKey.empty()) {
        std::vector<std::string> names;
        for (const std::string& name : primaryKey)
            names.push_back(QuoteName(name));
        parts.push_back("PRIMARY KEY (" + Join(names, ", ") + ")");
    }
    return std::string(table.database == Database::Connection ? "CREATE TEMP TABLE " : "CREATE TABLE ") +
           table.duckName + " (" + Join(parts, ", ") + ")";
}

std::string AlterColumn(const ObjectInfo& table, std::string_view column)
{
    const ColumnInfo& changed = FindColumn(table, column);
    return "ALTER TABLE " + table.duckName + " ALTER COLUMN " + QuoteName(changed.name) + " SET DATA TYPE " +
           DuckType(changed.type);
}

std::string AddColumn(const ObjectInfo& table, std::string_view column)
{
    return "ALTER TABLE " + table.duckName + " ADD COLUMN " + Definition(FindColumn(table, column));
}

}  // namespace kavelin::embedded
