#include "database/odbc/ServerAddress.h"

#include "database/odbc/AdapterErrors.h"
#include "frame/Text.h"

#include <charconv>

namespace kavelin::odbc {

namespace {

int PortOf(std::string_view text)
{
    constexpr int kLastPort = 65535;
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc{} || end != text.data() + text.size() || port < 1 || port > kLastPort)
        throw NotConnected("'" + std::string(text) + "' is no port of a server.");
    return port;
}

// Without `tcp:` in front; no other protocol goes through ODBC drivers outside Windows.
std::string_view WithoutProtocol(std::string_view text)
{
    const std::size_t colon = text.find(':');
    const std::string_view protocol = colon == std::string_view::npos ? "" : text.substr(0, colon);
    if (EqualsNoCase(protocol, "tcp"))
        return text.substr(colon + 1);
    for (const std::string_view other : {"np", "lpc", "via", "admin"})
        if (EqualsNoCase(protocol, other))
            throw NotConnected("A server is reached over TCP only, not by '" + std::string(other) + ":'.");
    return text;
}

}  // namespace

ServerAddress ParseServer(std::string_view text)
{
    ServerAddress address;
    std::string_view rest = Trim(WithoutProtocol(Trim(text)));

    if (const std::size_t comma = rest.rfind(','); comma != std::string_view::npos) {
        address.port = PortOf(Trim(rest.substr(comma + 1)));
        rest = Trim(rest.substr(0, comma));
    }
    if (const std::size_t slash = rest.find('\\'); slash != std::string_view::npos) {
        address.instance = Trim(rest.substr(slash + 1));
        rest = Trim(rest.substr(0, slash));
    }
    if (rest.starts_with('[') && rest.ends_with(']'))
        rest = rest.substr(1, rest.size() - 2);
    // One colon; ::1 and its like have more.
    else if (const std::size_t colon = rest.find(':'); colon != rest.npos && colon == rest.rfind(':'))
        throw NotConnected("The port of a server stands behind a comma: 'host,1433'.");
    if (rest.empty())
        throw NotConnected("The connection string names no server.");
    address.host = rest == "." || EqualsNoCase(rest, "(local)") ? "localhost" : std::string(rest);
    return address;
}

}  // namespace kavelin::odbc
