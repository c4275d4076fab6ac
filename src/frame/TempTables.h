// Names of work tables, and the small operations around them.
#pragma once

#include "frame/Connection.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin {

// A new GUID as 32 hexadecimal digits, fewer if `strRemove` holds some of them: each of its characters is
// taken out wherever it stands.
std::string CreateGuidText(std::string_view strRemove);

// A number that tells this client from others of the machine, as decimal digits.
std::string GetClientSuffix();

// The name of a work table of this client: `strFixedPart`, the machine's name and the client's number. It is
// what the name column of Tempdb..sysobjects is compared with.
std::string GetClientTableName(std::string_view strFixedPart);

// The same table as statements name it: "Tempdb..[", the name and "]".
std::string InTempdb(const std::string& strTable);

// Drops a table. Every error is swallowed, that of a missing table among them.
void DropTableQuiet(Connection& connection, const std::string& strTable);

// Drops a table of tempdb on gcnnAccount, if it is there. `strTable` may begin with "tempdb.." and stand in
// brackets. Errors, that of an empty name among them, are shown to the user.
void DropTempdbTable(const std::string& strTable);

// Whether gcnnAccount has a row in `strTable` whose `strField` is `strValue`. The texts are pasted into the
// statement as they are.
bool RecordExists(const std::string& strTable, const std::string& strField, const std::string& strValue);

// The sum of the digits of a text. Throws ConversionError for any other character, OverflowError above
// 32,767.
std::int16_t SumDigits(std::string_view strDigits);

}  // namespace kavelin
