// What the journals' filters say, as their statements need it.
#pragma once

#include "frame/Value.h"
#include "frame/VouTypes.h"

#include <cstdint>

namespace kavelin {

// The number of the second unit that a dialog's text asks for: 0 for an empty text and for one of nine
// characters or more. Throws ConversionError for a text that is no number.
std::int32_t ReadAssUnitNo(const Value& varValue);

}  // namespace kavelin
