// The small account of goods in transit with what standard costing adds to it.
#pragma once

#include "goods/GoodsAccount.h"

#include <string>

namespace kavelin::test {

// What a ledger line costs, as lists of values in the order of their tables.
struct LineCosts {
    // material, labour, manufacturing fixed and variable, outsourced processing; none if empty
    const char* standard = "";
    // differences: material price and quantity; labour, fixed and variable each price, quantity and
    // semi-finished; outsourced processing whole and semi-finished; none if empty
    const char* differences = "";
};

class CostAccount : public GoodsAccount {
  public:
    CostAccount();

    // Adds a ledger line with its costs.
    void AddLine(const GoodsLine& line, const LineCosts& costs = {});
};

}  // namespace kavelin::test
