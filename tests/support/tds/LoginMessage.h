// The two messages that open a conversation.
#pragma once

#include "support/tds/Wire.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin::test::tds {

constexpr std::uint32_t kVersion72 = 0x72090002;  // the eldest that batches with heads come with
constexpr std::uint32_t kVersion74 = 0x74000004;

struct LoginMessage {
    std::uint32_t version = 0;
    std::uint32_t packetSize = 0;
    std::string user;
    std::string password;  // in clear
    std::string program;
    std::string database;  // empty: the login's own
};

// Throws ProtocolError.
LoginMessage ReadLogin(std::string_view content);

// What the client must know before it sends a login: that this server encrypts nothing.
Bytes PreloginAnswer();

}  // namespace kavelin::test::tds
