// The columns of a table or view as the text that stands in the file beside it, as DuckDB's comment on the
// object: T-SQL's types, nullability, identity, defaults and facts, which DuckDB does not keep.
//
//   kavelin 1
//   AutoID|int|ni|
//   cInvCode|nvarchar(20)|bc|
//   bCheckBatch|bit|n|=false
//   cInvName|nvarchar(60)|b||0|Inventory|cInvName
//
// One line a column: name, type, marks, default, and of a view's column its origins: number of the database,
// object, column. Marks: n NOT NULL, i identity, b no trailing blanks, c no case. A default has `=` in front. A
// backslash stands before `|` and itself; `\n` and `\r` stand for line ends.
#pragma once

#include "embedded/Catalog.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

std::string WriteColumns(const std::vector<ColumnInfo>& columns);

// Nothing if the text was not written by WriteColumns.
std::optional<std::vector<ColumnInfo>> ReadColumns(std::string_view text);

}  // namespace kavelin::embedded
