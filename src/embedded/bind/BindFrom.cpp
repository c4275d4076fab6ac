#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Binder.h"

#include <string>

namespace kavelin::embedded {

namespace {

BoundSourcePtr MakeSource(std::variant<BoundTable, BoundDerived, BoundJoin> node)
{
    auto source = std::make_unique<BoundSource>();
    source->node = std::move(node);
    return source;
}

SqlError DerivedNameError(const std::string& column, std::size_t position, const std::string& object,
                          Place place)
{
    if (column.empty())
        return SqlError(8155,
                        "No column name was specified for column " + std::to_string(position + 1) + " of '" +
                            object + "'.",
                        place);
    return SqlError(8156, "The column '" + column + "' was specified multiple times for '" + object + "'.",
                    place);
}

// A derived table does not see the sources beside it, but those around its query.
BoundSourcePtr BindDerivedTable(const DerivedTable& table, Place place, Scope& scope)
{
    BoundQueryPtr query = BindQuery(*table.query, QueryUse::Derived, scope.Context(), scope.Outer());
    Source source;
    source.number = scope.Context().NextSource();
    source.name = table.alias.text;
    source.aliased = true;
    source.derived = NamedColumns(*query, table.alias.text, place, DerivedNameError);
    const int number = scope.Add(std::move(source), place).number;
    return MakeSource(BoundDerived{number, std::move(query)});
}

BoundSourcePtr BindSource(const TableSource& source, Scope& scope);

// ON names the tables of its own join, those joined earlier within it among them.
BoundSourcePtr BindJoin(const JoinedTable& join, Scope& scope)
{
    const std::size_t first = scope.Sources().size();
    BoundSourcePtr left = BindSource(*join.left, scope);
    const std::size_t firstOfRight = scope.Sources().size();
    BoundSourcePtr right = BindSource(*join.right, scope);
    BoundExprPtr on;
    {
        const During clause(scope.clause, Clause::On);
        const During visible(scope.visibleFrom, first);
        on = BindCondition(*join.on, scope);
    }
    if (join.kind == JoinKind::Left)
        for (std::size_t i = firstOfRight; i < scope.Sources().size(); ++i)
            scope.Sources()[i].missing = true;
    return MakeSource(BoundJoin{join.kind, std::move(left), std::move(right), std::move(on)});
}

BoundSourcePtr BindSource(const TableSource& source, Scope& scope)
{
    const BindContext::Level level(scope.Context(), source.place);
    if (const auto* named = std::get_if<NamedTable>(&source.node))
        return BindNamedTable(*named, source.place, scope);
    if (const auto* derived = std::get_if<DerivedTable>(&source.node))
        return BindDerivedTable(*derived, source.place, scope);
    return BindJoin(std::get<JoinedTable>(source.node), scope);
}

}  // namespace

BoundSourcePtr BindNamedTable(const NamedTable& table, Place place, Scope& scope)
{
    const ObjectInfo& object = NeedObject(table.name, scope.Context());
    Source source;
    source.number = scope.Context().NextSource();
    source.name = table.alias ? table.alias->text : table.name.object.text;
    source.aliased = table.alias.has_value();
    source.object = &object;
    scope.Context().objects.emplace(source.number, &object);
    const int number = scope.Add(std::move(source), place).number;
    return MakeSource(BoundTable{number, object.duckName});
}

std::vector<BoundSourcePtr> BindFrom(const std::vector<TableSourcePtr>& from, Scope& scope)
{
    std::vector<BoundSourcePtr> bound;
    for (const TableSourcePtr& source : from)
        bound.push_back(BindSource(*source, scope));
    return bound;
}

}  // namespace kavelin::embedded
