#include "database/odbc/ConnectionText.h"

#include "database/odbc/AdapterErrors.h"
#include "frame/Text.h"

#include <algorithm>

namespace kavelin::odbc {

namespace {

struct KeyRow {
    std::string_view key;
    Meaning meaning;
};

constexpr KeyRow kKeys[] = {
    {"Driver", Meaning::Driver},
    {"DSN", Meaning::DataSourceName},
    {"FileDSN", Meaning::FileDataSourceName},
    {"Provider", Meaning::Provider},
    {"Data Source", Meaning::Server},
    {"DataSource", Meaning::Server},
    {"Server", Meaning::Server},
    {"Address", Meaning::Server},
    {"Addr", Meaning::Server},
    {"Network Address", Meaning::Server},
    {"Port", Meaning::Port},
    {"Initial Catalog", Meaning::Database},
    {"Database", Meaning::Database},
    {"User ID", Meaning::User},
    {"UID", Meaning::User},
    {"User", Meaning::User},
    {"User Name", Meaning::User},
    {"Password", Meaning::Password},
    {"PWD", Meaning::Password},
    {"Integrated Security", Meaning::IntegratedSecurity},
    {"Trusted_Connection", Meaning::IntegratedSecurity},
    {"Connect Timeout", Meaning::ConnectTimeout},
    {"Connection Timeout", Meaning::ConnectTimeout},
    {"Timeout", Meaning::ConnectTimeout},
    {"Encrypt", Meaning::Encrypt},
    {"Use Encryption for Data", Meaning::Encrypt},
    {"TrustServerCertificate", Meaning::TrustServerCertificate},
    {"Trust Server Certificate", Meaning::TrustServerCertificate},
    {"Application Name", Meaning::ApplicationName},
    {"APP", Meaning::ApplicationName},
    {"Workstation ID", Meaning::WorkstationName},
    {"WSID", Meaning::WorkstationName},
    {"Current Language", Meaning::Language},
    {"Language", Meaning::Language},
};

constexpr std::string_view kEmbeddedKey = "Embedded Account";
constexpr std::string_view kBlanks = " \t\r\n";

std::optional<Meaning> MeaningOf(std::string_view key)
{
    for (const KeyRow& row : kKeys)
        if (EqualsNoCase(row.key, key))
            return row.meaning;
    return std::nullopt;
}

std::string_view WithoutBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

enum class Quotes { BracesOnly, All };

// A text taken apart, or what is wrong with it.
struct ReadText {
    std::vector<ConnectionText::Part> parts;
    std::string fault;  // a sentence; empty if nothing is wrong
};

// A value in a message. Only a key that is known is named: what stands behind a semicolon of a password may look
// like a key, too.
std::string QuotedValueOf(std::string_view key)
{
    return MeaningOf(key) ? "the quoted value of '" + std::string(key) + "'" : "a quoted value";
}

// The value at the front of `text`, which then begins at the semicolon behind it or is empty. Fills in `fault`
// for a quoted value that doesn't end where it should.
std::string TakeValue(std::string_view& text, Quotes quotes, std::string_view key, std::string& fault)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const char first = text.empty() ? '\0' : text.front();
    const bool quoted = first == '{' || (quotes == Quotes::All && (first == '\'' || first == '"'));
    if (!quoted) {
        const std::string_view bare = text.substr(0, text.find(';'));
        text.remove_prefix(bare.size());
        return std::string(WithoutBlanks(bare));
    }

    const char close = first == '{' ? '}' : first;
    std::string value;
    std::size_t i = 1;
    for (bool open = true; open; ++i) {
        if (i >= text.size()) {
            fault = "The connection string ends within " + QuotedValueOf(key) + ".";
            return {};
        }
        if (text[i] != close)
            value += text[i];
        else if (i + 1 < text.size() && text[i + 1] == close)
            value += text[i++];
        else
            open = false;
    }
    text.remove_prefix(i);
    const std::string_view rest = text.substr(0, text.find(';'));
    if (!WithoutBlanks(rest).empty())
        fault = "The connection string has text behind " + QuotedValueOf(key) + ".";
    text.remove_prefix(rest.size());
    return value;
}

ReadText Read(std::string_view text, Quotes quotes)
{
    ReadText read;
    while (!text.empty() && read.fault.empty()) {
        const std::string_view start = text;
        const std::size_t end = std::min(text.find_first_of("=;"), text.size());
        const std::string_view key = WithoutBlanks(text.substr(0, end));
        if (end == text.size() || text[end] == ';') {
            if (!key.empty())
                read.fault = "The connection string is no list of keys with values.";
            text.remove_prefix(std::min(end + 1, text.size()));
            continue;
        }
        if (key.empty())
            read.fault = "The connection string has a value without a key.";
        text.remove_prefix(end + 1);

        ConnectionText::Part part;
        part.key = key;
        part.meaning = MeaningOf(key);
        part.value = TakeValue(text, quotes, key, read.fault);
        part.written = WithoutBlanks(start.substr(0, start.size() - text.size()));
        read.parts.push_back(std::move(part));
        text.remove_prefix(std::min<std::size_t>(1, text.size()));
    }
    return read;
}

std::string ValueOf(const std::vector<ConnectionText::Part>& parts, Meaning meaning)
{
    std::string value;
    for (const ConnectionText::Part& part : parts)
        if (part.meaning == meaning)
            value = part.value;
    return value;
}

bool NamesDriver(const std::vector<ConnectionText::Part>& parts)
{
    return std::ranges::any_of(parts, [](const ConnectionText::Part& part) {
        return part.meaning == Meaning::Driver || part.meaning == Meaning::DataSourceName ||
               part.meaning == Meaning::FileDataSourceName;
    });
}

// In ODBC's own form ' and " quote nothing. The provider's is tried first, since its quoted values may hold
// `;Driver=`.
ReadText ReadEither(std::string_view text)
{
    ReadText provider = Read(text, Quotes::All);
    if (provider.fault.empty() && !NamesDriver(provider.parts))
        return provider;
    ReadText odbc = Read(text, Quotes::BracesOnly);
    return odbc.fault.empty() && NamesDriver(odbc.parts) ? odbc : provider;
}

}  // namespace

ConnectionText ConnectionText::Parse(std::string_view text)
{
    ReadText read = ReadEither(text);
    if (!read.fault.empty())
        throw NotConnected(read.fault);
    ConnectionText parsed;
    parsed.lstParts = std::move(read.parts);
    return parsed;
}

bool ConnectionText::IsOdbc() const
{
    return NamesDriver(lstParts);
}

std::string ConnectionText::Get(Meaning meaning) const
{
    return ValueOf(lstParts, meaning);
}

bool NamesServer(std::string_view text)
{
    const ReadText read = ReadEither(text);
    bool names = NamesDriver(read.parts);
    for (const ConnectionText::Part& part : read.parts) {
        if (EqualsNoCase(part.key, kEmbeddedKey))
            return false;
        names = names || part.meaning == Meaning::Provider || part.meaning == Meaning::Server;
    }
    return names && read.fault.empty();
}

std::string PasswordOf(std::string_view text)
{
    const ReadText read = ReadEither(text);
    return read.fault.empty() ? ValueOf(read.parts, Meaning::Password) : "";
}

bool MeansYes(std::string_view value)
{
    for (const std::string_view yes : {"yes", "true", "1", "sspi", "mandatory", "strict"})
        if (EqualsNoCase(value, yes))
            return true;
    return false;
}

}  // namespace kavelin::odbc
