// A table in the place of the view V_IA_CostacCount, for accounts of tests.
#pragma once

#include <string>

namespace kavelin::test {

// T-SQL that creates it, with all columns that the standard-cost journal copies or asks. All may be null.
std::string CreateCostView();

}  // namespace kavelin::test
