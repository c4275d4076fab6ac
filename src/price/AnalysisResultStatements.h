// From reference prices to the result: base price, ratio and deviation of each row, the rows to show, and the
// names in the user's language.
#pragma once

#include <array>
#include <string>

namespace kavelin {

std::string UpdateReferenceCosts(const std::string& strWorkTable);

// Kinds: 1 reference cost, 2 last issue, 3 last receipt, 4 average, 5 balance brought forward. Of any other it is
// no statement, and fails.
std::string UpdateBasePrices(const std::string& strWorkTable, double dblBasePrice);

// In per cent. The first is of a row with price and base price, the others correct it where one of them is
// missing.
std::array<std::string, 4> UpdateRatios(const std::string& strWorkTable);

// `strOutputFilter` is a where clause on the work table, or empty. The copy has no month and no movements.
std::string InsertResult(const std::string& strTable, const std::string& strWorkTable,
                         const std::string& strOutputFilter);

std::string TranslateBusTypes(const std::string& strTable, const std::string& strLanguage);
std::string TranslateVouTypes(const std::string& strTable, const std::string& strLanguage);

}  // namespace kavelin
