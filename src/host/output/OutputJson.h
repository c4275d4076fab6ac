// Rows as a JSON array of objects, one object a line:
//
//   [
//   {"cinvcode": "A01", "amount": 12.50, "day": "2008-07-31", "posted": true, "note": null}
//   ]
//
// Decimals stand with all their digits, so a reader that keeps them exact can.
#pragma once

#include "frame/Connection.h"

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace kavelin::host {

// Stops without an error when `out` fails; the caller tests it.
void WriteJson(Recordset& rows, std::optional<std::int64_t> limit, std::ostream& out);

// Appends `text` as a JSON string with its quotes. A byte that is no UTF-8 becomes U+FFFD.
void AppendJsonText(std::string& json, std::string_view text);

}  // namespace kavelin::host
