#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/Literals.h"
#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

BoundExprPtr BindNumber(const NumberLiteral& literal, Place place)
{
    NumberRead read = ReadNumber(literal.text, place);
    return MakeBound(BoundLiteral{false, std::move(read.text)}, read.type, false, place);
}

BoundExprPtr BindText(const TextLiteral& literal, Place place)
{
    const int length = std::max(1, static_cast<int>(Length(literal.value)));
    return MakeBound(BoundLiteral{false, literal.value}, TextType(literal.national, length), false, place,
                     FactsOf(literal.value));
}

BoundExprPtr BindScalarSubquery(const ScalarSubquery& subquery, Place place, Scope& scope)
{
    BoundQueryPtr query = BindSubquery(*subquery.query, QueryUse::Scalar, place, scope);
    const ColumnInfo column = OutputColumns(*query).front();
    return MakeBound(BoundScalarSubquery{std::move(query)}, column.type, true, place, column.facts);
}

// Turns one node of the syntax tree into its bound node.
struct ValueBinder {
    Place place;
    Scope& scope;

    BoundExprPtr operator()(const NumberLiteral& node) const { return BindNumber(node, place); }
    BoundExprPtr operator()(const TextLiteral& node) const { return BindText(node, place); }
    BoundExprPtr operator()(const NullLiteral&) const { return MakeNull(SqlType{}, place); }
    BoundExprPtr operator()(const ColumnRef& node) const { return BindColumn(node, place, scope); }
    BoundExprPtr operator()(const Brackets& node) const { return BindValue(*node.inner, scope); }
    BoundExprPtr operator()(const Signed& node) const { return BindSigned(node, place, scope); }
    BoundExprPtr operator()(const Arithmetic& node) const { return BindArithmetic(node, place, scope); }
    BoundExprPtr operator()(const CaseExpr& node) const { return BindCase(node, place, scope); }
    BoundExprPtr operator()(const CastExpr& node) const { return BindCast(node, place, scope); }
    BoundExprPtr operator()(const ConvertExpr& node) const { return BindConvert(node, place, scope); }
    BoundExprPtr operator()(const FunctionCall& node) const { return BindFunction(node, place, scope); }
    BoundExprPtr operator()(const ScalarSubquery& node) const
    {
        return BindScalarSubquery(node, place, scope);
    }

    BoundExprPtr operator()(const Star&) const { throw SqlError(102, "Incorrect syntax near '*'.", place); }
    BoundExprPtr operator()(const IdentityExpr&) const
    {
        throw SqlError(177,
                       "The IDENTITY function can only be used when the SELECT statement has an INTO clause.",
                       place);
    }
    template <class Condition>
    BoundExprPtr operator()(const Condition&) const
    {
        throw SqlError(102, "Incorrect syntax: a condition stands where a value is needed.", place);
    }
};

}  // namespace

BoundExprPtr BindValue(const Expr& expression, Scope& scope)
{
    const BindContext::Level level(scope.Context(), expression.place);
    scope.Context().CountNode(expression.place);
    return std::visit(ValueBinder{expression.place, scope}, expression.node);
}

const Expr& WithoutBrackets(const Expr& expression)
{
    const Expr* inner = &expression;
    while (const auto* brackets = std::get_if<Brackets>(&inner->node))
        inner = brackets->inner.get();
    return *inner;
}

}  // namespace kavelin::embedded
