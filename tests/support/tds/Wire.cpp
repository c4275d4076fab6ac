#include "support/tds/Wire.h"

#include "frame/Text.h"

#include <algorithm>
#include <limits>

namespace kavelin::test::tds {

namespace {

constexpr std::size_t kUnit = sizeof(char16_t);

template <std::unsigned_integral Length>
void AppendCounted(Bytes& bytes, std::string_view text)
{
    const Bytes wide = ToUtf16(text);
    const std::size_t units = std::min<std::size_t>(wide.size() / kUnit, std::numeric_limits<Length>::max());
    Append(bytes, static_cast<Length>(units));
    bytes.append(wide, 0, units * kUnit);
}

}  // namespace

Bytes ToUtf16(std::string_view text)
{
    Bytes bytes;
    bytes.reserve(text.size() * kUnit);
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = NextCharacter(text, position);
        if (character < 0x10000) {
            Append(bytes, static_cast<std::uint16_t>(character));
        } else {
            Append(bytes, static_cast<std::uint16_t>(0xD800 + ((character - 0x10000) >> 10)));
            Append(bytes, static_cast<std::uint16_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
        }
    }
    return bytes;
}

std::string FromUtf16(std::string_view bytes)
{
    const auto isHigh = [](char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    const auto isLow = [](char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };

    std::string text;
    Reader reader(bytes.substr(0, bytes.size() / kUnit * kUnit));
    while (!reader.AtEnd()) {
        char32_t character = reader.Take<std::uint16_t>();
        if (isHigh(character) && !reader.AtEnd()) {
            const char32_t next = Reader(reader.Rest()).Take<std::uint16_t>();
            if (isLow(next)) {
                reader.Take(kUnit);
                character = 0x10000 + ((character - 0xD800) << 10) + (next - 0xDC00);
            }
        }
        AppendCharacter(text, isHigh(character) || isLow(character) ? U'\uFFFD' : character);
    }
    return text;
}

void AppendText8(Bytes& bytes, std::string_view text)
{
    AppendCounted<std::uint8_t>(bytes, text);
}

void AppendText16(Bytes& bytes, std::string_view text)
{
    AppendCounted<std::uint16_t>(bytes, text);
}

std::string_view Reader::Take(std::size_t count)
{
    if (count > strRest.size())
        throw ProtocolError("the message ends too early");
    const std::string_view taken = strRest.substr(0, count);
    strRest.remove_prefix(count);
    return taken;
}

}  // namespace kavelin::test::tds
