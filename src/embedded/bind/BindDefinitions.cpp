#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

// --- columns -----------------------------------------------------------------------------------

// A literal in DuckDB's spelling.
std::string DuckLiteral(const BoundLiteral& literal, const SqlType& type)
{
    if (type.IsText())
        return "'" + ReplaceAll(literal.text, "'", "''") + "'";
    if (type.kind == TypeKind::Datetime)
        return "TIMESTAMP '" + literal.text + "'";
    return literal.text;
}

// DEFAULT takes a constant, which becomes one of the column's type.
void SetDefault(ColumnInfo& column, const Expr& value, BindContext& context)
{
    Scope scope(context, nullptr);
    scope.clause = Clause::Values;
    ColumnInfo nullableColumn = column;
    nullableColumn.nullable = true;
    const BoundExprPtr bound = Assign(BindValue(value, scope), nullableColumn);
    const BoundLiteral* literal = AsLiteral(*bound);
    if (!literal)
        throw SqlError(1752,
                       "The embedded engine takes a constant of the column's type as default of column '" +
                           column.name + "' only.",
                       value.place);
    if (literal->null)
        return;
    column.defaultSql = DuckLiteral(*literal, column.type);
    if (column.type.IsText())
        column.facts = FactsOf(literal->text);
}

ColumnInfo DefineColumn(const ColumnDefinition& definition, BindContext& context)
{
    ColumnInfo column;
    column.name = definition.name.text;
    column.type = TypeOf(definition.type, TypeUse::Definition);
    column.nullable = definition.nullable.value_or(!definition.identity && !definition.primaryKey);
    column.identity = definition.identity;
    if (column.type.IsText())
        column.facts = {true, true};  // of no rows
    if (definition.identity) {
        const bool whole = column.type.IsInteger() && column.type.kind != TypeKind::Bit;
        if (!whole || column.nullable)
            throw SqlError(2749,
                           "Identity column '" + column.name +
                               "' must be of data type int, bigint, smallint or tinyint here, and "
                               "constrained "
                               "to be nonnullable.",
                           definition.name.place);
        if (definition.seed != 1 || definition.increment != 1)
            throw SqlError(8107, "The embedded engine numbers rows from 1 by 1 only.", definition.name.place);
    }
    if (definition.defaultValue)
        SetDefault(column, *definition.defaultValue, context);
    return column;
}

void AddColumn(ObjectInfo& table, const ColumnDefinition& definition, BindContext& context)
{
    if (ColumnPosition(table.columns, definition.name))
        throw SqlError(2705,
                       "Column names in each table must be unique. Column name '" + definition.name.text +
                           "' in table '" + table.name + "' is specified more than once.",
                       definition.name.place);
    if (definition.identity)
        for (const ColumnInfo& column : table.columns)
            if (column.identity)
                throw SqlError(2744,
                               "Multiple identity columns specified for table '" + table.name +
                                   "'. Only one identity column per table is allowed.",
                               definition.name.place);
    table.columns.push_back(DefineColumn(definition, context));
}

// --- primary keys ------------------------------------------------------------------------------

void AddKeyColumn(BoundCreateTable& bound, const Name& name, bool writtenNull)
{
    const auto position = ColumnPosition(bound.made.columns, name);
    if (!position)
        throw SqlError(1911, "Column name '" + name.text + "' does not exist in the target table or view.",
                       name.place);
    if (writtenNull)
        throw SqlError(
            8111,
            "Cannot define PRIMARY KEY constraint on nullable column in table '" + bound.made.name + "'.",
            name.place);
    ColumnInfo& column = bound.made.columns[*position];
    column.nullable = false;
    bound.made.primaryKey.push_back(column.name);
}

void SetPrimaryKey(BoundCreateTable& bound, const CreateTableStatement& create)
{
    for (std::size_t i = 0; i < create.columns.size(); ++i) {
        const ColumnDefinition& definition = create.columns[i];
        if (!definition.primaryKey)
            continue;
        if (!bound.made.primaryKey.empty() || !create.primaryKey.empty())
            throw SqlError(8110,
                           "Cannot add multiple PRIMARY KEY constraints to table '" + bound.made.name + "'.",
                           definition.name.place);
        AddKeyColumn(bound, definition.name, definition.nullable.value_or(false));
    }
    for (const Name& name : create.primaryKey) {
        const auto defined = std::find_if(create.columns.begin(), create.columns.end(),
                                          [&](const ColumnDefinition& definition) {
                                              return EqualsNoCase(definition.name.text, name.text);
                                          });
        AddKeyColumn(bound, name, defined != create.columns.end() && defined->nullable.value_or(false));
    }
}

// --- views and objects that are to be there ----------------------------------------------------

SqlError ViewColumnError(const std::string& column, std::size_t position, const std::string& view,
                         Place place)
{
    if (column.empty())
        return SqlError(4511,
                        "Create View or Function failed because no column name was specified for column " +
                            std::to_string(position + 1) + ".",
                        place);
    return SqlError(4506,
                    "Column names in each view or function must be unique. Column name '" + column +
                        "' in view or function '" + view + "' is specified more than once.",
                    place);
}

const ObjectInfo& NeedTableToAlter(const ObjectName& name, const BindContext& context)
{
    const ObjectInfo* object = FindObject(name, context);
    if (!object || object->kind != ObjectKind::Table)
        throw SqlError(4902,
                       "Cannot find the object \"" + WrittenName(name) +
                           "\" because it does not exist or you do not have permissions.",
                       name.place);
    return *object;
}

