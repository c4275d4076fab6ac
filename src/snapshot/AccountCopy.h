// Copies the tables that the reports read from one account into another, of whatever engine each is.
//
// Table by table in the schema's order: a table that a copy was interrupted in is emptied and copied again, one
// that is whole already and still equals its source, as far as rows and sums tell, is left alone. At the end rows
// and sums of all tables are compared with the source, as it is then.
#pragma once

#include "snapshot/CopyPlan.h"
#include "snapshot/CopyTarget.h"
#include "snapshot/TableFigures.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kavelin::snapshot {

struct CopyOptions {
    CopyChoice choice;
    bool replace = false;            // tables of the target that hold other rows lose them
    bool again = false;              // tables that equal their source are copied like the others
    std::int64_t pageRows = 20'000;  // of one piece
    // Told now and then: what is being done. May throw to end the copy.
    std::function<void(const std::string&)> onProgress = [](const std::string&) {};
    // Before a half-filled table is emptied after a failure: a cancelled connection must take statements.
    std::function<void()> onCleanUp = [] {};
};

struct CopiedTable {
    std::string name;
    std::int64_t rows = 0;
    bool wasThere = false;  // equal already, and left alone
};

struct CopyResult {
    std::vector<CopiedTable> tables;
    std::vector<Difference> differences;  // none: the target equals the source
};

struct TableCount {
    std::string name;
    std::int64_t rows = 0;
};

// Rows that a copy would bring, by table. Throws DatabaseError.
std::vector<TableCount> CountRows(Connection& source, const CopyPlan& plan);

// Makes what is missing in the target and copies the tables of the plan. Throws host::UsageError, before
// anything is written, for a table of the target that holds other rows unless `replace` is told, and where
// both are the same account; Error, naming table, key and column, for a value that its column does not take;
// DatabaseError.
CopyResult CopyAccount(Connection& source, CopyTarget& target, const CopyPlan& plan,
                       const CopyOptions& options);

}  // namespace kavelin::snapshot
