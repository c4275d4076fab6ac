// The tokens that answers are made of, but for those of results (Columns.h).
#pragma once

#include "support/tds/Wire.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace kavelin::test::tds {

// What a server says of a statement or a login.
struct ServerMessage {
    std::int32_t number = 0;
    int severity = 16;  // 10 and less: no error
    std::string text;
    std::int32_t line = 1;
    int state = 1;
};

class Refusal : public std::runtime_error {
  public:
    explicit Refusal(ServerMessage why) : std::runtime_error(why.text), objMessage(std::move(why)) {}

    const ServerMessage& Why() const { return objMessage; }

  private:
    ServerMessage objMessage;
};

// As an error or, by its severity, as information.
void AppendMessage(Bytes& bytes, const ServerMessage& message);

enum class Change : std::uint8_t { Database = 1, Language = 2, PacketSize = 4, Collation = 7 };
void AppendChange(Bytes& bytes, Change change, std::string_view now, std::string_view before);
void AppendCollation(Bytes& bytes);

// `version` such as "10.50.1600.1".
void AppendLoginAccepted(Bytes& bytes, std::uint32_t protocol, std::string_view version);

// The end of a statement. `rows`: as many as it changed or gave, nothing for a statement that counts none.
enum class End { Good, Failed, Cancelled };
enum class Follows { Nothing, More };
void AppendDone(Bytes& bytes, End end, Follows follows, std::optional<std::int64_t> rows = std::nullopt);

// An error that ends a statement.
void AppendError(Bytes& bytes, const ServerMessage& message, Follows follows = Follows::Nothing);

}  // namespace kavelin::test::tds