const ObjectInfo& ObjectToDrop(const ObjectName& name, bool view, const BindContext& context)
{
    const ObjectInfo* object = FindObject(name, context);
    const std::string kind = view ? "view" : "table";
    const bool isSystems = object && EqualsNoCase(object->name, "sysobjects");
    if (!object || isSystems)
        throw SqlError(3701,
                       "Cannot drop the " + kind + " '" + WrittenName(name) +
                           "', because it does not exist or you do not have permission.",
                       name.place);
    if (view != (object->kind == ObjectKind::View))
        throw SqlError(3705,
                       "Cannot use DROP " + std::string(view ? "VIEW" : "TABLE") + " with '" +
                           WrittenName(name) + "' because '" + WrittenName(name) + "' is a " +
                           (view ? "table" : "view") + ". Use DROP " + (view ? "TABLE" : "VIEW") + ".",
                       name.place);
    return *object;
}

}  // namespace

BoundCreateTable BindCreateTable(const CreateTableStatement& create, BindContext& context)
{
    BoundCreateTable bound;
    bound.made = NewObject(create.table, ObjectKind::Table, context);
    for (const ColumnDefinition& definition : create.columns)
        AddColumn(bound.made, definition, context);
    SetPrimaryKey(bound, create);
    return bound;
}

BoundCreateView BindCreateView(const CreateViewStatement& create, BindContext& context)
{
    context.forView = true;
    context.assumedFacts = TextFacts{};
    BoundCreateView bound;
    bound.made = NewObject(create.view, ObjectKind::View, context);
    if (bound.made.database == Database::Connection)
        throw SqlError(4103, "\"" + bound.made.name + "\": Temporary views are not allowed.",
                       create.view.place);
    bound.query = BindQuery(*create.query, QueryUse::View, context, nullptr);
    bound.made.columns = NamedColumns(*bound.query, bound.made.name, create.view.place, ViewColumnError);

    BindContext hopeful(context.Objects());
    hopeful.forView = true;
    hopeful.assumedFacts = TextFacts{true, true};
    const BoundQueryPtr query = BindQuery(*create.query, QueryUse::View, hopeful, nullptr);
    SetOrigins(bound.made.columns, *query, hopeful.objects);
    return bound;
}

BoundCreateIndex BindCreateIndex(const CreateIndexStatement& create, BindContext& context)
{
    const ObjectInfo* table = FindObject(create.table, context);
    if (!table || table->kind != ObjectKind::Table)
        throw SqlError(1088,
                       "Cannot find the object \"" + WrittenName(create.table) +
                           "\" because it does not exist or you do not have permissions.",
                       create.table.place);
    BoundCreateIndex bound;
    bound.duckName = table->duckName;
    bound.index = create.index.text;
    bound.unique = create.unique;
    for (const Name& name : create.columns) {
        const auto position = ColumnPosition(table->columns, name);
        if (!position)
            throw SqlError(1911,
                           "Column name '" + name.text + "' does not exist in the target table or view.",
                           name.place);
        bound.columns.push_back(table->columns[*position]);
    }
    return bound;
}

BoundAlterColumn BindAlterColumn(const AlterColumnStatement& alter, BindContext& context)
{
    BoundAlterColumn bound;
    bound.table = NeedTableToAlter(alter.table, context);
    const auto position = ColumnPosition(bound.table.columns, alter.column.name);
    if (!position)
        throw SqlError(4924,
                       "ALTER TABLE ALTER COLUMN failed because column '" + alter.column.name.text +
                           "' does not exist in table '" + bound.table.name + "'.",
                       alter.column.name.place);
    ColumnInfo& column = bound.table.columns[*position];
    const SqlType type = TypeOf(alter.column.type, TypeUse::Definition);
    column.facts = FactsOfConversion(ConversionKind::Assignment, column.type, column.facts, type);
    column.type = type;
    column.nullable = alter.column.nullable.value_or(true);
    bound.column = column.name;
    return bound;
}

BoundAddColumns BindAddColumns(const AddColumnsStatement& add, BindContext& context)
{
    BoundAddColumns bound;
    bound.table = NeedTableToAlter(add.table, context);
    for (const ColumnDefinition& definition : add.columns) {
        AddColumn(bound.table, definition, context);
        const ColumnInfo& column = bound.table.columns.back();
        if (!column.nullable && !column.defaultSql)
            throw SqlError(4901,
                           "ALTER TABLE only allows columns to be added that can contain nulls, or have a "
                           "DEFAULT definition specified. Column '" +
                               column.name + "' cannot be added to table '" + bound.table.name +
                               "' because it does not satisfy these conditions.",
                           definition.name.place);
        bound.added.push_back(column.name);
    }
    return bound;
}

BoundDrop BindDrop(const DropStatement& drop, BindContext& context)
{
    BoundDrop bound;
    for (const ObjectName& name : drop.objects) {
        const ObjectInfo& object = ObjectToDrop(name, drop.view, context);
        for (const ObjectInfo& before : bound.objects)
            if (before.database == object.database && before.name == object.name)
                throw SqlError(3701,
                               "Cannot drop the " + std::string(drop.view ? "view" : "table") + " '" +
                                   WrittenName(name) +
                                   "', because it does not exist or you do not have permission.",
                               name.place);
        bound.objects.push_back(object);
    }
    return bound;
}

}  // namespace kavelin::embedded
