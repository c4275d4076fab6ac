// Statements as long as the longest of the system, and the tables that they read.
#pragma once

#include <string>
#include <vector>

namespace kavelin::embedded {

struct LongStatement {
    std::string name, text;
};

// A batch of `create table`.
std::string TablesOfLongStatements();

// An insert of 124 columns over a join of ten tables, a select of 240 columns, and the running balance of
// 100 columns over a self-join.
std::vector<LongStatement> LongStatements();

}  // namespace kavelin::embedded
