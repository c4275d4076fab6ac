// The columns of the detail ledger that tell of a line what it is, beside its quantities and costs.
#pragma once

#include <string>

namespace kavelin {

// Each with the expression that gives it its type, from `ipzid` to `cBusCode`, a comma behind each. Ends with
// a line end.
std::string DetailTypes();

// The names of those that a ledger line fills, and what it fills them with, in the same order; a comma behind
// the last.
std::string DetailNames();
std::string DetailValues();

// What the result shows of the work table `a`, from `flag` on.
std::string DetailAttributes();

}  // namespace kavelin
