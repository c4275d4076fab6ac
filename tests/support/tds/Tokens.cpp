#include "support/tds/Tokens.h"

#include "frame/Text.h"
#include "support/tds/Columns.h"

#include <charconv>

namespace kavelin::test::tds {

namespace {

constexpr char kErrorToken = '\xAA';
constexpr char kInfoToken = '\xAB';
constexpr char kLoginToken = '\xAD';
constexpr char kChangeToken = '\xE3';
constexpr char kDoneToken = '\xFD';
constexpr int kGreatestInfo = 10;
constexpr std::string_view kServerName = "KAVELIN-TDS";

void AppendCounted(Bytes& bytes, char token, const Bytes& content)
{
    bytes += token;
    Append(bytes, static_cast<std::uint16_t>(content.size()));
    bytes += content;
}

}  // namespace

void AppendMessage(Bytes& bytes, const ServerMessage& message)
{
    Bytes content;
    Append(content, message.number);
    content += static_cast<char>(message.state);
    content += static_cast<char>(message.severity);
    AppendText16(content, message.text);
    AppendText8(content, kServerName);
    AppendText8(content, "");  // no procedure
    Append(content, message.line);
    AppendCounted(bytes, message.severity > kGreatestInfo ? kErrorToken : kInfoToken, content);
}

void AppendChange(Bytes& bytes, Change change, std::string_view now, std::string_view before)
{
    Bytes content(1, static_cast<char>(change));
    AppendText8(content, now);
    AppendText8(content, before);
    AppendCounted(bytes, kChangeToken, content);
}

void AppendCollation(Bytes& bytes)
{
    Bytes content(1, static_cast<char>(Change::Collation));
    content += static_cast<char>(kCollation.size());
    content += kCollation;
    content += '\0';  // there was none before
    AppendCounted(bytes, kChangeToken, content);
}

void AppendLoginAccepted(Bytes& bytes, std::uint32_t protocol, std::string_view version)
{
    Bytes content(1, '\1');  // T-SQL
    for (int shift = 24; shift >= 0; shift -= 8)
        content += static_cast<char>(protocol >> shift & 0xFF);
    AppendText8(content, "Microsoft SQL Server");

    int parts[3] = {};  // 10, 50, 1600
    const std::vector<std::string> texts = Split(version, ".");
    for (std::size_t i = 0; i < std::size(parts) && i < texts.size(); ++i)
        std::from_chars(texts[i].data(), texts[i].data() + texts[i].size(), parts[i]);
    for (const int part : {parts[0], parts[1], parts[2] >> 8, parts[2]})
        content += static_cast<char>(part & 0xFF);
    AppendCounted(bytes, kLoginToken, content);
}

void AppendDone(Bytes& bytes, End end, Follows follows, std::optional<std::int64_t> rows)
{
    constexpr std::uint16_t kMore = 0x01, kError = 0x02, kCount = 0x10, kAttention = 0x20;
    std::uint16_t status = 0;
    if (follows == Follows::More)
        status |= kMore;
    if (rows)
        status |= kCount;
    if (end == End::Failed)
        status |= kError;
    if (end == End::Cancelled)
        status |= kAttention;
    bytes += kDoneToken;
    Append(bytes, status);
    Append(bytes, std::uint16_t{0});  // the statement's kind, which nobody needs
    Append(bytes, rows.value_or(0));
}

void AppendError(Bytes& bytes, const ServerMessage& message, Follows follows)
{
    AppendMessage(bytes, message);
    AppendDone(bytes, End::Failed, follows);
}

}  // namespace kavelin::test::tds
