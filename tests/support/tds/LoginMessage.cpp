#include "support/tds/LoginMessage.h"

#include <array>

namespace kavelin::test::tds {

namespace {

// Where the offset and the length of a text stand, from the begin of the message.
constexpr std::size_t kUserAt = 40;
constexpr std::size_t kPasswordAt = 44;
constexpr std::size_t kProgramAt = 48;
constexpr std::size_t kDatabaseAt = 68;

Bytes TextAt(std::string_view content, std::size_t position)
{
    Reader place(content.substr(std::min(position, content.size())));
    const std::size_t offset = place.Take<std::uint16_t>();
    const std::size_t units = place.Take<std::uint16_t>();
    Reader text(content);
    text.Take(offset);
    return Bytes(text.Take(units * 2));
}

// On the way each byte has its halves exchanged and is then mixed with A5.
Bytes Clear(Bytes bytes)
{
    for (char& byte : bytes) {
        const auto mixed = static_cast<unsigned char>(static_cast<unsigned char>(byte) ^ 0xA5);
        byte = static_cast<char>(mixed >> 4 | mixed << 4);
    }
    return bytes;
}

void AppendBigEndian(Bytes& bytes, std::size_t number)
{
    bytes += static_cast<char>(number >> 8);
    bytes += static_cast<char>(number & 0xFF);
}

}  // namespace

LoginMessage ReadLogin(std::string_view content)
{
    Reader head(content);
    head.Take<std::uint32_t>();  // the length
    LoginMessage login;
    login.version = head.Take<std::uint32_t>();
    login.packetSize = head.Take<std::uint32_t>();
    login.user = FromUtf16(TextAt(content, kUserAt));
    login.password = FromUtf16(Clear(TextAt(content, kPasswordAt)));
    login.program = FromUtf16(TextAt(content, kProgramAt));
    login.database = FromUtf16(TextAt(content, kDatabaseAt));
    return login;
}

Bytes PreloginAnswer()
{
    struct Option {
        std::uint8_t key;
        std::string_view value;
    };
    using namespace std::string_view_literals;
    constexpr std::array kOptions = {
        Option{0x00, "\x0F\x00\x07\xD0\x00\x00"sv},  // version 15.0.2000
        Option{0x01, "\x02"sv},                      // encryption: not supported
        Option{0x02, "\x00"sv},                      // the named instance is this one
        Option{0x03, ""sv},                          // thread
        Option{0x04, "\x00"sv},                      // several results at once: no
    };
    constexpr std::size_t kPlaces = kOptions.size() * 5 + 1;

    Bytes places, values;
    for (const Option& option : kOptions) {
        places += static_cast<char>(option.key);
        AppendBigEndian(places, kPlaces + values.size());
        AppendBigEndian(places, option.value.size());
        values += option.value;
    }
    places += '\xFF';
    return places + values;
}

}  // namespace kavelin::test::tds
