// What a server is, and the fiscal months that its system database tells.
#pragma once

#include "frame/Connection.h"
#include "host/doctor/DoctorStep.h"

#include <string>
#include <vector>

namespace kavelin::host {

// The steps "version" (an SQL Server that knows the statements' T-SQL) and "collation" (texts are compared
// without regard to case, keep Chinese characters, and are alike in the account and in tempdb).
std::vector<DoctorStep> ExamineServerFacts(Connection& account);

// Step "periods": the system database tells the account's fiscal months.
DoctorStep ExaminePeriods(Connection& account, const std::string& accountId);

// Step "language": the account has shown texts in the login's language. Details tell where the database's own
// language is another.
DoctorStep ExamineLanguage(Connection& account, const std::string& language);

}  // namespace kavelin::host
