// Long statements as lines for a reader: a clause a line, an item a line where they don't fit, what stands in
// brackets further in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kavelin::embedded {

constexpr std::size_t kLayoutWidth = 110;

// One statement, of DuckDB's SQL or of the binder's own writing, without line ends in it. The first line
// begins at column `indent` and is not indented; those behind it are. Literals and names are never broken, so
// a line may be longer than kLayoutWidth by one of them.
std::string LayOut(std::string_view statement, std::size_t indent = 0);

}  // namespace kavelin::embedded
