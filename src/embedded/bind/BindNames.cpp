#include "embedded/bind/BindNames.h"

#include "embedded/SqlError.h"
#include "embedded/bind/Scope.h"
#include "frame/Text.h"

namespace kavelin::embedded {

std::optional<Database> DatabaseOf(const ObjectName& name)
{
    if (name.schema && !name.schema->text.empty() && !EqualsNoCase(name.schema->text, "dbo"))
        return std::nullopt;
    const bool ofConnection = name.object.text.starts_with('#');
    if (!name.database)
        return ofConnection ? Database::Connection : Database::Account;
    if (EqualsNoCase(name.database->text, "tempdb"))
        return ofConnection ? Database::Connection : Database::Tempdb;
    if (EqualsNoCase(name.database->text, "vossystem"))
        return Database::System;
    return std::nullopt;
}

std::string WrittenName(const ObjectName& name)
{
    std::string written;
    if (name.database)
        written += name.database->text + ".";
    if (name.schema)
        written += name.schema->text;
    if (name.database || name.schema)
        written += ".";
    return written + name.object.text;
}

const ObjectInfo* FindObject(const ObjectName& name, const BindContext& context)
{
    const auto database = DatabaseOf(name);
    return database ? context.Objects().Find(*database, name.object.text) : nullptr;
}

const ObjectInfo& NeedObject(const ObjectName& name, const BindContext& context)
{
    if (const ObjectInfo* object = FindObject(name, context))
        return *object;
    throw SqlError(208, "Invalid object name '" + WrittenName(name) + "'.", name.place);
}

ObjectInfo NewObject(const ObjectName& name, ObjectKind kind, const BindContext& context)
{
    const auto database = DatabaseOf(name);
    if (!database)
        throw SqlError(208, "Invalid object name '" + WrittenName(name) + "'.", name.place);
    if (context.Objects().Find(*database, name.object.text))
        throw SqlError(2714, "There is already an object named '" + name.object.text + "' in the database.",
                       name.place);
    ObjectInfo made;
    made.database = *database;
    made.kind = kind;
    made.name = name.object.text;
    made.duckName = context.Objects().DuckNameForNew(*database, name.object.text);
    return made;
}

std::optional<std::size_t> ColumnPosition(const std::vector<ColumnInfo>& columns, const Name& name)
{
    // A letter has as many bytes in either case, so names of other lengths need not be looked at.
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.size() == name.text.size() && EqualsNoCase(columns[i].name, name.text))
            return i;
    return std::nullopt;
}

}  // namespace kavelin::embedded
