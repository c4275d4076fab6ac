// Whether an account has the tables, views and functions that the reports read.
#pragma once

#include "frame/Connection.h"
#include "host/doctor/AccountNeeds.h"
#include "host/doctor/DoctorStep.h"

#include <vector>

namespace kavelin::host {

// Steps "objects" (every table, view and function is there), "columns" (each has its columns) and "select"
// (the login may read them). Asks for no row of any object, so it takes as long on a large account as on a
// small one. What no usual run of a report reads fails no step and is told among the details.
std::vector<DoctorStep> ExamineSchema(Connection& account, const std::vector<NeededObject>& needs);

}  // namespace kavelin::host
