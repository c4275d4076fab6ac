#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/BindTarget.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "frame/Text.h"

#include <algorithm>
#include <set>
#include <string>

namespace kavelin::embedded {

namespace {

bool TakesIdentity(const ObjectInfo& table, const BindContext& context)
{
    return context.Objects().IdentityInsertTable() == IdentityInsert{table.database, table.name};
}

const ColumnInfo* IdentityOf(const ObjectInfo& table)
{
    for (const ColumnInfo& column : table.columns)
        if (column.identity)
            return &column;
    return nullptr;
}

// The columns that the statement gives values for: those of its list, else all but the identity.
std::vector<ColumnInfo> GivenColumns(const InsertStatement& insert, const ObjectInfo& table,
                                     bool takesIdentity)
{
    std::vector<ColumnInfo> given;
    if (insert.columns.empty()) {
        for (const ColumnInfo& column : table.columns)
            if (!column.identity)
                given.push_back(column);
        return given;
    }
    std::set<std::string_view, LessNoCase> names;
    for (const Name& name : insert.columns) {
        const auto position = ColumnPosition(table.columns, name);
        if (!position)
            throw SqlError(207, "Invalid column name '" + name.text + "'.", name.place);
        if (!names.insert(name.text).second)
            throw SqlError(264,
                           "The column name '" + name.text +
                               "' is specified more than once in the SET clause or column list of an INSERT. "
                               "A "
                               "column cannot be assigned more than one value in the same clause. Modify the "
                               "clause to make sure that a column is updated only once.",
                           name.place);
        if (table.columns[*position].identity && !takesIdentity)
            throw SqlError(544,
                           "Cannot insert explicit value for identity column in table '" + table.name +
                               "' when IDENTITY_INSERT is set to OFF.",
                           name.place);
        given.push_back(table.columns[*position]);
    }
    return given;
}

// Columns that may not be null and get no value: a row that is inserted fails, an insert of no rows does not.
std::vector<ColumnInfo> LackingColumns(const ObjectInfo& table, const std::vector<ColumnInfo>& given)
{
    std::set<std::string_view> names;
    for (const ColumnInfo& column : given)
        names.insert(column.name);
    std::vector<ColumnInfo> lacking;
    for (const ColumnInfo& column : table.columns)
        if (!column.nullable && !column.identity && !column.defaultSql && !names.contains(column.name))
            lacking.push_back(column);
    return lacking;
}

void CheckSelectCount(const InsertStatement& insert, std::size_t given, std::size_t columns)
{
    if (given == columns)
        return;
    if (insert.columns.empty())
        throw SqlError(213, "Column name or number of supplied values does not match table definition.",
                       insert.target.place);
    const bool fewer = given < columns;
    throw SqlError(fewer ? 120 : 121,
                   std::string("The select list for the INSERT statement contains ") +
                       (fewer ? "fewer" : "more") +
                       " items than the insert list. The number of SELECT values must match the "
                       "number of INSERT columns.",
                   insert.target.place);
}

void CheckValuesCount(const InsertStatement& insert, std::size_t columns)
{
    const std::size_t given = insert.values.front().size();
    for (const auto& row : insert.values)
        if (row.size() != given)
            throw SqlError(10709,
                           "The number of columns for each row in a table value constructor must be the "
                           "same.",
                           insert.target.place);
    if (given == columns)
        return;
    if (insert.columns.empty())
        throw SqlError(213, "Column name or number of supplied values does not match table definition.",
                       insert.target.place);
    const bool moreColumns = given < columns;
    throw SqlError(moreColumns ? 109 : 110,
                   std::string("There are ") + (moreColumns ? "more" : "fewer") +
                       " columns in the INSERT statement than values specified in the VALUES clause. The "
                       "number of "
                       "values in the VALUES clause must match the number of columns specified in the INSERT "
                       "statement.",
                   insert.target.place);
}

void BindInsertQuery(const InsertStatement& insert, const std::vector<ColumnInfo>& given,
                     const std::vector<ColumnInfo>& lacking, BoundInsert& bound, BindContext& context)
{
    bound.query = BindQuery(*insert.query, QueryUse::Insert, context, nullptr);
    CheckSelectCount(insert, bound.query->selects.front().items.size(), given.size());
    ConvertOutput(bound.query, given, ConversionKind::Assignment, context);
    for (BoundSelect& select : bound.query->selects)
        for (const ColumnInfo& column : lacking)
            select.items.push_back({column.name, Assign(MakeNull(SqlType{}, insert.target.place), column)});
}

void BindInsertValues(const InsertStatement& insert, const std::vector<ColumnInfo>& given,
                      const std::vector<ColumnInfo>& lacking, BoundInsert& bound, BindContext& context)
{
    CheckValuesCount(insert, given.size());
    Scope scope(context, nullptr);
    scope.clause = Clause::Values;
    for (const auto& row : insert.values) {
        std::vector<BoundExprPtr>& values = bound.values.emplace_back();
        for (std::size_t i = 0; i < row.size(); ++i)
            values.push_back(Assign(BindValue(*row[i], scope), given[i]));
        for (const ColumnInfo& column : lacking)
            values.push_back(Assign(MakeNull(SqlType{}, insert.target.place), column));
    }
}

// What is known of the values of each column given.
std::vector<TextFacts> FactsOfValues(const BoundInsert& bound)
{
    std::vector<TextFacts> facts;
    if (bound.query) {
        for (const ColumnInfo& column : OutputColumns(*bound.query))
            facts.push_back(column.facts);
        return facts;
    }
    facts.assign(bound.columns.size(), TextFacts{true, true});
    for (const auto& row : bound.values)
        for (std::size_t i = 0; i < row.size(); ++i)
            facts[i] = Both(facts[i], row[i]->facts);
    return facts;
}

}  // namespace

BoundInsert BindInsert(const InsertStatement& insert, BindContext& context)
{
    const ObjectInfo& table = NeedTable(insert.target, context);
    const bool takesIdentity = TakesIdentity(table, context);
    const std::vector<ColumnInfo> given = GivenColumns(insert, table, takesIdentity);
    const auto isIdentity = [](const ColumnInfo& column) { return column.identity; };
    if (takesIdentity && std::none_of(given.begin(), given.end(), isIdentity))
        throw SqlError(
            545,
            "Explicit value must be specified for identity column in table '" + table.name +
                "' either when IDENTITY_INSERT is set to ON or when a replication user is inserting "
                "into a NOT FOR REPLICATION identity column.",
            insert.target.place);
    const std::vector<ColumnInfo> lacking = LackingColumns(table, given);
    BoundInsert bound;
    bound.duckName = table.duckName;
    for (const std::vector<ColumnInfo>* columns : {&given, &lacking})
        for (const ColumnInfo& column : *columns)
            bound.columns.push_back(column.name);
    if (const ColumnInfo* identity = IdentityOf(table); identity != nullptr && !takesIdentity)
        bound.identityColumn = identity->name;

    if (insert.query)
        BindInsertQuery(insert, given, lacking, bound, context);
    else
        BindInsertValues(insert, given, lacking, bound, context);

    const std::vector<TextFacts> facts = FactsOfValues(bound);
    FactsLost lost(table);
    for (std::size_t i = 0; i < bound.columns.size(); ++i)
        lost.Store(bound.columns[i], facts[i]);
    bound.weakened = std::move(lost).Weakened();
    return bound;
}

BoundIdentityInsert BindIdentityInsert(const IdentityInsertStatement& set, BindContext& context)
{
    const ObjectInfo& table = NeedTable(set.table, context);
    if (IdentityOf(table) == nullptr)
        throw SqlError(
            8106,
            "Table '" + table.name + "' does not have the identity property. Cannot perform SET operation.",
            set.table.place);
    const BoundIdentityInsert bound{{table.database, table.name}, set.on};
    const std::optional<IdentityInsert> before = context.Objects().IdentityInsertTable();
    if (set.on && before && before != bound.table)
        throw SqlError(8107,
                       "IDENTITY_INSERT is already ON for table '" + before->name +
                           "'. Cannot perform SET operation for table '" + table.name + "'.",
                       set.table.place);
    return bound;
}

}  // namespace kavelin::embedded
