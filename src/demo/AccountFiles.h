// An account as a folder of CSV files, one a table, and back.
//
// The files are UTF-8 and follow RFC 4180: commas, texts in double quotes where needed (then they may hold
// commas, quotes doubled, and line ends), the column names in the first line. A field with nothing in it is
// NULL, `""` is the empty text. Dates are YYYY-MM-DD, with hh:mm:ss[.fff] behind where there is a time of
// day; bits are 0 and 1; decimals have all their digits.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace kavelin::demo {

// Makes the account file `account`, which must not exist yet, with its system database beside it and every
// table in it, without rows. Nothing of the files stays after a failure.
// Throws Error for an existing file, DatabaseError for what the engine refuses.
void CreateEmptyAccount(const std::filesystem::path& account);

// Rows by table.
using RowCounts = std::map<std::string, std::int64_t>;

// Adds the rows of every `TABLE.csv` in `folder` to the account: all of them, or none if one fails. A table
// of the system database is named `VosSystem..UA_Period.csv` or `UA_Period.csv`. Columns may stand in any
// order; those that a file leaves out get their default, number or NULL. Files of other endings are passed
// over. Gives the number of rows added to each table.
// Throws Error for an unknown table or column, a file that is no such CSV, and a value that is not of its
// column's type; the message tells file, line and column. Throws DatabaseError for what the engine refuses,
// such as a key that stands twice; the message tells the file.
RowCounts LoadFolder(const std::filesystem::path& account, const std::filesystem::path& folder);

// Writes every table that CreateEmptyAccount makes into `folder`, which is made if absent: loading the files
// into an empty account gives the same rows. Other tables, which reports have left, stay out. Refuses, before
// it writes anything, a folder that holds one of the files with something in it. Gives the number of rows of
// each table.
// Throws Error for such a folder and for what cannot be written.
RowCounts ExportFolder(const std::filesystem::path& account, const std::filesystem::path& folder);

}  // namespace kavelin::demo
