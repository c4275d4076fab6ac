#include "support/tds/Wire.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

using namespace std::string_view_literals;

TEST(Wire, PutsTheLowByteOfANumberFirst)
{
    Bytes bytes;
    Append(bytes, std::uint16_t{0x0102});
    Append(bytes, std::int32_t{-2});
    EXPECT_EQ(bytes, "\x02\x01\xFE\xFF\xFF\xFF"sv);
}

TEST(Wire, ReadsBackWhatItWrote)
{
    Bytes bytes;
    Append(bytes, std::int64_t{-5'000'000'000});
    Append(bytes, std::uint8_t{200});
    Reader reader(bytes);
    EXPECT_EQ(reader.Take<std::int64_t>(), -5'000'000'000);
    EXPECT_EQ(reader.Take<std::uint8_t>(), 200);
    EXPECT_TRUE(reader.AtEnd());
}

TEST(Wire, RefusesToReadBehindTheEnd)
{
    Reader reader("ab");
    EXPECT_THROW(reader.Take<std::int32_t>(), ProtocolError);
}

TEST(Wire, WritesACharacterOutsideTheBasicPlaneAsAPair)
{
    EXPECT_EQ(ToUtf16("A货😀"), "A\0\x27\x8D\x3D\xD8\x00\xDE"sv);
}

TEST(Wire, ReadsUtf16OfAllPlanes)
{
    EXPECT_EQ(FromUtf16(ToUtf16("A货😀z")), "A货😀z");
}

TEST(Wire, ReadsHalvesOfPairsAsReplacements)
{
    EXPECT_EQ(FromUtf16("\x3D\xD8\x41\x00\x00\xDE"sv), "\uFFFDA\uFFFD");
    EXPECT_EQ(FromUtf16("\x3D\xD8"sv), "\uFFFD");
}

TEST(Wire, CountsTextInUtf16Units)
{
    Bytes bytes;
    AppendText8(bytes, "货😀");
    EXPECT_EQ(bytes[0], 3);
    EXPECT_EQ(bytes.size(), 1u + 6u);
}

TEST(Wire, CutsTextThatIsTooLongForItsLength)
{
    Bytes bytes;
    AppendText8(bytes, std::string(300, 'x'));
    EXPECT_EQ(bytes.size(), 1u + 2 * 255u);
}

}  // namespace
}  // namespace kavelin::test::tds
