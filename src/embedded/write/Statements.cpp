// Statements as plans: the DuckDB steps, and what they change in the catalogue.
#include "embedded/write/LookupUpdate.h"
#include "embedded/write/Quote.h"
#include "embedded/write/Tables.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"

namespace kavelin::embedded {

namespace {

// The last part of "tempdb"."main"."x", for messages.
std::string BareName(const std::string& duckName)
{
    const std::size_t from = duckName.rfind(".\"");
    return from == std::string::npos ? duckName : duckName.substr(from + 2, duckName.size() - from - 3);
}

std::string QuotedList(const std::vector<std::string>& names)
{
    std::vector<std::string> quoted;
    for (const std::string& name : names)
        quoted.push_back(QuoteName(name));
    return Join(quoted, ", ");
}

void Weaken(StatementPlan& plan, const std::optional<ObjectInfo>& weakened)
{
    if (weakened)
        plan.changes.emplace_back(ColumnsChanged{weakened->database, weakened->name, weakened->columns});
}

StatementPlan Changing(std::string step)
{
    StatementPlan plan;
    plan.steps.push_back(std::move(step));
    plan.countsRows = true;
    return plan;
}

StatementPlan WriteStatement(const BoundRows& statement)
{
    StatementPlan plan;
    plan.steps.push_back(Writer().Query(*statement.query));
    plan.rows = statement.columns;
    return plan;
}

StatementPlan WriteStatement(const BoundSelectInto& statement)
{
    const ObjectInfo& made = statement.made;
    Writer writer(made.name, "INSERT");
    StatementPlan plan;
    plan.steps.push_back(CreateTable(made));
    plan.steps.push_back("INSERT INTO " + made.duckName + " " + writer.Query(*statement.query));
    plan.countsRows = true;
    plan.changes.emplace_back(TableMade{made});
    return plan;
}

// The highest number of the table so far.
std::string HighestNumber(const BoundInsert& statement)
{
    return "coalesce((SELECT max(" + QuoteName(*statement.identityColumn) + ") FROM " + statement.duckName +
           "), 0)";
}

std::string ValueRows(const BoundInsert& statement, Writer& writer)
{
    std::vector<std::string> rows;
    for (const auto& row : statement.values) {
        std::vector<std::string> values;
        if (statement.identityColumn)
            values.push_back(std::to_string(rows.size() + 1));
        for (const BoundExprPtr& value : row)
            values.push_back(writer.Value(*value));
        rows.push_back("(" + Join(values, ", ") + ")");
    }
    if (!statement.identityColumn)
        return "VALUES " + Join(rows, ", ");

    std::vector<std::string> names{"n"};
    std::string list = HighestNumber(statement) + " + v.n";
    for (std::size_t i = 0; i < statement.columns.size(); ++i) {
        names.push_back("c" + std::to_string(i));
        list += ", v." + names.back();
    }
    return "SELECT " + list + " FROM (VALUES " + Join(rows, ", ") + ") AS v(" + Join(names, ", ") + ")";
}

StatementPlan WriteStatement(const BoundInsert& statement)
{
    Writer writer(BareName(statement.duckName), "INSERT");
    std::vector<std::string> columns = statement.columns;
    Writer::QueryForm form{.positional = true};
    if (statement.identityColumn) {
        columns.insert(columns.begin(), *statement.identityColumn);
        form.numberFrom = HighestNumber(statement);
    }
    const std::string rows =
        statement.query ? writer.Query(*statement.query, form) : ValueRows(statement, writer);
    StatementPlan plan =
        Changing("INSERT INTO " + statement.duckName + " (" + QuotedList(columns) + ") " + rows);
    Weaken(plan, statement.weakened);
    return plan;
}

// Whether the changed table is all that the statement reads from.
bool IsAlone(const std::vector<BoundSourcePtr>& from)
{
    return from.size() == 1 && std::holds_alternative<BoundTable>(from.front()->node);
}

std::string Where(const BoundExprPtr& where, Writer& writer)
{
    return where ? " WHERE " + writer.Clause(*where) : "";
}

// update t set c = s.v from t inner join s on s.k = t.k
//   UPDATE t AS "s1" SET "c" = "s2".v
//     FROM (SELECT DISTINCT ON ("s2".k) "s2".v, "s2".k FROM s AS "s2") AS "s2" WHERE "s2".k = "s1".k
// The same as in the general form below, without gathering the target's rows first.
std::string UpdateByLookup(const BoundUpdate& statement, const LookupUpdate& lookup, Writer& writer)
{
    const std::string alias = Writer::Alias(lookup.table->number);
    std::vector<std::string> assignments, keys, columns, conditions;
    for (const BoundAssignment& assignment : statement.assignments)
        assignments.push_back(QuoteName(assignment.column) + " = " + writer.Value(*assignment.value));
    for (const BoundExpr* key : lookup.keys) {
        const std::string value = writer.Value(*key);
        keys.push_back(key->type.IsText() ? FoldAlone(value, key->facts) : value);
    }
    for (const std::string& column : lookup.columns)
        columns.push_back(alias + "." + QuoteName(column) + " AS " + QuoteName(column));
    for (const BoundExpr* condition : lookup.conditions)
        conditions.push_back(writer.Condition(*condition));

    const BoundExpr& on = *std::get<BoundJoin>(statement.from.front()->node).on;
    return "UPDATE " + statement.duckName + " AS " + Writer::Alias(statement.target) + " SET " +
           Join(assignments, ", ") + " FROM (SELECT DISTINCT ON (" + Join(keys, ", ") + ") " +
           Join(columns, ", ") + " FROM " + lookup.table->duckName + " AS " + alias +
           (conditions.empty() ? "" : " WHERE " + Join(conditions, " AND ")) + ") AS " + alias + " WHERE " +
           writer.Clause(on) + (statement.where ? " AND " + writer.Clause(*statement.where) : "");
}

// update t set c = v from t a inner join ...
//   UPDATE t AS g SET "c" = v.v0
//     FROM (SELECT DISTINCT ON ("s1".rowid) "s1".rowid AS r, v AS v0 FROM t AS "s1" INNER JOIN ...) AS v
//    WHERE g.rowid = v.r
// All values are computed on the inside, from the old rows. A row that the join finds several times is
// changed and counted once, with the values of one match.
StatementPlan WriteStatement(const BoundUpdate& statement)
{
    Writer writer(BareName(statement.duckName), "UPDATE");
    writer.KeepRowsOf(statement.target);
    if (const std::optional<LookupUpdate> lookup = FindLookup(statement)) {
        StatementPlan plan = Changing(UpdateByLookup(statement, *lookup, writer));
        Weaken(plan, statement.weakened);
        return plan;
    }
    const bool alone = IsAlone(statement.from);
    std::vector<std::string> assignments, values{Writer::Alias(statement.target) + ".rowid AS r"};
    for (const BoundAssignment& assignment : statement.assignments) {
        const std::string name = "v" + std::to_string(assignments.size());
        const std::string value = writer.Value(*assignment.value);
        assignments.push_back(QuoteName(assignment.column) + " = " + (alone ? value : "v." + name));
        values.push_back(value + " AS " + name);
    }
    const std::string set = " SET " + Join(assignments, ", ");

    StatementPlan plan;
    if (alone)
        plan = Changing("UPDATE " + statement.duckName + " AS " + Writer::Alias(statement.target) + set +
                        Where(statement.where, writer));
    else
        plan = Changing("UPDATE " + statement.duckName + " AS g" + set + " FROM (SELECT DISTINCT ON (" +
                        Writer::Alias(statement.target) + ".rowid) " + Join(values, ", ") + " FROM " +
                        writer.Sources(statement.from) + Where(statement.where, writer) +
                        ") AS v WHERE g.rowid = v.r");
    Weaken(plan, statement.weakened);
    return plan;
}

StatementPlan WriteStatement(const BoundDelete& statement)
{
    Writer writer;
    writer.KeepRowsOf(statement.target);
    const std::string alias = Writer::Alias(statement.target);
    if (IsAlone(statement.from))
        return Changing("DELETE FROM " + statement.duckName + " AS " + alias +
                        Where(statement.where, writer));
    return Changing("DELETE FROM " + statement.duckName + " WHERE rowid IN (SELECT " + alias +
                    ".rowid FROM " + writer.Sources(statement.from) + Where(statement.where, writer) + ")");
}

StatementPlan WriteStatement(const BoundCreateView& statement)
{
    StatementPlan plan;
    plan.steps.push_back("CREATE VIEW " + statement.made.duckName + " AS " +
                         Writer().Query(*statement.query));
    ObjectInfo view = statement.made;
    view.kind = ObjectKind::View;
    plan.changes.emplace_back(TableMade{std::move(view)});
    return plan;
}

StatementPlan WriteStatement(const BoundCreateTable& statement)
{
    StatementPlan plan;
    plan.steps.push_back(CreateTable(statement.made));
    if (std::optional<std::string> index = CreateKeyIndex(statement.made))
        plan.steps.push_back(std::move(*index));
    plan.changes.emplace_back(TableMade{statement.made});
    return plan;
}

StatementPlan WriteStatement(const BoundCreateFunction&)
{
    return {};
}

// An index that only serves speed is left out: DuckDB's scans don't need it, and its inserts would pay.
StatementPlan WriteStatement(const BoundCreateIndex& statement)
{
    StatementPlan plan;
    if (statement.unique)
        plan.steps.push_back(CreateUniqueIndex(
            statement.duckName, BareName(statement.duckName) + "." + statement.index, statement.columns));
    return plan;
}

StatementPlan WriteStatement(const BoundAlterColumn& statement)
{
    StatementPlan plan;
    plan.steps.push_back(AlterColumn(statement.table, statement.column));
    plan.changes.emplace_back(
        ColumnsChanged{statement.table.database, statement.table.name, statement.table.columns});
    return plan;
}

StatementPlan WriteStatement(const BoundAddColumns& statement)
{
    StatementPlan plan;
    for (const std::string& column : statement.added)
        for (std::string& step : AddColumn(statement.table, column))
            plan.steps.push_back(std::move(step));
    plan.changes.emplace_back(
        ColumnsChanged{statement.table.database, statement.table.name, statement.table.columns});
    return plan;
}

StatementPlan WriteStatement(const BoundDrop& statement)
{
    StatementPlan plan;
    for (const ObjectInfo& object : statement.objects) {
        plan.steps.push_back((object.kind == ObjectKind::View ? "DROP VIEW " : "DROP TABLE ") +
                             object.duckName);
        plan.changes.emplace_back(TableDropped{object.database, object.name});
    }
    return plan;
}

StatementPlan WriteStatement(const BoundIdentityInsert& statement)
{
    StatementPlan plan;
    plan.identityInsert = statement.on ? std::optional(statement.table) : std::nullopt;
    plan.setsIdentityInsert = true;
    return plan;
}

}  // namespace

StatementPlan Write(const BoundStatement& statement)
{
    return std::visit([](const auto& node) { return WriteStatement(node); }, statement);
}

}  // namespace kavelin::embedded
