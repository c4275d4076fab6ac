// The errors that travel through the library to its host.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace kavelin {

// Any failure that a host may show: what() is a sentence for the user.
class Error : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A value that is not of the type asked for.
class ConversionError : public Error {
    using Error::Error;
};

// A number that the type asked for cannot hold.
class OverflowError : public Error {
    using Error::Error;
};

// A failure that the database or its driver reports. Passwords never stand in it.
class DatabaseError : public Error {
  public:
    struct Details {
        std::string strMessage;      // the server's text, without decoration
        std::string strSqlState;     // five characters, or empty
        std::int32_t lngNumber = 0;  // the server's native number, 0 if it gave none
        std::string strStatement;    // the text that was sent, empty for a failed connection
        std::int32_t lngLine = 0;    // from 1, where the server tells it, else 0
        std::int32_t lngColumn = 0;  // in characters from 1, else 0
    };

    explicit DatabaseError(Details details) : Error(details.strMessage), detDetails(std::move(details)) {}

    const Details& Get() const { return detDetails; }

  private:
    Details detDetails;
};

// The connection could not be opened: server, driver, login or file.
class ConnectionError : public DatabaseError {
    using DatabaseError::DatabaseError;
};

// The statement was stopped by Connection::Cancel.
class CancelledError : public DatabaseError {
    using DatabaseError::DatabaseError;
};

}  // namespace kavelin
