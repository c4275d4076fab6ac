// The ODBC drivers of this machine, and the one to use for an SQL Server.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::odbc {

enum class DriverKind {
    Vendor,   // the maker's own: "ODBC Driver 18 for SQL Server"
    FreeTds,  // "FreeTDS", libtdsodbc.so
    Other,    // no driver for an SQL Server, as far as its name tells
};

struct DriverChoice {
    std::string name;     // as it stands behind Driver=: a registered name, or the path of a library
    std::string library;  // as registered; empty if that isn't known
    DriverKind kind = DriverKind::Other;
    int version = 0;  // of a vendor's driver, from its name: 18
};

// What a driver of that name and library is.
DriverChoice DriverNamed(std::string_view name, std::string_view library = {});

// The registered drivers, then those whose library lies in a usual place without being registered.
std::vector<DriverChoice> InstalledDrivers();

// The best driver for an SQL Server: the one that `wanted` names, else the vendor's newest, else FreeTDS.
// Throws ConnectionError, which tells what to install.
DriverChoice ChooseDriver(const std::vector<DriverChoice>& installed, std::string_view wanted = {});

// ChooseDriver among the installed ones. The variable KAVELIN_ODBC_DRIVER of the environment names one.
DriverChoice DriverForSqlServer();

}  // namespace kavelin::odbc
