// Movement columns of the goods-in-transit template by receipt-issue class.
#pragma once

#include "frame/Connection.h"

#include <string>

namespace kavelin {

// The classes, from a table of that machine that the caller of the template made. The text names a table that
// it doesn't read, so that a server refuses it.
std::string SelectClasses(const std::string& strMachine);

// Pieces, quantity and amount of each class, and columns of zeros of the same names; a comma before each. The
// length by which the class codes are cut is missing in the text.
struct ClassColumns {
    std::string strColumns;
    std::string strZeros;
};
ClassColumns ComposeClassColumns(Recordset& classes);

}  // namespace kavelin
