// Values and names as the machine forms write them: exact, without grouping, the same in every language.
#pragma once

#include "frame/Connection.h"
#include "frame/Value.h"

#include <string>
#include <vector>

namespace kavelin::host {

// Whole numbers and decimals with all their digits ("12.50"), doubles as the shortest text that reads back
// as the same number, dates "2008-07-31" with " 14:30:00" (and ".250" for milliseconds) behind where there
// is a time of day, Booleans "1" and "0", texts as they are. Empty and null give "". Throws Error for a
// double that is no finite number.
std::string MachineText(const Value& value);

// The names of the columns, each one once: a column without a name is "column" and its number from 1,
// a name that stood before gets "_2", "_3" behind it.
std::vector<std::string> MachineNames(const Recordset& rows);

}  // namespace kavelin::host
