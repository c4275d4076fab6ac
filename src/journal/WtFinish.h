// The last steps of the journal: accounting vouchers, fees, shown business types.
#pragma once

#include <string>

namespace kavelin {

// Puts the number of the accounting voucher on each row, deletes the rows of other vouchers if `strPzNoID`
// names one, and keeps processing and material fees for subcontracting only. Whether no statement failed;
// errors are swallowed.
bool FinishWtVouchers(const std::string& strTable, const std::string& strPzNoID);

// Business types in the language of the user, unless that is Chinese, in which they stand. Shows the
// description of an error to the user. Whether there was none.
bool FinishWtBusType(const std::string& strTable);

}  // namespace kavelin
