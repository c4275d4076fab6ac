// Errors that the adapter raises by itself.
#pragma once

#include "frame/Errors.h"

#include <string>

namespace kavelin::odbc {

// ODBC's state for a connection that could not be made.
inline constexpr const char* kNotConnected = "08001";

inline DatabaseError::Details DetailsOf(std::string message, std::string sqlState)
{
    DatabaseError::Details details;
    details.strMessage = std::move(message);
    details.strSqlState = std::move(sqlState);
    return details;
}

inline ConnectionError NotConnected(std::string message)
{
    return ConnectionError(DetailsOf(std::move(message), kNotConnected));
}

}  // namespace kavelin::odbc
