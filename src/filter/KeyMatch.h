// How a routine compares the names of fields with its keys: some exactly, some in any case.
#pragma once

#include "frame/Text.h"

#include <string_view>

namespace kavelin {

enum class KeyMatch { Exact, AnyCase };

inline bool Matches(std::string_view name, std::string_view key, KeyMatch match)
{
    return match == KeyMatch::Exact ? name == key : EqualsNoCase(name, key);
}

}  // namespace kavelin
