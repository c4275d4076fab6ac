// Whether FreeTDS's ODBC driver is at hand.
#pragma once

#include "database/odbc/Drivers.h"

#include <algorithm>

namespace kavelin::test::tds {

inline bool FreeTdsIsInstalled()
{
    return std::ranges::any_of(odbc::InstalledDrivers(), [](const odbc::DriverChoice& driver) {
        return driver.kind == odbc::DriverKind::FreeTds;
    });
}

}  // namespace kavelin::test::tds
