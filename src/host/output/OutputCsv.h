// Rows as CSV after RFC 4180, UTF-8 without a byte order mark, lines ended by CR LF:
//
//   cinvcode,cInvName,amount
//   A01,"Bolt, ""M6""",12.50
//   A02,"",              an empty text, then NULL (nothing at all)
#pragma once

#include "frame/Connection.h"

#include <cstdint>
#include <optional>
#include <ostream>

namespace kavelin::host {

// The first line holds the column names. Stops without an error when `out` fails; the caller tests it.
void WriteCsv(Recordset& rows, std::optional<std::int64_t> limit, std::ostream& out);

}  // namespace kavelin::host
