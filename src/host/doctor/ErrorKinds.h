// What a database's error means to the doctor.
#pragma once

#include "frame/Errors.h"

#include <cstdint>

namespace kavelin::host {

enum class ErrorKind : std::uint8_t {
    Other,
    NoSuchObject,
    NoRight,
    WrongLogin,
    NoDatabase,  // or one that the login may not open
    ConnectionLost,
    NoDriver,  // or no such data source
    NoServer,  // nobody answers
};

// By the server's number, else by the SQLSTATE, which drivers for other databases give too.
ErrorKind KindOf(const DatabaseError::Details& details);

}  // namespace kavelin::host
