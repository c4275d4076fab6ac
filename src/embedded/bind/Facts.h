// What is known of the values of a text expression, see TextFacts.
#pragma once

#include "embedded/TextFacts.h"
#include "embedded/bind/BoundTree.h"

namespace kavelin::embedded {

// Whether a column of those facts loses one when the value is stored in it.
bool Weakens(const TextFacts& column, const TextFacts& value);

// The facts of the text that comes out of converting a value of that type.
TextFacts FactsOfConversion(ConversionKind kind, const SqlType& from, const TextFacts& facts,
                            const SqlType& to);

TextFacts FactsOfConcat(const BoundExpr& left, const BoundExpr& right);

}  // namespace kavelin::embedded
