#include "snapshot/TargetObjects.h"

#include <fmt/format.h>

#include <algorithm>

namespace kavelin::snapshot {

namespace {

constexpr std::int32_t kThereAlready = 2714;  // SQL Server's number

bool IsInPlan(const SchemaObject& object, const CopyPlan& plan)
{
    return std::ranges::any_of(plan.tables,
                               [&](const PlannedTable& table) { return table.object == &object; });
}

void MakeSnapshotTable(CopyTarget& target, const AccountObjects& there, const SchemaObject& view)
{
    if (there.HasView(view)) {
        if (!target.MayDropViews())
            throw Error(
                fmt::format("{} is a view of the target, and the source has nothing but its rows. Copy "
                            "into an empty database.",
                            view.name));
        target.Account().Execute("drop view " + view.name);
    }
    if (!there.HasTable(view))
        target.Account().Execute(CreateTableLike(view));
}

void Make(Connection& connection, const SchemaObject& object)
{
    for (const std::string& statement : object.statements) {
        try {
            connection.Execute(statement);
        } catch (const DatabaseError& error) {
            // Not every server lists functions to everyone.
            if (object.kind != SchemaKind::Function || error.Get().lngNumber != kThereAlready)
                throw;
        }
    }
}

}  // namespace

void MakeMissing(CopyTarget& target, const AccountObjects& there, const CopyPlan& plan)
{
    for (const SchemaObject& object : Schema()) {
        if (object.kind == SchemaKind::View && IsInPlan(object, plan)) {
            MakeSnapshotTable(target, there, object);
            continue;
        }
        // An embedded account has its functions built in, and lists none.
        if (there.Has(object) || (object.kind == SchemaKind::Function && target.MayDropViews()))
            continue;
        if (object.inSystem && !there.systemProblem.empty()) {
            if (IsInPlan(object, plan))
                throw Error(fmt::format("The table {} of the target cannot be filled: {}", object.name,
                                        there.systemProblem));
            continue;
        }
        Make(target.Account(), object);
    }
}

}  // namespace kavelin::snapshot
