#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/TypeRules.h"

namespace kavelin::embedded {

namespace {

BoundExprPtr BindBetween(const BetweenTest& test, Place place, Scope& scope)
{
    BoundBetween bound{BindValue(*test.operand, scope), BindValue(*test.low, scope),
                       BindValue(*test.high, scope), test.negated};
    AlignForComparison({&bound.operand, &bound.low, &bound.high});
    return MakeCondition(std::move(bound), place);
}

BoundExprPtr BindInList(const InListTest& test, Place place, Scope& scope)
{
    BoundInList bound{BindValue(*test.operand, scope), {}, test.negated};
    for (const ExprPtr& item : test.items)
        bound.items.push_back(BindValue(*item, scope));
    std::vector<BoundExprPtr*> values{&bound.operand};
    for (BoundExprPtr& item : bound.items)
        values.push_back(&item);
    AlignForComparison(values);
    return MakeCondition(std::move(bound), place);
}

BoundExprPtr BindInQuery(const InQueryTest& test, Place place, Scope& scope)
{
    BoundExprPtr operand = BindValue(*test.operand, scope);
    BoundQueryPtr query = BindSubquery(*test.query, QueryUse::In, place, scope);
    const ColumnInfo column = OutputColumns(*query).front();
    const BoundExprPtr stand = MakeBound(BoundColumn{0, column.name}, column.type, true, place);
    const SqlType common = TypeForComparison({operand.get(), stand.get()});
    if (IsBareNull(*operand) || !common.IsText())
        operand = Convert(std::move(operand), common, ConversionKind::Implicit, BadLiteral::Refuse);
    if (!common.IsText()) {
        ColumnInfo target;
        target.type = common;
        ConvertOutput(query, {target}, ConversionKind::Implicit, scope.Context());
    }
    return MakeCondition(BoundInQuery{std::move(operand), std::move(query), test.negated}, place);
}

BoundExprPtr BindLike(const LikeTest& test, Place place, Scope& scope)
{
    BoundExprPtr operand = AsText(BindValue(*test.operand, scope));
    BoundExprPtr pattern = AsText(BindValue(*test.pattern, scope));
    return MakeCondition(BoundLike{std::move(operand), std::move(pattern), test.negated}, place);
}

BoundExprPtr BindNullTest(const IsNullTest& test, Place place, Scope& scope)
{
    BoundExprPtr operand = BindValue(*test.operand, scope);
    if (IsBareNull(*operand))
        operand = Convert(std::move(operand), kInt, ConversionKind::Implicit);
    return MakeCondition(BoundNullTest{std::move(operand), test.negated}, place);
}

struct ConditionBinder {
    Place place;
    Scope& scope;

    BoundExprPtr operator()(const Brackets& node) const { return BindCondition(*node.inner, scope); }
    BoundExprPtr operator()(const Comparison& node) const
    {
        BoundExprPtr left = BindValue(*node.left, scope);
        return BindComparison(node.op, std::move(left), BindValue(*node.right, scope), place);
    }
    BoundExprPtr operator()(const Logical& node) const
    {
        BoundExprPtr left = BindCondition(*node.left, scope);
        BoundExprPtr right = BindCondition(*node.right, scope);
        return MakeCondition(BoundLogical{node.op, std::move(left), std::move(right)}, place);
    }
    BoundExprPtr operator()(const NotExpr& node) const
    {
        return MakeCondition(BoundNot{BindCondition(*node.operand, scope)}, place);
    }
    BoundExprPtr operator()(const IsNullTest& node) const { return BindNullTest(node, place, scope); }
    BoundExprPtr operator()(const BetweenTest& node) const { return BindBetween(node, place, scope); }
    BoundExprPtr operator()(const InListTest& node) const { return BindInList(node, place, scope); }
    BoundExprPtr operator()(const InQueryTest& node) const { return BindInQuery(node, place, scope); }
    BoundExprPtr operator()(const LikeTest& node) const { return BindLike(node, place, scope); }
    BoundExprPtr operator()(const ExistsTest& node) const
    {
        return MakeCondition(BoundExists{BindSubquery(*node.query, QueryUse::Exists, place, scope)}, place);
    }
    template <class Value>
    BoundExprPtr operator()(const Value&) const
    {
        throw SqlError(4145,
                       "An expression of non-boolean type specified in a context where a condition is "
                       "expected.",
                       place);
    }
};

}  // namespace

BoundExprPtr BindCondition(const Expr& expression, Scope& scope)
{
    const BindContext::Level level(scope.Context(), expression.place);
    scope.Context().CountNode(expression.place);
    return std::visit(ConditionBinder{expression.place, scope}, expression.node);
}

BoundExprPtr BindComparison(ComparisonOp op, BoundExprPtr left, BoundExprPtr right, Place place)
{
    AlignForComparison({&left, &right});
    return MakeCondition(BoundComparison{op, std::move(left), std::move(right)}, place);
}

BoundExprPtr BindWhere(const ExprPtr& where, Scope& scope)
{
    if (!where)
        return nullptr;
    const During clause(scope.clause, Clause::Where);
    return BindCondition(*where, scope);
}

}  // namespace kavelin::embedded
