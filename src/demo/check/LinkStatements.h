// The statements of the checks that what rows refer to is there, once, and says the same.
#pragma once

#include <string>

namespace kavelin::demo {

// Codes of the two ledgers that the master data lacks.
std::string MissingMasterData();

// Links of accounting vouchers that gl_AccVouch lacks.
std::string MissingVouchers();

// Settlements that Pursettlevouchs lacks.
std::string MissingSettlements();
std::string CountSettlements();

// Rows whose standard cost and differences are not what the ledger says.
std::string StandardCostsThatDiffer();
std::string CountStandardCosts();

// Rows that reports take for the only one of their key and that are not.
std::string DoubleRows();

}  // namespace kavelin::demo
