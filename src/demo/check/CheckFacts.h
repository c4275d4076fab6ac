// What the statements of the checks have to know of an account before they can be written.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <vector>

namespace kavelin::demo {

struct CheckFacts {
    bool blnByWarehouse = true;  // parameter cValueStyle: what the costing key holds beside the item
    bool blnByDepartment = false;
    bool blnGoodsSent = false;      // parameter bSaleType: dispatch notes post ordinary sales
    std::string strFirstDay;        // of the books, YYYY-MM-DD
    std::vector<int> arrFreeItems;  // numbers of the free items that some item of the inventory keeps
};

// Throws DatabaseError.
CheckFacts ReadFacts(Connection& connection);

}  // namespace kavelin::demo
