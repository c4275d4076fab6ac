// Literals as T-SQL reads them: a number's type follows from its digits, and a text that meets a number
// or a date becomes one when the statement is compiled.
#pragma once

#include "embedded/SqlType.h"
#include "embedded/syntax/Tree.h"

#include <string>
#include <string_view>
#include <variant>

namespace kavelin::embedded {

struct NumberRead {
    std::string text;  // "7" of `07`, "0.5" of `.5`
    SqlType type;      // int, decimal of its digits, or float where an exponent stands
};

// A number as the lexer gives it, without a sign. More than 38 digits throw SqlError 1007 with `place`.
NumberRead ReadNumber(std::string_view text, Place place);

// Whole digits of a plain number, at least 1 for a whole number: 3 of "-100", 0 of "0.5".
int WholeDigitsOf(std::string_view number);
// Decimal places: 2 of "1.50".
int ScaleOf(std::string_view number);

// A plain number with exactly `scale` decimal places, rounded half away from zero: "1.50" of "1.5" and 2.
std::string RoundTo(std::string_view number, int scale);

struct LiteralError {
    int number;
    std::string message;
};

// The text of a literal as BoundLiteral asks for it, or SQL Server's error.
using ReadLiteral = std::variant<std::string, LiteralError>;

// A text as the literal of a number or datetime type. `from` is the text's own type, for the message.
// Blanks at either end do not count. The empty text is 0 and 1900-01-01; as a decimal it is an error.
ReadLiteral ReadTextAs(const SqlType& type, std::string_view text, const SqlType& from);

}  // namespace kavelin::embedded
