// T-SQL's rules of types: which type an operation has, and which one wins where several meet.
//
// The order of TypeKind is T-SQL's order of precedence; the rules here say what remains: lengths,
// precisions and scales.
#pragma once

#include "embedded/SqlType.h"
#include "embedded/bind/BoundTree.h"
#include "embedded/syntax/Tree.h"

#include <string_view>

namespace kavelin::embedded {

constexpr SqlType kInt{TypeKind::Int, 0, 0, 0};
constexpr SqlType kBit{TypeKind::Bit, 0, 0, 0};
constexpr SqlType kFloat{TypeKind::Float, 0, 0, 0};
constexpr SqlType kMoney{TypeKind::Money, 0, 0, 0};
constexpr SqlType kDatetime{TypeKind::Datetime, 0, 0, 0};

constexpr SqlType DecimalType(int precision, int scale)
{
    return {TypeKind::Decimal, 0, precision, scale};
}

constexpr SqlType TextType(bool national, int length)
{
    return {national ? TypeKind::Nvarchar : TypeKind::Varchar, length, 0, 0};
}

// The type without length and scale, as messages name it: "nvarchar", "numeric" for decimals.
std::string_view BaseName(TypeKind kind);

// A text without a length has one character in a definition, thirty in cast and convert.
enum class TypeUse { Definition, Cast };

// The type of that name. Throws SqlError 243 or 2715 for an unknown one, and for lengths, precisions and
// scales out of range.
SqlType TypeOf(const TypeName& name, TypeUse use);

// The decimal that holds every value of a number type: int is decimal(10,0), money decimal(19,4).
SqlType AsDecimal(const SqlType& type);

// The type of `left op right`. Both are numbers other than two bits; decimals count with their own
// precision and scale, whole numbers and money beside a decimal as AsDecimal tells.
SqlType ArithmeticType(ArithmeticOp op, const SqlType& left, const SqlType& right);

// The type of two texts joined.
SqlType ConcatType(const SqlType& left, const SqlType& right);

// The type of CASE and UNION over two types: nothing is lost but what 38 digits cannot hold; the scale
// gives way then. A Null counts for nothing.
SqlType CommonType(const SqlType& a, const SqlType& b);

// The type in which two values are compared: as CommonType, but decimals keep all their decimal places.
SqlType ComparisonType(const SqlType& a, const SqlType& b);

// The type of an aggregate over values of `argument`. Throws SqlError 8117 where the aggregate does not
// take the type.
SqlType AggregateType(AggregateKind kind, const SqlType& argument, Place place);

}  // namespace kavelin::embedded
