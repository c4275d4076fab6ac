// Names and texts as DuckDB reads them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

// `a"b` as "a""b".
std::string QuoteName(std::string_view name);

// `it's` as 'it''s'. A NUL, which would end the statement for DuckDB, is written as chr(0).
std::string QuoteText(std::string_view text);

// error('[8134] Divide by zero ...'): stops the statement with SQL Server's number and text.
std::string Raise(int number, std::string_view message);

// The same for a message with a value in it: `before`, the text that `value` gives, `behind`.
std::string RaiseWith(int number, std::string_view before, std::string_view value, std::string_view behind);

std::string Join(const std::vector<std::string>& pieces, std::string_view separator);

}  // namespace kavelin::embedded
