// The way to a server: connection string, driver, network, login.
#pragma once

#include "database/odbc/ConnectionText.h"
#include "database/odbc/Drivers.h"
#include "host/AccountLogin.h"
#include "host/doctor/DoctorStep.h"
#include "host/doctor/ServerProbe.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::host {

// Step "connection": the string names an account, and everything that a login takes. Secrets are not shown.
DoctorStep ExamineConnectionText(const std::string& connectionString);

// What a machine has of ODBC drivers.
struct DriversOfMachine {
    std::function<std::vector<odbc::DriverChoice>()> installed = odbc::InstalledDrivers;
    std::function<odbc::DriverChoice()> forServer = odbc::DriverForSqlServer;  // throws ConnectionError
};

// Step "driver": the one that the string names or, in the provider's form, the best for the server.
DoctorStep ExamineDriver(const odbc::ConnectionText& text, const DriversOfMachine& drivers);

// Step "server": its name has an address, and somebody listens there. `probe` is ProbeServer in earnest.
using Probe = std::function<ProbeResult(const odbc::ServerAddress&)>;
DoctorStep ExamineServer(const odbc::ConnectionText& text, const Probe& probe);

// The steps "login" and "database", and the open connection, null if one of them failed.
struct Opened {
    std::vector<DoctorStep> steps;
    std::shared_ptr<Connection> connection;
};

// A new connection, open. Other than a report's, it doesn't wait for ever for a server. Throws ConnectionError.
std::shared_ptr<Connection> OpenInTime(const ConnectionSource& connections,
                                       const std::string& connectionString);

// Opens the account, and on a server once more without its database where that may be what failed.
Opened ExamineLogin(const AccountLogin& login, const ConnectionSource& connections);

}  // namespace kavelin::host
