#include "host/doctor/ErrorKinds.h"

#include <algorithm>
#include <string_view>

namespace kavelin::host {

namespace {

struct Number {
    std::int32_t number;
    ErrorKind kind;
};

// Of SQL Server.
constexpr Number kNumbers[] = {
    {208, ErrorKind::NoSuchObject},   // Invalid object name
    {4121, ErrorKind::NoSuchObject},  // Cannot find either column "dbo" or the user-defined function
    {195, ErrorKind::NoSuchObject},   // not a recognized built-in function name
    {229, ErrorKind::NoRight},        // The SELECT permission was denied on the object
    {230, ErrorKind::NoRight},        // ... on the column
    {262, ErrorKind::NoRight},        // CREATE TABLE permission denied in database
    {2760, ErrorKind::NoRight},       // The specified schema name ... you do not have permission to use it
    {297, ErrorKind::NoRight},        // The user does not have permission to perform this action
    {300, ErrorKind::NoRight},        // VIEW SERVER STATE permission was denied
    {916, ErrorKind::NoRight},        // The server principal is not able to access the database
    {18456, ErrorKind::WrongLogin},   // Login failed for user
    {18452, ErrorKind::WrongLogin},   // ... from an untrusted domain
    {18470, ErrorKind::WrongLogin},   // ... the account is disabled
    {18487, ErrorKind::WrongLogin},   // ... the password has expired
    {18488, ErrorKind::WrongLogin},   // ... the password must be changed
    {4060, ErrorKind::NoDatabase},    // Cannot open database requested by the login
    {4064, ErrorKind::NoDatabase},    // Cannot open user default database
    {911, ErrorKind::NoDatabase},     // Database does not exist
};

struct State {
    std::string_view state;
    ErrorKind kind;
};

constexpr State kStates[] = {
    {"42S02", ErrorKind::NoSuchObject},   {"42P01", ErrorKind::NoSuchObject},
    {"42883", ErrorKind::NoSuchObject},   {"3F000", ErrorKind::NoSuchObject},
    {"42501", ErrorKind::NoRight},        {"28000", ErrorKind::WrongLogin},
    {"28P01", ErrorKind::WrongLogin},     {"3D000", ErrorKind::NoDatabase},
    {"08S01", ErrorKind::ConnectionLost}, {"57P01", ErrorKind::ConnectionLost},
    {"08003", ErrorKind::ConnectionLost}, {"IM002", ErrorKind::NoDriver},
    {"IM003", ErrorKind::NoDriver},       {"IM004", ErrorKind::NoDriver},
    {"01000", ErrorKind::NoDriver},       {"08001", ErrorKind::NoServer},
    {"HYT00", ErrorKind::NoServer},       {"HYT01", ErrorKind::NoServer},
};

}  // namespace

ErrorKind KindOf(const DatabaseError::Details& details)
{
    if (const auto* found = std::ranges::find(kNumbers, details.lngNumber, &Number::number);
        found != std::end(kNumbers))
        return found->kind;
    if (const auto* found = std::ranges::find(kStates, details.strSqlState, &State::state);
        found != std::end(kStates))
        return found->kind;
    return ErrorKind::Other;
}

}  // namespace kavelin::host
