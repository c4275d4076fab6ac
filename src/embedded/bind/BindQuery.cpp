#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/RunningSums.h"
#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <algorithm>
#include <set>

namespace kavelin::embedded {

namespace {

bool IsWithin(QueryUse use)
{
    return use != QueryUse::Rows && use != QueryUse::Into && use != QueryUse::Insert;
}

// `into` belongs to the first select of a statement; order is of no use within, unless top needs it.
void CheckClauses(const Query& query, QueryUse use)
{
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        const auto& into = query.selects[i].into;
        if (into && (i != 0 || use != QueryUse::Into))
            throw SqlError(156, "Incorrect syntax near the keyword 'into'.", into->place);
    }
    const bool topNeedsOrder = query.selects.size() == 1 && query.selects.front().top;
    if (IsWithin(use) && !query.orderBy.empty() && !topNeedsOrder)
        throw SqlError(1033,
                       "The ORDER BY clause is invalid in views, inline functions, derived tables, "
                       "subqueries, and common table expressions, unless TOP or FOR XML is also specified.",
                       query.orderBy.front().expression->place);
}

// `exists(select * ...)` asks for rows, not for columns.
bool OnlyRowsMatter(const Select& select, QueryUse use)
{
    if (use != QueryUse::Exists || select.distinct || !select.groupBy.empty() || select.having ||
        select.from.empty() || select.items.size() != 1)
        return false;
    const auto* star = std::get_if<Star>(&select.items.front().expression->node);
    return star && !star->table;
}

std::vector<BoundItem> BindItems(const Select& select, QueryUse use, Scope& scope)
{
    if (!OnlyRowsMatter(select, use))
        return BindSelectList(select, use, scope);
    std::vector<BoundItem> items;
    items.push_back(
        {{}, MakeBound(BoundLiteral{false, "1"}, kInt, false, select.items.front().expression->place)});
    return items;
}

// Clauses are bound in the order in which they take effect; which expressions are group keys shows when
// all are bound, for an aggregate in ORDER BY groups as well.
BoundSelect BindSelect(const Select& select, const std::vector<OrderItem>& orderBy,
                       std::vector<BoundOrder>& boundOrder, QueryUse use, Scope& scope)
{
    BoundSelect bound;
    bound.distinct = select.distinct;
    bound.top = select.top;
    bound.from = BindFrom(select.from, scope);
    bound.where = BindWhere(select.where, scope);
    bound.groupBy = BindGroupBy(select.groupBy, scope);
    bound.items = BindItems(select, use, scope);
    if (select.having) {
        const During clause(scope.clause, Clause::Having);
        bound.having = BindCondition(*select.having, scope);
    }
    boundOrder = BindOrderBy(orderBy, bound, scope);

    bound.grouped = !bound.groupBy.empty() || bound.having || scope.hasAggregates;
    if (bound.grouped) {
        bound.composable = true;
        const auto useKeys = [&](BoundExprPtr& expression, Clause clause) {
            if (expression && !UseGroupKeys(expression, bound.groupBy, scope, clause))
                bound.composable = false;
        };
        for (BoundItem& item : bound.items)
            useKeys(item.expression, Clause::List);
        useKeys(bound.having, Clause::Having);
        for (BoundOrder& order : boundOrder)
            useKeys(order.expression, Clause::OrderBy);
    }
    SettleOrder(boundOrder, bound);
    UseRunningSums(bound, boundOrder, scope);
    return bound;
}

// A bare null that meets nothing is an int, but for an insert, which gives it its column's type.
void TypeBareNulls(BoundSelect& select, QueryUse use)
{
    for (BoundItem& item : select.items)
        if (IsBareNull(*item.expression) && use != QueryUse::Insert)
            item.expression = Convert(std::move(item.expression), kInt, ConversionKind::Implicit);
}

// Brings the selects of a union to the same types.
void AlignUnion(std::vector<BoundSelect>& selects, Place place)
{
    const std::size_t count = selects.front().items.size();
    for (const BoundSelect& select : selects)
        if (select.items.size() != count)
            throw SqlError(205,
                           "All queries combined using a UNION, INTERSECT or EXCEPT operator must have an "
                           "equal "
                           "number of expressions in their target lists.",
                           place);
    for (std::size_t i = 0; i < count; ++i) {
        std::vector<BoundExprPtr*> column;
        for (BoundSelect& select : selects)
            column.push_back(&select.items[i].expression);
        if (AlignForChoice(column).kind == TypeKind::Null)
            for (BoundExprPtr* value : column)
                *value = Convert(std::move(*value), kInt, ConversionKind::Implicit);
    }
}

}  // namespace

BoundQueryPtr BindQuery(const Query& query, QueryUse use, BindContext& context, Scope* outer)
{
    CheckClauses(query, use);
    const std::vector<OrderItem> noOrder;
    const bool single = query.selects.size() == 1;
    auto bound = std::make_unique<BoundQuery>();
    for (const Select& select : query.selects) {
        Scope scope(context, outer);
        std::vector<BoundOrder> order;
        bound->selects.push_back(BindSelect(select, single ? query.orderBy : noOrder, order, use, scope));
        bound->orderBy = std::move(order);
    }
    if (single) {
        TypeBareNulls(bound->selects.front(), use);
        return bound;
    }
    bound->unionAll = query.unionAll;
    AlignUnion(bound->selects, query.place);
    bound->orderBy = BindUnionOrder(query.orderBy, bound->selects.front());
    return bound;
}

BoundQueryPtr BindSubquery(const Query& query, QueryUse use, Place place, Scope& scope)
{
    if (scope.insideAggregate)
        throw SqlError(130,
                       "Cannot perform an aggregate function on an expression containing an aggregate or a "
                       "subquery.",
                       place);
    if (scope.clause == Clause::GroupBy)
        throw SqlError(144,
                       "Cannot use an aggregate or a subquery in an expression used for the group by list of "
                       "a "
                       "GROUP BY clause.",
                       place);
    BoundQueryPtr bound = BindQuery(query, use, scope.Context(), &scope);
    if (use != QueryUse::Exists && bound->selects.front().items.size() != 1)
        throw SqlError(116,
                       "Only one expression can be specified in the select list when the subquery is not "
                       "introduced with EXISTS.",
                       place);
    return bound;
}

std::vector<ColumnInfo> OutputColumns(const BoundQuery& query)
{
    std::vector<ColumnInfo> columns;
    for (const BoundItem& item : query.selects.front().items) {
        ColumnInfo column;
        column.name = item.name;
        column.nullable = false;
        column.facts = {true, true};
        columns.push_back(std::move(column));
    }
    for (const BoundSelect& select : query.selects)
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const BoundExpr& expression = *select.items[i].expression;
            columns[i].type = CommonType(columns[i].type, expression.type);
            columns[i].nullable = columns[i].nullable || expression.nullable;
            columns[i].facts = Both(columns[i].facts, expression.facts);
        }
    for (ColumnInfo& column : columns)
        if (!column.type.IsText())
            column.facts = {};
    return columns;
}

std::vector<ColumnInfo> NamedColumns(const BoundQuery& query, const std::string& object, Place place,
                                     NameError refuse)
{
    std::vector<ColumnInfo> columns = OutputColumns(query);
    std::set<std::string_view, LessNoCase> names;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.empty() || !names.insert(columns[i].name).second)
            throw refuse(columns[i].name, i, object, place);
    return columns;
}

}  // namespace kavelin::embedded
