// Values as T-SQL writes them.
#pragma once

#include "embedded/SqlType.h"
#include "frame/Value.h"

#include <string>

namespace kavelin::snapshot {

// A constant that both SQL Server and the embedded engine read back as the same value: N'...' for a text,
// 'yyyymmdd hh:mm:ss.mmm' for a date, all digits of a decimal, a float with an exponent, null for null and
// empty.
std::string Literal(const Value& value);

// The value as a column of `type` holds it; empty becomes null. Throws embedded::BadValue for a value that
// the column does not take.
Value ValueFor(const Value& value, const embedded::SqlType& type);

}  // namespace kavelin::snapshot
