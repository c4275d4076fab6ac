#include "embedded/write/DuckErrors.h"

#include <charconv>

namespace kavelin::embedded {

namespace {

// What DuckDB says in one place, and SQL Server's words for it.
struct Wording {
    std::string_view has, also;
    int number;
    std::string_view text;
};

constexpr std::string_view kTwoRows =
    "Subquery returned more than 1 value. This is not permitted when the subquery follows "
    "=, !=, <, <= , >, >= "
    "or when the subquery is used as an expression.";

constexpr std::string_view kTooDeep =
    "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up into smaller "
    "queries.";

constexpr Wording kWordings[] = {
    {"More than one row returned by a subquery", "", 512, kTwoRows},
    {"expression depth limit", "", 191, kTooDeep},
    {"memory exhausted at or near", "", 191, kTooDeep},  // the same from its parser
    {"Could not convert string", "", 8114, "Error converting data type nvarchar to numeric."},
    {" type UINT8", "", 8115, "Arithmetic overflow error converting expression to data type tinyint."},
    {" type INT16", "", 8115, "Arithmetic overflow error converting expression to data type smallint."},
    {" type INT32", "", 8115, "Arithmetic overflow error converting expression to data type int."},
    {" type INT64", "", 8115, "Arithmetic overflow error converting expression to data type bigint."},
    {"DECIMAL(19,4)", "", 8115, "Arithmetic overflow error converting expression to data type money."},
    {"type DECIMAL(", "failed", 8115,
     "Arithmetic overflow error converting expression to data type numeric."},
    {"to DECIMAL(", "ould not", 8115,
     "Arithmetic overflow error converting expression to data type numeric."},
    {"Overflow in", " INT16 ", 8115,
     "Arithmetic overflow error converting expression to data type smallint."},
    {"Overflow in", " INT32 ", 8115, "Arithmetic overflow error converting expression to data type int."},
    {"Overflow in", " INT64 ", 8115, "Arithmetic overflow error converting expression to data type bigint."},
    {"Overflow in", "", 8115, "Arithmetic overflow error converting expression to data type numeric."},
    {"Duplicate key", "primary key", 2627,
     "Violation of PRIMARY KEY constraint. Cannot insert duplicate key."},
    {"Duplicate key", "lower(rtrim(", 2627,
     "Violation of PRIMARY KEY constraint. Cannot insert duplicate key."},
    {"Duplicate key", "", 2601, "Cannot insert duplicate key row in object with unique index."},
};

bool Has(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

// "Invalid Input Error: x" is "x".
std::string_view WithoutKind(std::string_view message)
{
    const std::size_t end = message.find("Error: ");
    const bool isKind = end != std::string_view::npos && end < 40 &&
                        message.substr(0, end).find_first_of("[\n") == std::string_view::npos;
    return isKind ? message.substr(end + 7) : message;
}

}  // namespace

SqlMessage SqlErrorOfDuck(std::string_view message)
{
    const std::string_view text = WithoutKind(message);
    if (text.substr(0, 1) == "[") {
        int number = 0;
        const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), number);
        const auto at = static_cast<std::size_t>(end - text.data());
        if (error == std::errc() && text.substr(at, 2) == "] ")
            return {number, std::string(text.substr(at + 2))};
    }
    // Only the first line: behind it DuckDB quotes the statement, where anything may stand.
    const std::string_view first = text.substr(0, text.find('\n'));
    for (const Wording& wording : kWordings)
        if (Has(first, wording.has) && Has(first, wording.also))
            return {wording.number, std::string(wording.text)};
    return {0, std::string(first)};
}

}  // namespace kavelin::embedded
