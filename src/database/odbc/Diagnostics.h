// What a driver and its server say about a failure.
#pragma once

#include "database/odbc/Handles.h"
#include "frame/Errors.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::odbc {

struct Diagnostic {
    std::string sqlState;
    std::int32_t number = 0;  // the server's or the driver's own
    std::string message;      // as the driver gives it
    std::int32_t line = 0;    // within the batch, 0 if the driver doesn't tell
};

// What the last call on the handle left, first things first.
std::vector<Diagnostic> ReadDiagnostics(const Handle& handle);

// One error of several records: state, number and line of the one that tells most, its text and those of all
// other errors, a line each, without the names in brackets that drivers put before them.
DatabaseError::Details Summary(const std::vector<Diagnostic>& diagnostics);

// "Invalid object name 'x'." of "[FreeTDS][SQL Server]Invalid object name 'x'."
std::string_view WithoutPrefixes(std::string_view message);

// Whether a record tells that the connection is gone.
bool TellsOfLostConnection(const std::vector<Diagnostic>& diagnostics);

// The text with *** wherever the password stands in it. A password of a letter or two counts only where it is
// no part of a longer word, so that the text stays readable.
std::string WithoutSecret(std::string text, std::string_view password);

}  // namespace kavelin::odbc
