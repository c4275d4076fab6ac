// Whether reports can run on an account, and what is missing if they can't.
#pragma once

#include "host/AccountLogin.h"
#include "host/doctor/AccountNeeds.h"
#include "host/doctor/ConnectionSteps.h"
#include "host/doctor/DoctorStep.h"
#include "host/doctor/ServerProbe.h"

#include <functional>
#include <string>
#include <vector>

namespace kavelin::host {

// What an examination takes from outside.
struct DoctorTools {
    ConnectionSource connections;
    DriversOfMachine drivers = {};
    Probe probe = [](const odbc::ServerAddress& server) { return ProbeServer(server); };
    std::vector<NeededObject> needs = AccountNeeds();
    std::function<void(const std::string& what)> onStep = {};  // told before something that may take a while
};

// All steps in order, from the connection string to the account's parameters. A step that another's failure
// leaves nothing to look at is skipped; everything else is looked at. Nothing of the account is changed.
// Throws CancelledError, and nothing else of what a database says.
std::vector<DoctorStep> Examine(const AccountLogin& login, const DoctorTools& tools);

// Whether no step failed: reports can run.
bool IsHealthy(const std::vector<DoctorStep>& steps);

}  // namespace kavelin::host
