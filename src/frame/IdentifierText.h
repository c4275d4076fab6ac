// A machine's name as a part of a table's name.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

// The name with every character but ASCII letters, digits and `_` replaced by `_`; "client" if it is empty.
std::string IdentifierText(std::string_view name);

}  // namespace kavelin
