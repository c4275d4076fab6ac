// The ledger of the demo company: a year of receipts and issues, made at random but within the rules.
#pragma once

#include "demo/Company.h"
#include "demo/DemoCompany.h"
#include "demo/RowSink.h"
#include "demo/Stock.h"

#include <cstdint>
#include <vector>

namespace kavelin::demo {

// Writes IA_Subsidiary with exactly `lines` rows, in the order of their posting, then the sample for the
// area table that was taken on the way: ia_data_subsidiary and ia_accountarea. `places` are empty before and
// hold the year's balances afterwards; no balance is ever negative.
void WriteLedger(std::vector<Place>& places, std::int64_t lines, std::uint64_t seed, RowSink& sink,
                 const Progress& progress);

}  // namespace kavelin::demo
