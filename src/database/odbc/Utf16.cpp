#include "database/odbc/Utf16.h"

#include "frame/Text.h"

namespace kavelin::odbc {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::string_view kReplacementText = "\xEF\xBF\xBD";

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

Utf16Text ToUtf16(std::string_view text)
{
    Utf16Text result;
    std::u16string& converted = result.text;
    converted.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t character = NextCharacter(text, position);
        if (character == kReplacement && text.substr(start, position - start) != kReplacementText) {
            result.badByte = start + 1;
            return result;
        }
        if (character < 0x10000) {
            converted += static_cast<char16_t>(character);
        } else {
            converted += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            converted += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return result;
}

std::string NoUtf8(std::size_t badByte)
{
    return "The text is no UTF-8: its byte " + std::to_string(badByte) + " begins no character.";
}

std::string FromUtf16(std::u16string_view text)
{
    std::string converted;
    AppendUtf16(converted, text);
    return converted;
}

void AppendUtf16(std::string& text, std::u16string_view more)
{
    for (std::size_t i = 0; i < more.size(); ++i) {
        char32_t character = more[i];
        if (IsHighSurrogate(more[i]) && i + 1 < more.size() && IsLowSurrogate(more[i + 1])) {
            ++i;
            character = 0x10000 + ((character - 0xD800) << 10) + (more[i] - 0xDC00u);
        } else if (IsHighSurrogate(more[i]) || IsLowSurrogate(more[i])) {
            character = kReplacement;
        }
        AppendCharacter(text, character);
    }
}

}  // namespace kavelin::odbc
