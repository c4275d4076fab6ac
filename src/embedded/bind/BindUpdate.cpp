#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/BindTarget.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/Conversions.h"
#include "frame/Text.h"

#include <algorithm>
#include <set>
#include <string>

namespace kavelin::embedded {

namespace {

// The source that `target` means: the one of that alias; else the one that is that object; of several the
// one without an alias.
const Source& FindTarget(const ObjectName& target, const Scope& scope)
{
    const bool bare = !target.database && !target.schema;
    for (const Source& source : scope.Sources())
        if (bare && source.aliased && EqualsNoCase(source.name, target.object.text))
            return source;

    const ObjectInfo& object = NeedObject(target, scope.Context());
    std::vector<const Source*> same;
    for (const Source& source : scope.Sources())
        if (source.object == &object)
            same.push_back(&source);
    if (same.size() == 1)
        return *same.front();
    for (const Source* source : same)
        if (!source->aliased)
            return *source;
    if (!same.empty())
        throw SqlError(8154, "The table '" + WrittenName(target) + "' is ambiguous.", target.place);
    throw SqlError(8154,
                   "The embedded engine changes only tables that stand in the FROM clause, and '" +
                       WrittenName(target) + "' does not.",
                   target.place);
}

// FROM of an update or delete, which is the target alone where none is written.
std::vector<BoundSourcePtr> BindTargetFrom(const ObjectName& target, const std::vector<TableSourcePtr>& from,
                                           Scope& scope)
{
    if (!from.empty())
        return BindFrom(from, scope);
    std::vector<BoundSourcePtr> bound;
    bound.push_back(BindNamedTable(NamedTable{target, std::nullopt}, target.place, scope));
    return bound;
}

const Source& NeedTarget(const ObjectName& target, const Scope& scope)
{
    const Source& source = FindTarget(target, scope);
    if (!source.object || source.object->kind == ObjectKind::View)
        throw SqlError(4406,
                       "The embedded engine does not change rows through the view or derived table '" +
                           source.name + "'.",
                       target.place);
    return source;
}

// The column on the left of an assignment belongs to the target, whose name or alias may stand before it.
const ColumnInfo& AssignedColumn(const Assignment& assignment, const Source& target, const Scope& scope)
{
    if (assignment.table) {
        const std::vector<const Source*> named = scope.Named(*assignment.table);
        const bool namesObject = FindObject(*assignment.table, scope.Context()) == target.object;
        if (std::find(named.begin(), named.end(), &target) == named.end() && !(named.empty() && namesObject))
            throw SqlError(4104,
                           "The multi-part identifier \"" + WrittenName(*assignment.table) + "." +
                               assignment.column.text + "\" could not be bound.",
                           assignment.column.place);
    }
    const auto position = ColumnPosition(target.object->columns, assignment.column);
    if (!position)
        throw SqlError(207, "Invalid column name '" + assignment.column.text + "'.", assignment.column.place);
    const ColumnInfo& column = target.object->columns[*position];
    if (column.identity)
        throw SqlError(8102, "Cannot update identity column '" + column.name + "'.", assignment.column.place);
    return column;
}

}  // namespace

BoundUpdate BindUpdate(const UpdateStatement& update, BindContext& context)
{
    Scope scope(context, nullptr);
    BoundUpdate bound;
    bound.from = BindTargetFrom(update.target, update.from, scope);
    const Source& target = NeedTarget(update.target, scope);
    bound.duckName = target.object->duckName;
    bound.target = target.number;

    FactsLost lost(*target.object);
    std::set<std::string_view> assigned;
    for (const Assignment& assignment : update.assignments) {
        const ColumnInfo& column = AssignedColumn(assignment, target, scope);
        if (!assigned.insert(column.name).second)
            throw SqlError(264,
                           "The column name '" + column.name +
                               "' is specified more than once in the SET clause or column list of an INSERT. "
                               "A "
                               "column cannot be assigned more than one value in the same clause. Modify the "
                               "clause to make sure that a column is updated only once.",
                           assignment.column.place);
        const During clause(scope.clause, Clause::Set);
        BoundExprPtr value = Assign(BindValue(*assignment.value, scope), column);
        lost.Store(column.name, value->facts);
        bound.assignments.push_back({column.name, std::move(value)});
    }
    bound.where = BindWhere(update.where, scope);
    bound.weakened = std::move(lost).Weakened();
    return bound;
}

BoundDelete BindDelete(const DeleteStatement& statement, BindContext& context)
{
    Scope scope(context, nullptr);
    BoundDelete bound;
    bound.from = BindTargetFrom(statement.target, statement.from, scope);
    const Source& target = NeedTarget(statement.target, scope);
    bound.duckName = target.object->duckName;
    bound.target = target.number;
    bound.where = BindWhere(statement.where, scope);
    return bound;
}

}  // namespace kavelin::embedded
