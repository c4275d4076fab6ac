#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

// Whether rows could become equal, or another order follow, by converting the values. Between texts
// nothing but trailing blanks can change, and those do not count; whole numbers stay what they are.
bool Changes(const BoundExpr& value, const SqlType& type)
{
    const SqlType& from = value.type;
    const bool texts = from.IsText() && type.IsText();
    const bool wholeNumbers = from.IsInteger() && type.IsInteger() && type.kind != TypeKind::Bit;
    return !AsLiteral(value) && from != type && !texts && !wholeNumbers;
}

bool HasToGoInside(const BoundQuery& query, const std::vector<ColumnInfo>& targets)
{
    const bool tellsRowsApart = query.selects.size() > 1 || query.selects.front().distinct;
    if (tellsRowsApart)
        for (const BoundSelect& select : query.selects)
            for (std::size_t i = 0; i < targets.size(); ++i)
                if (Changes(*select.items[i].expression, targets[i].type))
                    return true;
    return std::any_of(query.orderBy.begin(), query.orderBy.end(), [&](const BoundOrder& order) {
        return order.item &&
               Changes(*query.selects.front().items[*order.item].expression, targets[*order.item].type);
    });
}

// A literal of the list tells no rows apart: it is taken out as such, so that it is converted at once.
BoundExprPtr CopyOfLiteral(const BoundExpr& expression)
{
    return MakeBound(*AsLiteral(expression), expression.type, expression.nullable, expression.place,
                     expression.facts);
}

BoundExprPtr ColumnOfInner(int source, const std::string& name, const ColumnInfo& column)
{
    return MakeBound(BoundColumn{source, name}, column.type, column.nullable, Place{}, column.facts);
}

// What the inner query orders by, as columns of it; where it is no item yet, it becomes one.
std::vector<BoundOrder> OrderByColumns(BoundQuery& inner, int source)
{
    std::vector<BoundOrder> orders;
    for (BoundOrder& order : inner.orderBy) {
        std::vector<BoundItem>& items = inner.selects.front().items;
        if (!order.item) {
            order.item = items.size();
            items.push_back({"c" + std::to_string(items.size() + 1), std::move(order.expression)});
        }
        const BoundItem& item = items[*order.item];
        ColumnInfo column;
        column.type = item.expression->type;
        column.nullable = item.expression->nullable;
        column.facts = item.expression->facts;
        BoundOrder made;
        made.expression = ColumnOfInner(source, item.name, column);
        made.descending = order.descending;
        orders.push_back(std::move(made));
    }
    return orders;
}

//   select distinct a, b from t order by b
// becomes, so that what follows may convert a and b without touching rows and order,
//   select c1, c2 from (select distinct a as c1, b as c2 from t) order by c2
void GoInside(BoundQueryPtr& query, BindContext& context)
{
    const int source = context.NextSource();
    const std::vector<ColumnInfo> columns = OutputColumns(*query);
    for (BoundSelect& select : query->selects)
        for (std::size_t i = 0; i < columns.size(); ++i)
            select.items[i].name = "c" + std::to_string(i + 1);

    auto outer = std::make_unique<BoundQuery>();
    BoundSelect& select = outer->selects.emplace_back();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const BoundItem& item = query->selects.front().items[i];
        const bool literal = query->selects.size() == 1 && AsLiteral(*item.expression);
        select.items.push_back({columns[i].name, literal ? CopyOfLiteral(*item.expression)
                                                         : ColumnOfInner(source, item.name, columns[i])});
    }
    outer->orderBy = OrderByColumns(*query, source);
    if (!query->selects.front().top)
        query->orderBy.clear();

    auto derived = std::make_unique<BoundSource>();
    derived->node = BoundDerived{source, std::move(query)};
    select.from.push_back(std::move(derived));
    query = std::move(outer);
}

}  // namespace

void ConvertOutput(BoundQueryPtr& query, const std::vector<ColumnInfo>& targets, ConversionKind kind,
                   BindContext& context)
{
    for (BoundSelect& select : query->selects)
        for (std::size_t i = 0; i < targets.size(); ++i)
            if (IsBareNull(*select.items[i].expression))
                select.items[i].expression->type = targets[i].type;
    if (HasToGoInside(*query, targets))
        GoInside(query, context);
    for (BoundSelect& select : query->selects)
        for (std::size_t i = 0; i < targets.size(); ++i) {
            BoundExprPtr& value = select.items[i].expression;
            value = kind == ConversionKind::Assignment ? Assign(std::move(value), targets[i])
                                                       : Convert(std::move(value), targets[i].type, kind);
        }
}

}  // namespace kavelin::embedded
