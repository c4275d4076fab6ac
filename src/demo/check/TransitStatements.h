// The statements of the checks of the ledger of goods in transit.
#pragma once

#include <string>

namespace kavelin::demo {

std::string CountTransitSources();

// Source lines whose goods in transit change their sign on the way. Those of a return stand below zero.
std::string TransitBalancesThatCross();

// Rows that take out what never went in.
std::string TakenOutOfNothing();

// Source lines that have an amount but no goods left.
std::string AmountsWithoutGoods();

}  // namespace kavelin::demo
