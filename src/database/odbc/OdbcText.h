// Connection strings as ODBC takes them.
#pragma once

#include "database/odbc/ConnectionText.h"
#include "database/odbc/Drivers.h"

#include <string>
#include <string_view>

namespace kavelin::odbc {

// The ODBC string for a text in the provider's form, for that driver; keys of the provider that mean nothing
// to ODBC are left out. A text in ODBC's own form stays as it stands. User and password, unless empty,
// replace those of the text. Throws ConnectionError if the text names no server, or if the driver has no way
// to say a value.
std::string OdbcText(const ConnectionText& text, std::string_view user, std::string_view password,
                     const DriverChoice& driver);

// A value as it stands behind `=`, in braces where it must be. Throws ConnectionError for `};` within a value
// for FreeTDS, which knows no doubled braces.
std::string OdbcValue(std::string_view value, DriverKind driver);

}  // namespace kavelin::odbc
