// One fetched value, from the form in which ODBC hands it over.
#pragma once

#include "database/odbc/ColumnPlan.h"
#include "database/odbc/ResultColumn.h"

#include <cstddef>

namespace kavelin::odbc {

// How a column of that plan is fetched: ODBC's type of the buffer, and its bytes; 0 bytes where a value may
// be of any length.
struct CellForm {
    short type = 0;
    std::size_t bytes = 0;
    std::size_t terminator = 0;  // bytes behind a text, within `bytes`
};
CellForm FormOf(const ColumnPlan& plan);

// Adds the value in a buffer of that form. False, with nothing added, for what should be a decimal number and
// is none of at most 38 digits.
bool AddCell(ResultColumn& column, const ColumnPlan& plan, const void* buffer, std::size_t bytes);

}  // namespace kavelin::odbc
