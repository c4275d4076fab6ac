// T-SQL's types in DuckDB.
#pragma once

#include "embedded/SqlType.h"

#include <string>

namespace kavelin::embedded {

// `DECIMAL(19,4)` for money. DuckDB keeps no text lengths. A bare NULL is an INTEGER, as in a select into.
std::string DuckType(const SqlType& type);

// Whether both are one type in DuckDB, so that no cast stands between them.
bool SameInDuck(const SqlType& a, const SqlType& b);

// Digits behind the point: 4 of money, 0 of whole numbers.
int ScaleOf(const SqlType& type);

// CAST(operand AS the type).
std::string Cast(const std::string& operand, const SqlType& type);

}  // namespace kavelin::embedded
