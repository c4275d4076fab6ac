// What the journal's rows are joined with.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin {

// `lngAssUnitNo` is the number of the second unit in its group; 0 is the item's own one.
std::string JoinPosted(std::int32_t lngAssUnitNo);
std::string JoinUnposted(std::int32_t lngAssUnitNo);

}  // namespace kavelin
