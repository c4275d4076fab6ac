#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/BoundWalk.h"

#include <string>

namespace kavelin::embedded {

namespace {

[[noreturn]] void RefuseUngrouped(const BoundColumn& column, const Scope& scope, Clause clause, Place place)
{
    std::string name = column.column;
    for (const Source& source : scope.Sources())
        if (source.number == column.source)
            name = source.name + "." + name;
    const std::string reason = " is invalid in the ";
    const std::string rest =
        " because it is not contained in either an aggregate function or the GROUP BY clause.";
    switch (clause) {
        case Clause::Having:
            throw SqlError(8121, "Column '" + name + "'" + reason + "HAVING clause" + rest, place);
        case Clause::OrderBy:
            throw SqlError(8127, "Column \"" + name + "\"" + reason + "ORDER BY clause" + rest, place);
        default: throw SqlError(8120, "Column '" + name + "'" + reason + "select list" + rest, place);
    }
}

std::optional<std::size_t> KeyOf(const BoundExpr& expression, const std::vector<BoundExprPtr>& keys)
{
    for (std::size_t i = 0; i < keys.size(); ++i)
        if (SameExpression(expression, *keys[i]))
            return i;
    return std::nullopt;
}

struct Grouping {
    const std::vector<BoundExprPtr>& keys;
    const Scope& scope;
    Clause clause;
    bool composable = true;

    // Columns of the grouped sources within a subquery have to be keys, and stay columns: a key's number
    // would mean the subquery's own grouping there.
    void CheckWithin(BoundExprPtr& expression)
    {
        const auto* column = std::get_if<BoundColumn>(&expression->node);
        if (column && scope.Holds(column->source)) {
            if (!KeyOf(*expression, keys))
                RefuseUngrouped(*column, scope, clause, expression->place);
            composable = false;
        }
        CheckBelow(*expression);
    }

    void CheckBelow(BoundExpr& expression)
    {
        const auto check = [this](BoundExprPtr& inner) { CheckWithin(inner); };
        if (BoundQuery* query = QueryWithin(expression))
            ForEachExpression(*query, check);
        ForEachOperand(expression, check);
    }

    void Use(BoundExprPtr& expression)
    {
        if (const auto* aggregate = std::get_if<BoundAggregate>(&expression->node)) {
            composable = composable && !aggregate->distinct;
            return;
        }
        if (const auto key = KeyOf(*expression, keys)) {
            expression->node = BoundGroupKey{*key};
            return;
        }
        if (const auto* column = std::get_if<BoundColumn>(&expression->node))
            if (scope.Holds(column->source))
                RefuseUngrouped(*column, scope, clause, expression->place);
        if (BoundQuery* query = QueryWithin(*expression))
            ForEachExpression(*query, [this](BoundExprPtr& inner) { CheckWithin(inner); });
        ForEachOperand(*expression, [this](BoundExprPtr& operand) { Use(operand); });
    }
};

}  // namespace

std::vector<BoundExprPtr> BindGroupBy(const std::vector<ExprPtr>& groupBy, Scope& scope)
{
    const During clause(scope.clause, Clause::GroupBy);
    std::vector<BoundExprPtr> keys;
    for (const ExprPtr& key : groupBy) {
        const std::size_t columnsBefore = scope.ownColumns;
        keys.push_back(BindValue(*key, scope));
        if (scope.ownColumns == columnsBefore)
            throw SqlError(164,
                           "Each GROUP BY expression must contain at least one column that is not an outer "
                           "reference.",
                           key->place);
    }
    return keys;
}

bool UseGroupKeys(BoundExprPtr& expression, const std::vector<BoundExprPtr>& keys, const Scope& scope,
                  Clause clause)
{
    Grouping grouping{keys, scope, clause};
    grouping.Use(expression);
    return grouping.composable;
}

}  // namespace kavelin::embedded
