// Reads the rows of a result into memory.
#pragma once

#include "database/odbc/ColumnPlan.h"
#include "database/odbc/ResultColumn.h"
#include "database/odbc/StatementRun.h"

#include <cstddef>
#include <vector>

namespace kavelin::odbc {

struct ResultRows {
    std::vector<ColumnPlan> plans;
    std::vector<ResultColumn> columns;  // one a plan
    std::size_t count = 0;
};

// All rows of the result that the run stands on. Where every value has a longest length the driver fills
// blocks of rows; else it is asked for the values one by one, each as long as it is. Throws DatabaseError.
ResultRows ReadRows(StatementRun& run);

}  // namespace kavelin::odbc
