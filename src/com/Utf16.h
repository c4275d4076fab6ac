// Texts on their way through automation, which has them in UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace kavelin::com {

// Half a pair of surrogates, or a byte that begins no character, becomes U+FFFD.
std::wstring Wide(std::string_view utf8);
std::string Narrow(std::wstring_view utf16);

// The same name without regard to the case of the letters A to Z, whatever the language of the user.
bool SameName(std::wstring_view a, std::string_view b);

}  // namespace kavelin::com
