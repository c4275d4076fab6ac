// Whether the account's parameters say what the reports ask them.
#pragma once

#include "frame/Connection.h"
#include "host/doctor/DoctorStep.h"

namespace kavelin::host {

// Step "parameters": those of AccInformation that reports read are there where they must be, each once, and
// have values that the reports know.
DoctorStep ExamineParameters(Connection& account);

}  // namespace kavelin::host
