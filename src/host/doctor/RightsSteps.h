// Whether the login may do what reports do to a database: make tables, fill, read and drop them.
#pragma once

#include "frame/Connection.h"
#include "host/doctor/DoctorStep.h"

#include <string>

namespace kavelin::host {

// Step "create" or "tempdb": a small table of a name that nothing else has is made in the account's database
// or in tempdb, altered, filled with texts of all kinds, read and dropped, also after a failure. `number`
// tells one examination from another: letters and digits.
DoctorStep ExamineTables(Connection& account, const std::string& number);
DoctorStep ExamineTablesOfTempdb(Connection& account, const std::string& number);

// Drops what an examination of that number left in both databases because it broke off; no table there is no
// error, and no other failure is told.
void DropTablesQuiet(Connection& account, const std::string& number) noexcept;

}  // namespace kavelin::host
