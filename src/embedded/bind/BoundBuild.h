// Making and looking into bound expressions.
#pragma once

#include "embedded/bind/BoundTree.h"

#include <memory>
#include <string>
#include <utility>

namespace kavelin::embedded {

template <class Node>
BoundExprPtr MakeBound(Node node, const SqlType& type, bool nullable, Place place, TextFacts facts = {})
{
    auto made = std::make_unique<BoundExpr>();
    made->node = std::move(node);
    made->type = type;
    made->nullable = nullable;
    made->facts = facts;
    made->place = place;
    return made;
}

// A condition: neither its type nor its nullability is used.
template <class Node>
BoundExprPtr MakeCondition(Node node, Place place)
{
    return MakeBound(std::move(node), SqlType{}, true, place);
}

// A null of that type; it has all facts, since it is no text that could break them.
inline BoundExprPtr MakeNull(const SqlType& type, Place place)
{
    return MakeBound(BoundLiteral{true, {}}, type, true, place, TextFacts{true, true});
}

inline const BoundLiteral* AsLiteral(const BoundExpr& expression)
{
    return std::get_if<BoundLiteral>(&expression.node);
}

// A null as written, which takes the type of what it meets; not cast(null as int).
inline bool IsBareNull(const BoundExpr& expression)
{
    const BoundLiteral* literal = AsLiteral(expression);
    return literal && literal->null && expression.type.kind == TypeKind::Null;
}

// A literal other than null.
inline bool IsConstant(const BoundExpr& expression)
{
    const BoundLiteral* literal = AsLiteral(expression);
    return literal && !literal->null;
}

}  // namespace kavelin::embedded
