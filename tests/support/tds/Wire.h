// Numbers and texts as the Tabular Data Stream protocol lays them out: little-endian, text in UTF-16.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kavelin::test::tds {

using Bytes = std::string;

// The client sent what the protocol does not allow, or nothing more.
class ProtocolError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

template <std::integral Integer>
void Append(Bytes& bytes, Integer number)
{
    for (std::size_t i = 0; i < sizeof(Integer); ++i)
        bytes += static_cast<char>(static_cast<std::make_unsigned_t<Integer>>(number) >> (8 * i) & 0xFF);
}

// UTF-8 to UTF-16LE; a character outside the basic plane becomes a pair.
Bytes ToUtf16(std::string_view text);

// UTF-16LE to UTF-8. A half of a pair that stands alone becomes U+FFFD.
std::string FromUtf16(std::string_view bytes);

// Text behind its length in UTF-16 units, of one byte or of two. What is too long for the length is cut.
void AppendText8(Bytes& bytes, std::string_view text);
void AppendText16(Bytes& bytes, std::string_view text);

// Takes fields from the front of a message. Throws ProtocolError behind its end.
class Reader {
  public:
    explicit Reader(std::string_view bytes) : strRest(bytes) {}

    template <std::integral Integer>
    Integer Take()
    {
        const std::string_view bytes = Take(sizeof(Integer));
        std::make_unsigned_t<Integer> number = 0;
        for (std::size_t i = 0; i < sizeof(Integer); ++i)
            number = static_cast<std::make_unsigned_t<Integer>>(
                number | static_cast<std::make_unsigned_t<Integer>>(static_cast<unsigned char>(bytes[i]))
                             << (8 * i));
        return static_cast<Integer>(number);
    }

    std::string_view Take(std::size_t count);
    std::string_view Rest() const { return strRest; }
    bool AtEnd() const { return strRest.empty(); }

  private:
    std::string_view strRest;
};

}  // namespace kavelin::test::tds
