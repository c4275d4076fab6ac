// Conversions between T-SQL's types. A literal is converted at once; everything else gets a node.
#pragma once

#include "embedded/bind/BoundTree.h"

#include <vector>

namespace kavelin::embedded {

// What becomes of a text literal that is no number or date, where one is needed.
enum class BadLiteral {
    Refuse,  // the error is certain: it is thrown now
    Defer,   // the value may never be asked for: the conversion is left to the run
};

// `operand` as a value of `type`. Texts are not converted to longer ones, but by Explicit, which always
// gives the very type. Throws SqlError 257 where T-SQL asks for cast or convert, and 245, 8114, 241 ...
// for a literal as `bad` tells.
BoundExprPtr Convert(BoundExprPtr operand, const SqlType& type, ConversionKind kind,
                     BadLiteral bad = BadLiteral::Defer);

// `operand` as a text, for LIKE and LEFT: a text as it is, anything else converted.
BoundExprPtr AsText(BoundExprPtr operand);

// `value` as it is stored in `column` by an insert or update.
BoundExprPtr Assign(BoundExprPtr value, const ColumnInfo& column);

// Converts values that are compared with each other to one type: the highest of them, but a literal takes
// the type of the rest where it fits into it. Where there is nothing but nulls, they are ints.
void AlignForComparison(const std::vector<BoundExprPtr*>& values);

// The type in which AlignForComparison compares them.
SqlType TypeForComparison(const std::vector<const BoundExpr*>& values);

// Converts the results of a CASE to their common type and gives it; Null if all are bare nulls.
SqlType AlignForChoice(const std::vector<BoundExprPtr*>& values);

}  // namespace kavelin::embedded
