// The rows of a report from two accounts, and where they differ.
#pragma once

#include "frame/Connection.h"
#include "frame/Value.h"

#include <string>
#include <vector>

namespace kavelin::test::server {

struct ResultRows {
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;
};

ResultRows ReadRows(Recordset& rows);

// A sentence for each difference, which names row and column; rows count from 1 in the order in which both
// are sorted here. Numbers are equal if they are so to 9 digits, whatever their type.
std::vector<std::string> DifferencesOf(const ResultRows& server, const ResultRows& embedded);

}  // namespace kavelin::test::server
