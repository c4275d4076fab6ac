#include "support/tds/Tokens.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

using namespace std::string_view_literals;

Bytes DoneOf(End end, Follows follows, std::optional<std::int64_t> rows = std::nullopt)
{
    Bytes bytes;
    AppendDone(bytes, end, follows, rows);
    return bytes;
}

TEST(AppendMessage, IsAnErrorAboveSeverityTen)
{
    Bytes info, error;
    AppendMessage(info, {5701, 10, "a"});
    AppendMessage(error, {208, 16, "a"});
    EXPECT_EQ(info[0], '\xAB');
    EXPECT_EQ(error[0], '\xAA');
}

TEST(AppendMessage, CarriesNumberStateSeverityTextAndLine)
{
    Bytes bytes;
    AppendMessage(bytes, {262, 14, "no", 3, 2});
    EXPECT_EQ(bytes.substr(3, 12), "\x06\x01\x00\x00\x02\x0E\x02\x00n\0o\0"sv);
    EXPECT_EQ(bytes.substr(bytes.size() - 4), "\x03\0\0\0"sv);
    EXPECT_EQ(static_cast<unsigned char>(bytes[1]), bytes.size() - 3);
}

TEST(AppendDone, TellsHowAStatementEnded)
{
    EXPECT_EQ(DoneOf(End::Good, Follows::Nothing), "\xFD\x00\x00\0\0\0\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(DoneOf(End::Good, Follows::More, 7), "\xFD\x11\x00\0\0\x07\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(DoneOf(End::Failed, Follows::Nothing), "\xFD\x02\x00\0\0\0\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(DoneOf(End::Cancelled, Follows::Nothing), "\xFD\x20\x00\0\0\0\0\0\0\0\0\0\0"sv);
}

TEST(AppendLoginAccepted, PutsTheVersionIntoItsParts)
{
    Bytes bytes;
    AppendLoginAccepted(bytes, 0x74000004, "10.50.1600.1");
    EXPECT_EQ(bytes.substr(3, 5), "\x01\x74\x00\x00\x04"sv);
    EXPECT_EQ(bytes.substr(bytes.size() - 4), "\x0A\x32\x06\x40"sv);
}

}  // namespace
}  // namespace kavelin::test::tds
