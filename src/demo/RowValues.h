// The generator's whole numbers and texts as the values of rows.
#pragma once

#include "frame/Decimal.h"
#include "frame/Value.h"

#include <cstdint>
#include <string_view>

namespace kavelin::demo {

inline Value Money(std::int64_t cents)
{
    return Decimal(cents, 2);
}

inline Value Quantity(std::int64_t hundredths)
{
    return static_cast<double>(hundredths) / 100.0;
}

// Null for an empty text.
inline Value TextOrNull(std::string_view text)
{
    return text.empty() ? Value::Null() : Value(text);
}

}  // namespace kavelin::demo
