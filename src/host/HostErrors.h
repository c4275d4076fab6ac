// The errors that the host itself raises. What reports and databases raise is in frame/Errors.h.
#pragma once

#include "frame/Errors.h"

namespace kavelin::host {

// The user asked for something that cannot be done as asked: an unknown report or field, a value that is
// refused, a setting that makes no sense. Nothing in a database has been changed.
class UsageError : public Error {
    using Error::Error;
};

// The check of a report's dialog refused its values. The user has seen why.
class FilterRefused : public Error {
    using Error::Error;
};

// A report ended without an error but left no result table: it trapped a failure of its own.
class ReportError : public Error {
    using Error::Error;
};

}  // namespace kavelin::host
