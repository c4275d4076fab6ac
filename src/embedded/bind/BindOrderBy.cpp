#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/BoundWalk.h"
#include "frame/Text.h"

#include <charconv>
#include <string>

namespace kavelin::embedded {

namespace {

// The item of that name. Two of one name are no matter if they are the same column.
std::optional<std::size_t> ItemNamed(const Name& name, const BoundSelect& select, Place place)
{
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        if (!EqualsNoCase(select.items[i].name, name.text))
            continue;
        if (found && !SameExpression(*select.items[*found].expression, *select.items[i].expression))
            throw SqlError(209, "Ambiguous column name '" + name.text + "'.", place);
        if (!found)
            found = i;
    }
    return found;
}

std::optional<std::size_t> ItemAtPosition(const NumberLiteral& number, std::size_t count, Place place)
{
    std::size_t position = 0;
    const char* end = number.text.data() + number.text.size();
    const auto read = std::from_chars(number.text.data(), end, position);
    if (read.ptr != end)
        return std::nullopt;
    if (read.ec != std::errc() || position == 0 || position > count)
        throw SqlError(108,
                       "The ORDER BY position number " + number.text +
                           " is out of range of the number of items in the select list.",
                       place);
    return position - 1;
}

// What ORDER BY names of the list: `order by 2`, `order by alias`.
std::optional<std::size_t> ItemOf(const Expr& expression, const BoundSelect& select)
{
    if (const auto* number = std::get_if<NumberLiteral>(&expression.node))
        return ItemAtPosition(*number, select.items.size(), expression.place);
    const auto* column = std::get_if<ColumnRef>(&expression.node);
    if (column && !column->table)
        return ItemNamed(column->column, select, expression.place);
    return std::nullopt;
}

}  // namespace

std::vector<BoundOrder> BindOrderBy(const std::vector<OrderItem>& orderBy, const BoundSelect& select,
                                    Scope& scope)
{
    const During clause(scope.clause, Clause::OrderBy);
    std::vector<BoundOrder> bound;
    for (const OrderItem& order : orderBy) {
        BoundOrder made;
        made.descending = order.descending;
        made.item = ItemOf(WithoutBrackets(*order.expression), select);
        if (!made.item) {
            made.expression = BindValue(*order.expression, scope);
            if (AsLiteral(*made.expression))
                throw SqlError(408,
                               "A constant expression was encountered in the ORDER BY list, position " +
                                   std::to_string(bound.size() + 1) + ".",
                               order.expression->place);
        }
        bound.push_back(std::move(made));
    }
    return bound;
}

void SettleOrder(std::vector<BoundOrder>& orderBy, const BoundSelect& select)
{
    for (BoundOrder& order : orderBy) {
        for (std::size_t i = 0; i < select.items.size() && !order.item; ++i)
            if (SameExpression(*order.expression, *select.items[i].expression))
                order.item = i;
        if (order.item)
            order.expression.reset();
        else if (select.distinct)
            throw SqlError(145,
                           "ORDER BY items must appear in the select list if SELECT DISTINCT is specified.",
                           order.expression->place);
    }
}

std::vector<BoundOrder> BindUnionOrder(const std::vector<OrderItem>& orderBy, const BoundSelect& first)
{
    std::vector<BoundOrder> bound;
    for (const OrderItem& order : orderBy) {
        const Expr& expression = WithoutBrackets(*order.expression);
        BoundOrder made;
        made.descending = order.descending;
        made.item = ItemOf(expression, first);
        if (!made.item) {
            const auto* column = std::get_if<ColumnRef>(&expression.node);
            if (column && !column->table)
                throw SqlError(207, "Invalid column name '" + column->column.text + "'.", expression.place);
            throw SqlError(104,
                           "ORDER BY items must appear in the select list if the statement contains a UNION, "
                           "INTERSECT or EXCEPT operator.",
                           expression.place);
        }
        bound.push_back(std::move(made));
    }
    return bound;
}

}  // namespace kavelin::embedded
