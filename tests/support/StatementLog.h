// The statements that a test sent, and their comparison with the reviewed files under tests/statements.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kavelin::test {

struct SentStatement {
    int connection = 0;  // number of the connection, from 1
    std::string sql;
};

// Each statement under a line "-- NUMBER #CONNECTION", CR LF stored as LF. Throws std::logic_error for a
// CR or a LF that stands alone: a statement's lines end in CR LF.
std::string LogText(const std::vector<SentStatement>& statements);

// Fails the running test unless the statements are those of the file tests/statements/NAME.sql. With
// KAVELIN_REWRITE=1 in the environment the file is written instead, to be reviewed as a diff.
void ExpectStatements(const std::vector<SentStatement>& statements, const std::string& name);

// Appends the JSON line {"sql", "connection", "ms", "rows", "error"} to the file that KAVELIN_SQL_LOG names,
// if it names one. `rows` below 0 and an empty `error` are written as null.
void AppendToSqlLog(const SentStatement& statement, double milliseconds, std::int64_t rows,
                    const std::string& error);

}  // namespace kavelin::test
