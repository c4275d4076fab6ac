// Bound nodes made by hand, as the binder makes them.
#pragma once

#include "embedded/bind/BoundTree.h"

#include <string>
#include <utility>
#include <vector>

namespace kavelin::embedded::build {

inline const SqlType kBit{.kind = TypeKind::Bit};
inline const SqlType kTinyint{.kind = TypeKind::Tinyint};
inline const SqlType kSmallint{.kind = TypeKind::Smallint};
inline const SqlType kInt{.kind = TypeKind::Int};
inline const SqlType kBigint{.kind = TypeKind::Bigint};
inline const SqlType kMoney{.kind = TypeKind::Money};
inline const SqlType kFloat{.kind = TypeKind::Float};
inline const SqlType kDatetime{.kind = TypeKind::Datetime};
inline const TextFacts kFolded{.noTrailingBlanks = true, .noCase = true};

inline SqlType Decimal(int precision, int scale)
{
    return {.kind = TypeKind::Decimal, .precision = precision, .scale = scale};
}

inline SqlType Nvarchar(int length)
{
    return {.kind = TypeKind::Nvarchar, .length = length};
}

inline SqlType Varchar(int length)
{
    return {.kind = TypeKind::Varchar, .length = length};
}

template <class Node>
BoundExprPtr Expression(Node node, const SqlType& type = kBit, bool nullable = true, TextFacts facts = {})
{
    auto expression = std::make_unique<BoundExpr>();
    expression->node = std::move(node);
    expression->type = type;
    expression->nullable = nullable;
    expression->facts = facts;
    return expression;
}

inline BoundExprPtr Literal(const std::string& text, const SqlType& type)
{
    return Expression(BoundLiteral{.text = text}, type, false);
}

inline BoundExprPtr Number(int number)
{
    return Literal(std::to_string(number), kInt);
}

inline BoundExprPtr Text(const std::string& text)
{
    return Literal(text, Nvarchar(static_cast<int>(text.size())));
}

inline BoundExprPtr Null(const SqlType& type = {})
{
    return Expression(BoundLiteral{.null = true, .text = ""}, type);
}

// A column of the source with the number 1.
inline BoundExprPtr Column(const std::string& name, const SqlType& type, TextFacts facts = {}, int source = 1)
{
    return Expression(BoundColumn{source, name}, type, true, facts);
}

inline BoundExprPtr Convert(BoundExprPtr operand, const SqlType& type,
                            ConversionKind kind = ConversionKind::Implicit)
{
    return Expression(BoundConversion{kind, std::move(operand), ""}, type);
}

inline BoundExprPtr Assign(BoundExprPtr operand, const SqlType& type, bool nullable,
                           const std::string& target)
{
    return Expression(BoundConversion{ConversionKind::Assignment, std::move(operand), target}, type,
                      nullable);
}

inline BoundExprPtr Compute(BoundExprPtr left, ArithmeticOp op, BoundExprPtr right, const SqlType& type)
{
    return Expression(BoundArithmetic{op, std::move(left), std::move(right)}, type);
}

inline BoundExprPtr Compare(BoundExprPtr left, ComparisonOp op, BoundExprPtr right)
{
    return Expression(BoundComparison{op, std::move(left), std::move(right)});
}

inline BoundExprPtr Equal(BoundExprPtr left, BoundExprPtr right)
{
    return Compare(std::move(left), ComparisonOp::Equal, std::move(right));
}

inline BoundExprPtr Both(BoundExprPtr left, BoundExprPtr right)
{
    return Expression(BoundLogical{LogicalOp::And, std::move(left), std::move(right)});
}

inline BoundExprPtr IsNull(BoundExprPtr value, BoundExprPtr instead)
{
    const SqlType type = value->type;
    BoundFunction function{BoundFunctionKind::IsNull, {}};
    function.arguments.push_back(std::move(value));
    function.arguments.push_back(std::move(instead));
    return Expression(std::move(function), type, false);
}

inline BoundExprPtr Aggregate(AggregateKind kind, BoundExprPtr argument, const SqlType& type,
                              bool distinct = false)
{
    return Expression(BoundAggregate{kind, distinct, std::move(argument)}, type);
}

inline BoundExprPtr When(BoundExprPtr condition, BoundExprPtr result, BoundExprPtr otherwise,
                         const SqlType& type)
{
    BoundCase choice;
    choice.branches.push_back({std::move(condition), std::move(result)});
    choice.otherwise = std::move(otherwise);
    return Expression(std::move(choice), type);
}

inline BoundExprPtr Like(BoundExprPtr operand, const std::string& pattern, bool negated = false)
{
    return Expression(BoundLike{std::move(operand), Text(pattern), negated});
}

// The n-th expression of GROUP BY.
inline BoundExprPtr Key(std::size_t index, const SqlType& type, TextFacts facts = {})
{
    return Expression(BoundGroupKey{index}, type, true, facts);
}

// --- queries -----------------------------------------------------------------------------------

inline BoundSourcePtr TableNamed(const std::string& name, int number = 1)
{
    return std::make_unique<BoundSource>(BoundSource{BoundTable{number, "\"" + name + "\""}});
}

inline BoundSourcePtr Joined(JoinKind kind, BoundSourcePtr left, BoundSourcePtr right, BoundExprPtr on)
{
    return std::make_unique<BoundSource>(
        BoundSource{BoundJoin{kind, std::move(left), std::move(right), std::move(on)}});
}

inline BoundSelect From(BoundSourcePtr source)
{
    BoundSelect select;
    if (source)
        select.from.push_back(std::move(source));
    return select;
}

inline BoundSelect& Item(BoundSelect& select, const std::string& name, BoundExprPtr expression)
{
    select.items.push_back({name, std::move(expression)});
    return select;
}

inline BoundQueryPtr QueryOf(BoundSelect select)
{
    auto query = std::make_unique<BoundQuery>();
    query->selects.push_back(std::move(select));
    return query;
}

inline BoundQueryPtr OrderedBy(BoundQueryPtr query, std::size_t item, bool descending = false)
{
    query->orderBy.push_back({item, nullptr, descending});
    return query;
}

inline BoundQueryPtr OrderedBy(BoundQueryPtr query, BoundExprPtr expression, bool descending = false)
{
    query->orderBy.push_back({std::nullopt, std::move(expression), descending});
    return query;
}

}  // namespace kavelin::embedded::build
