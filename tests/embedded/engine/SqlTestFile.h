// A text file of T-SQL statements with the rows or errors that they are to give.
//
//   # S14 T28: The comment tells the rule.     statement error 8134 Divide by zero
//   statement ok                               select 1 / 0
//   create table T (a int)
//                                              query int, nvarchar(10)
//   statement ok 2                             select a, b from T order by a
//   insert into T values (1), (2)              ----
//                                              1 | x
//   names a, 数量                               2 | NULL
//   select a, b as 数量 from T
//
// S14 and T28 are marks of docs/t-sql.md. They hold for the blocks below, up to the next comment. An error
// may say where it is: `statement error 102 at 2:8 near 'x'` stands in line 2, column 8 of the statement.
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
    int line = 0;                    // of the file, from 1
    std::vector<std::string> marks;  // of the rules that it tests
    std::string argument;            // behind the word: types, names, number and text of the error
    std::string sql;
    std::vector<std::string> rows;
};

// Whether the block compares something: rows, names, an error, a number of rows.
bool Compares(const SqlBlock& block);

// The files of tests/embedded/sql, sorted.
std::vector<std::string> SqlTestFiles();

// Throws std::runtime_error with the line for a text that has not this form.
std::vector<SqlBlock> ReadSqlTestFile(const std::string& path);

}  // namespace kavelin::embedded
