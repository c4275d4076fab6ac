// The conditions of the stock summary's filter that speak of balances: they choose among the groups of a view,
// and no line of the pool can tell whether it meets them.
#pragma once

#include "host/FilterInput.h"

#include <string>

namespace kavelin::host {

// For a HAVING; empty for none.
std::string StockGroupCondition(const FilterInput& input);

}  // namespace kavelin::host
