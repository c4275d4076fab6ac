// Conversions between T-SQL's types, as DuckDB expressions.
#pragma once

#include "embedded/SqlType.h"
#include "embedded/bind/BoundTree.h"
#include "embedded/write/Scratch.h"

#include <string>

namespace kavelin::embedded {

struct Conversion {
    ConversionKind kind = ConversionKind::Implicit;
    SqlType from, to;

    // Beside other conditions of a WHERE or ON, which may exclude the row: a text that is no number or
    // date then gives NULL in place of an error.
    bool forgiving = false;

    // Of a difference of dates: to a whole number it is rounded to the nearest, not cut.
    bool rounds = false;
};

// `operand` converted. It is of DuckType(from), or a wider number of the same scale; the result is of
// DuckType(to). NULL stays NULL. What cannot be converted stops the statement with SQL Server's number.
std::string WriteConversion(const Conversion& conversion, const std::string& operand, Scratch& scratch);

// The two halves of it that deal with texts.
std::string WriteFromText(const Conversion& conversion, const std::string& operand, Scratch& scratch);
std::string WriteToText(const Conversion& conversion, const std::string& operand, Scratch& scratch);

// As SQL Server's messages name a type: `numeric` for decimal.
std::string MessageName(const SqlType& type);

}  // namespace kavelin::embedded
