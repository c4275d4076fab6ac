// The fiscal months that are open for inventory accounting, over all years of the account.
#pragma once

#include <string>

namespace kavelin {

// The months from that of the account's start date on, in order. Where data are archived, only those of years
// behind the fiscal year of the archive date: months of that year stay out, also those behind the date.
std::string SelectOpenMonths(const std::string& strAccountId);

// Fills gdicAccMonth anew from the database: key "200807", item "2008.07". A query that fails leaves
// it empty.
void InitAccMonth();

// All items of gdicAccMonth twice, for the two boxes of a pair: "2008.01{#}2008.02{##}2008.01{#}2008.02".
// Throws Error if there is no open month.
std::string PairedMonthList();

}  // namespace kavelin
