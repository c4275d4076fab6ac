// The statements that take the money of a work-table line from the document that was estimated.
#pragma once

#include "summary/EstimateRun.h"

#include <string>

namespace kavelin {

// Of purchase receipts (01) and of confirmations of vendor-managed stock (70), for lines of `calMethod`. A
// quantity that is all of the document's gets its amount, any other its share, and none no money.
std::string UpdateReceiptMoney(const EstimateRun& run, CalMethod calMethod);
std::string UpdateVendorManagedMoney(const EstimateRun& run, CalMethod calMethod);

}  // namespace kavelin
