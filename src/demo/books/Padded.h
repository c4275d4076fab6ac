// Numbers with leading zeros, for the codes of documents and vouchers.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin::demo {

// `number`, which isn't negative, with at least so many digits, behind `text`.
inline void AppendPadded(std::string& text, std::int32_t number, std::size_t digits)
{
    const std::string written = std::to_string(number);
    if (written.size() < digits)
        text.append(digits - written.size(), '0');
    text += written;
}

}  // namespace kavelin::demo
