// A text file of T-SQL statements with the rows or errors that they are to give.
//
//   # A comment tells the rule.                statement error 8134 Divide by zero
//   statement ok                               select 1 / 0
//   create table T (a int)
//                                              query int, nvarchar(10)
//   statement ok 2                             select a, b from T order by a
//   insert into T values (1), (2)              ----
//                                              1 | x
//   names a, 数量                               2 | NULL
//   select a, b as 数量 from T
//
// Blocks are parted by empty lines. `statement ok N` asks for N changed rows. `names` compares the names of
// the columns, `query` their types and rows, these as ShowValue gives them. `connection b` goes on with
// another connection of that name, opened when it is first named; the first is `a`. `close` closes the
// current one. `reopen` closes all, so that what was in memory goes to the file. Each file begins with an
// empty account.
#pragma once

#include <string>
#include <vector>

namespace kavelin::embedded {

enum class SqlBlockKind { Statement, Error, Query, Names, Connection, Close, Reopen };

struct SqlBlock {
    SqlBlockKind kind;
    int line = 0;          // of the file, from 1
    std::string argument;  // what stands behind the word: types, names, number and text of the error
    std::string sql;
    std::vector<std::string> rows;
};

// Throws std::runtime_error with the line for a text that has not this form.
std::vector<SqlBlock> ReadSqlTestFile(const std::string& path);

}  // namespace kavelin::embedded
