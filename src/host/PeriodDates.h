// Months that a report doesn't read, as the days that it does.
#pragma once

#include "frame/Connection.h"
#include "host/HostFilter.h"

#include <string>
#include <vector>

namespace kavelin::host {

// The dialog of the journal asks for months across years ("2008.07..2008.09"), the journal itself for dates.
// So the months of a field with "dates" go, as the first and last day that VosSystem..UA_Period tells of
// them, into the field of posting dates; into that of document dates where documents that are not posted yet
// are asked for, which have no posting date. The field of months itself reaches the report empty.
//
// Months that the dialog put there by itself stand back behind any date that is set: whoever asks for the
// documents of March doesn't mean those among them that were posted in the current month. Months of the user
// (`given` holds the keys of his fields) and dates in the same field are refused with UsageError. Throws
// Error for months that the account doesn't have.
void PutMonthsAsDates(HostFilter& filter, const std::vector<std::string>& given, Connection& account,
                      const std::string& accountId);

}  // namespace kavelin::host
