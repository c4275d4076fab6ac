// Operators as text, with a blank on each side: T-SQL and DuckDB write them alike.
#pragma once

#include "embedded/syntax/Tree.h"

#include <string_view>

namespace kavelin::embedded {

std::string_view OperatorText(ArithmeticOp op);
std::string_view OperatorText(ComparisonOp op);

}  // namespace kavelin::embedded
