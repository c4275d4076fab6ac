#include "com/Utf16.h"

#include "com/Windows.h"
#include "frame/Text.h"

namespace kavelin::com {

std::wstring Wide(std::string_view utf8)
{
    const int size = static_cast<int>(utf8.size());
    const int length = size ? MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0) : 0;
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    if (length)
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
    return wide;
}

std::string Narrow(std::wstring_view utf16)
{
    const int size = static_cast<int>(utf16.size());
    const int length =
        size ? WideCharToMultiByte(CP_UTF8, 0, utf16.data(), size, nullptr, 0, nullptr, nullptr) : 0;
    std::string text(static_cast<std::size_t>(length), '\0');
    if (length)
        WideCharToMultiByte(CP_UTF8, 0, utf16.data(), size, text.data(), length, nullptr, nullptr);
    return text;
}

bool SameName(std::wstring_view a, std::string_view b)
{
    return EqualsNoCase(Narrow(a), b);
}

}  // namespace kavelin::com
