// The select lists of the journal's passes: one for the ledger, one for the documents, with the same columns
// in the order of the result table.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

// `strValueStyle` is the account's cValueStyle; anything but "按存货核算" and "按部门核算" counts as by warehouse.
std::string SelectPosted(std::string_view strValueStyle);
std::string SelectUnposted(std::string_view strValueStyle);

}  // namespace kavelin
