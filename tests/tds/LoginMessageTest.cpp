#include "support/tds/LoginMessage.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

void Put16(Bytes& bytes, std::size_t at, std::size_t number)
{
    bytes[at] = static_cast<char>(number & 0xFF);
    bytes[at + 1] = static_cast<char>(number >> 8);
}

// As a client writes one: the fixed part, then the texts.
Bytes LoginOf(const std::string& user, const Bytes& mixedPassword, const std::string& database)
{
    Bytes bytes(94, '\0');
    bytes.replace(4, 4, std::string("\x04\x00\x00\x74", 4));
    Put16(bytes, 8, 8000);
    const auto put = [&](std::size_t at, const Bytes& text) {
        Put16(bytes, at, bytes.size());
        Put16(bytes, at + 2, text.size() / 2);
        bytes += text;
    };
    put(40, ToUtf16(user));
    put(44, mixedPassword);
    put(48, ToUtf16("program"));
    put(68, ToUtf16(database));
    return bytes;
}

TEST(ReadLogin, FindsTextsAndMakesThePasswordClear)
{
    // "a" is 61 00: halves exchanged 16 00, mixed with A5 it is B3 A5.
    const LoginMessage login = ReadLogin(LoginOf("会计", "\xB3\xA5", "Account_001"));
    EXPECT_EQ(login.version, kVersion74);
    EXPECT_EQ(login.packetSize, 8000u);
    EXPECT_EQ(login.user, "会计");
    EXPECT_EQ(login.password, "a");
    EXPECT_EQ(login.program, "program");
    EXPECT_EQ(login.database, "Account_001");
}

TEST(ReadLogin, RefusesAMessageThatEndsTooEarly)
{
    const Bytes login = LoginOf("u", "", "d");
    EXPECT_THROW(ReadLogin(std::string_view(login).substr(0, 60)), ProtocolError);
    EXPECT_THROW(ReadLogin(std::string_view(login).substr(0, login.size() - 1)), ProtocolError);
}

TEST(PreloginAnswer, RefusesEncryption)
{
    const Bytes answer = PreloginAnswer();
    ASSERT_EQ(answer[5], '\1');  // the second option
    const auto at = static_cast<std::size_t>(answer[7]);
    EXPECT_EQ(answer[at], '\2');
}

}  // namespace
}  // namespace kavelin::test::tds
