// Texts that are dates, as T-SQL reads them.
#pragma once

#include "embedded/SqlType.h"
#include "embedded/bind/Literals.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin::embedded {

// YYYY-M-D with - / or . between, or YYYYMMDD, and a time hh:mm[:ss[.mmm]] behind it; blanks at either end
// do not count, the empty text is 1900-01-01. Milliseconds are rounded as a datetime holds them. Errors are
// 241 for what is no date and 242 for one outside the calendar or the years 1753 to 9999.
ReadLiteral ReadDatetime(std::string_view text, const SqlType& from);

// "1900-01-08 00:00:00.000" of 7; empty outside the years 1753 to 9999.
std::string DateOfDayNumber(std::int64_t days);

}  // namespace kavelin::embedded
