#include "snapshot/CopyPlan.h"

#include "frame/Errors.h"
#include "host/HostErrors.h"
#include "host/ValueGate.h"
#include "snapshot/Literal.h"
#include "snapshot/YearConditions.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

namespace kavelin::snapshot {

namespace {

constexpr std::string_view kAccountColumn = "cAcc_ID";

// Columns of a table by name, with T-SQL's types.
using ColumnTypes = std::map<std::string, std::string, LessNoCase>;

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

ColumnTypes ReadColumns(Connection& connection, const SchemaObject& object)
{
    const auto none = Open(connection, "select * from " + object.name + " where 1 = 0");
    ColumnTypes columns;
    for (int field = 0; field < none->FieldCount(); ++field)
        columns[none->FieldName(field)] = none->FieldType(field);
    return columns;
}

std::string Listed(const std::vector<std::string>& names)
{
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

std::vector<const SchemaObject*> ChosenObjects(const std::vector<std::string>& names)
{
    std::vector<std::string> known;
    for (const SchemaObject& object : Schema())
        known.push_back(object.name);
    for (const std::string& name : names)
        if (FindInSchema(name) == nullptr)
            throw host::UsageError(
                fmt::format("The reports read no table \"{}\".{}", name, host::DidYouMean(name, known)));
    std::vector<const SchemaObject*> chosen;
    for (const SchemaObject& object : Schema()) {
        const bool named = std::ranges::any_of(
            names, [&](const std::string& name) { return FindInSchema(name) == &object; });
        if (object.kind != SchemaKind::Function && (names.empty() || named))
            chosen.push_back(&object);
    }
    return chosen;
}

// Whether the rows of the object are to be copied, which are those of a view only where nothing else of the
// source gives them.
bool HoldsRows(const SchemaObject& object, const AccountObjects& source)
{
    if (object.kind == SchemaKind::Table)
        return source.HasTable(object) || source.HasView(object);
    if (source.HasTable(object))
        return true;
    return source.HasView(object) && std::ranges::any_of(object.standsOn, [&](const std::string& table) {
               const SchemaObject* below = FindInSchema(table);
               return below != nullptr && !source.Has(*below);
           });
}

class TablePlanner {
  public:
    TablePlanner(const SchemaObject& object, ColumnTypes source, std::optional<ColumnTypes> target)
        : dicSource(std::move(source)), dicTarget(std::move(target))
    {
        objPlanned.object = &object;
    }

    PlannedTable Plan()
    {
        for (const embedded::ColumnInfo& column : objPlanned.object->columns)
            Take(column);
        if (objPlanned.columns.empty())
            throw Error(
                fmt::format("The table {} of the source has none of the columns that the reports read.",
                            objPlanned.object->name));
        NoteOthers();
        Note("not in the source, so NULL", arrNull);
        Note("not in the source, so as the schema presets them", arrPreset);
        Note("not in the target, so left out", arrLost);
        return std::move(objPlanned);
    }

  private:
    void Take(const embedded::ColumnInfo& column)
    {
        const auto found = dicSource.find(column.name);
        if (dicTarget && !dicTarget->contains(column.name)) {
            if (found != dicSource.end())
                arrLost.push_back(column.name);
            return;
        }
        if (found != dicSource.end()) {
            objPlanned.columns.push_back({&column, FigureColumnFor(column.name, found->second, column.type)});
            return;
        }
        if (!column.nullable && !column.defaultSql && !column.identity)
            throw Error(fmt::format("The table {} of the source has no column {}, which may not be NULL.",
                                    objPlanned.object->name, column.name));
        (column.nullable ? arrNull : arrPreset).push_back(column.name);
    }

    void NoteOthers()
    {
        std::vector<std::string> others;
        for (const auto& [name, type] : dicSource)
            if (std::ranges::none_of(objPlanned.object->columns,
                                     [&](const auto& column) { return EqualsNoCase(column.name, name); }))
                others.push_back(name);
        Note("not read by the reports, so left out", others);
    }

    void Note(const char* what, const std::vector<std::string>& columns)
    {
        if (!columns.empty())
            objPlanned.notes.push_back(fmt::format("{}: {} {}: {}", objPlanned.object->name,
                                                   columns.size() == 1 ? "column" : "columns", what,
                                                   Listed(columns)));
    }

    PlannedTable objPlanned;
    ColumnTypes dicSource;
    std::optional<ColumnTypes> dicTarget;
    std::vector<std::string> arrNull, arrPreset, arrLost;
};

std::string And(const std::string& a, const std::string& b)
{
    if (a.empty() || b.empty())
        return a + b;
    return "(" + a + ") and (" + b + ")";
}

std::string OfAccount(const SchemaObject& object, const std::string& id)
{
    return object.inSystem ? std::string(kAccountColumn) + " = " + Literal(id) : "";
}

}  // namespace

bool AccountObjects::HasTable(const SchemaObject& object) const
{
    return (object.inSystem ? systemTables : tables).contains(object.bareName);
}

bool AccountObjects::HasView(const SchemaObject& object) const
{
    return !object.inSystem && views.contains(object.bareName);
}

bool AccountObjects::Has(const SchemaObject& object) const
{
    if (object.kind == SchemaKind::Function)
        return functions.contains(object.bareName);
    return HasTable(object) || HasView(object);
}

AccountObjects ReadObjects(Connection& connection)
{
    AccountObjects objects;
    for (const auto rows =
             Open(connection, "select name, xtype from sysobjects where xtype in ('U', 'V', 'FN')");
         !rows->Eof(); rows->MoveNext()) {
        const std::string type(Trim(ToText(rows->Field(1))));
        auto& names = EqualsNoCase(type, "V")    ? objects.views
                      : EqualsNoCase(type, "FN") ? objects.functions
                                                 : objects.tables;
        names.insert(ToText(rows->Field(0)));
    }
    try {
        for (const auto rows =
                 Open(connection, "select name from VosSystem..sysobjects where xtype in ('U', 'V')");
             !rows->Eof(); rows->MoveNext())
            objects.systemTables.insert(ToText(rows->Field(0)));
    } catch (const CancelledError&) {
        throw;
    } catch (const ConnectionError&) {
        throw;
    } catch (const DatabaseError& error) {
        // A server may have no such database, or keep it from this user: its tables are passed over then.
        objects.systemProblem = error.what();
    }
    return objects;
}

std::vector<FigureColumn> PlannedTable::Figures() const
{
    std::vector<FigureColumn> figures;
    for (const PlannedColumn& column : columns)
        figures.push_back(column.figures);
    return figures;
}

CopyPlan PlanCopy(Connection& source, Connection* target, const AccountObjects* targetObjects,
                  const CopyChoice& choice)
{
    const std::vector<const SchemaObject*> chosen = ChosenObjects(choice.tables);
    const AccountObjects objects = ReadObjects(source);
    CopyPlan plan;
    if (!objects.systemProblem.empty())
        plan.notes.push_back("The system database of the source cannot be read: " + objects.systemProblem);

    std::optional<YearSpan> span;
    if (choice.years)
        span = SpanOf(source, choice.sourceId, choice.years->first, choice.years->second,
                      objects.Has(*FindInSchema("VosSystem..UA_Period")));

    std::vector<std::string> missing;
    for (const SchemaObject* object : chosen) {
        if (!objects.Has(*object))
            missing.push_back(object->name);
        if (!HoldsRows(*object, objects))
            continue;
        std::optional<ColumnTypes> ofTarget;
        if (targetObjects != nullptr && targetObjects->HasTable(*object))
            ofTarget = ReadColumns(*target, *object);
        PlannedTable planned =
            TablePlanner(*object, ReadColumns(source, *object), std::move(ofTarget)).Plan();
        planned.sourceCondition =
            And(OfAccount(*object, choice.sourceId), span ? YearCondition(*object, *span) : "");
        planned.targetCondition = OfAccount(*object, choice.targetId);
        plan.tables.push_back(std::move(planned));
    }
    if (!missing.empty())
        plan.notes.push_back("Not in the source: " + Listed(missing));
    return plan;
}

}  // namespace kavelin::snapshot
