// Text at the border to ODBC, which takes UTF-16.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kavelin::odbc {

struct Utf16Text {
    std::u16string text;
    std::size_t badByte = 0;  // from 1, the first that begins no character; 0: all do, and the text is whole
};
Utf16Text ToUtf16(std::string_view text);

// For the user: which byte of a text is at fault.
std::string NoUtf8(std::size_t badByte);

// Half a surrogate pair gives U+FFFD.
std::string FromUtf16(std::u16string_view text);
void AppendUtf16(std::string& text, std::u16string_view more);

}  // namespace kavelin::odbc
