#include "database/odbc/Diagnostics.h"

#include "database/odbc/Utf16.h"
#include "frame/Text.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <cctype>
#include <functional>

namespace kavelin::odbc {

namespace {

constexpr SQLSMALLINT kLineField = -1154;  // the SQL Server drivers' own, not in ODBC's headers

// FreeTDS gives numbers of its own client library beside the server's.
constexpr std::int32_t kFirstClientNumber = 20000, kLastClientNumber = 20099;

constexpr std::int32_t kLoginFailed = 18456;

constexpr std::string_view kWarningClass = "01";
constexpr std::string_view kConnectionClass = "08";

// PostgreSQL's word for a session that its administrator ended.
constexpr std::string_view kEndedSession = "57P01";

bool IsWarning(const Diagnostic& diagnostic)
{
    return diagnostic.sqlState.starts_with(kWarningClass);
}

// How much a record tells: a failed login is the consequence of what else the server says, such as that
// there is no such database; what a client library adds is known from both.
int WeightOf(const Diagnostic& diagnostic)
{
    if (diagnostic.number == 0 ||
        (diagnostic.number >= kFirstClientNumber && diagnostic.number <= kLastClientNumber))
        return 0;
    return diagnostic.number == kLoginFailed ? 1 : 2;
}

std::string_view WithoutEndBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(" \r\n\t") + 1);
}

std::int32_t LineOf(const Handle& handle, SQLSMALLINT record)
{
    SQLINTEGER line = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN result = SQLGetDiagFieldW(static_cast<SQLSMALLINT>(handle.Kind()), handle.Get(), record,
                                              kLineField, &line, sizeof line, &length);
    return SQL_SUCCEEDED(result) ? std::max<SQLINTEGER>(line, 0) : 0;
}

}  // namespace

std::vector<Diagnostic> ReadDiagnostics(const Handle& handle)
{
    std::vector<Diagnostic> diagnostics;
    std::u16string text(1024, u'\0');
    for (SQLSMALLINT record = 1;;) {
        char16_t state[6] = {};
        SQLINTEGER number = 0;
        SQLSMALLINT length = 0;
        const SQLRETURN result = SQLGetDiagRecW(static_cast<SQLSMALLINT>(handle.Kind()), handle.Get(), record,
                                                reinterpret_cast<SQLWCHAR*>(state), &number,
                                                reinterpret_cast<SQLWCHAR*>(text.data()),
                                                static_cast<SQLSMALLINT>(text.size()), &length);
        if (!SQL_SUCCEEDED(result))
            return diagnostics;
        constexpr std::size_t kLongest = 32000;  // lengths are 16 bits
        if (static_cast<std::size_t>(length) >= text.size() && text.size() < kLongest) {
            text.resize(kLongest);
            continue;
        }
        const auto units =
            std::min(static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)), text.size() - 1);
        Diagnostic diagnostic;
        diagnostic.sqlState = FromUtf16(state);
        diagnostic.number = number;
        diagnostic.message = FromUtf16(std::u16string_view(text).substr(0, units));
        diagnostic.line = LineOf(handle, record);
        diagnostics.push_back(std::move(diagnostic));
        ++record;
    }
}

DatabaseError::Details Summary(const std::vector<Diagnostic>& diagnostics)
{
    std::vector<Diagnostic> told = diagnostics;
    if (!std::ranges::all_of(told, IsWarning))
        std::erase_if(told, IsWarning);
    std::ranges::stable_sort(told, std::greater(), WeightOf);

    DatabaseError::Details details;
    std::vector<std::string_view> texts;
    for (const Diagnostic& diagnostic : told) {
        const std::string_view text = WithoutEndBlanks(WithoutPrefixes(diagnostic.message));
        if (text.empty() || std::ranges::find(texts, text) != texts.end())
            continue;
        texts.push_back(text);
        details.strMessage += (details.strMessage.empty() ? "" : "\n") + std::string(text);
    }
    if (details.strMessage.empty())
        details.strMessage = "The driver reports a failure without saying why.";
    if (!told.empty()) {
        details.strSqlState = told.front().sqlState;
        details.lngNumber = told.front().number;
        if (WeightOf(told.front()) > 0)  // the client library's own errors come with lines of no text
            details.lngLine = told.front().line;
    }
    return details;
}

std::string_view WithoutPrefixes(std::string_view message)
{
    // Driver manager, vendor, driver and server at most. A bracket with a dot behind it is a name of the
    // server's text: "[dbo].[Inventory] is no table."
    for (int prefixes = 0; prefixes < 4 && message.starts_with('['); ++prefixes) {
        const std::size_t close = message.find(']');
        if (close == std::string_view::npos || message.substr(close + 1).starts_with('.'))
            break;
        message.remove_prefix(close + 1);
        message.remove_prefix(std::min(message.find_first_not_of(' '), message.size()));
    }
    return message;
}

bool TellsOfLostConnection(const std::vector<Diagnostic>& diagnostics)
{
    return std::ranges::any_of(diagnostics, [](const Diagnostic& diagnostic) {
        return diagnostic.sqlState.starts_with(kConnectionClass) || diagnostic.sqlState == kEndedSession;
    });
}

std::string WithoutSecret(std::string text, std::string_view password)
{
    constexpr std::size_t kShort = 3;
    constexpr std::string_view kHidden = "***";
    const auto isWord = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || (c & 0x80); };
    for (const std::string& secret : {ReplaceAll(password, "}", "}}"), std::string(password)}) {
        if (secret.empty())
            continue;
        for (std::size_t at = text.find(secret); at != std::string::npos; at = text.find(secret, at)) {
            const std::size_t end = at + secret.size();
            const bool within = (at > 0 && isWord(text[at - 1])) || (end < text.size() && isWord(text[end]));
            if (secret.size() < kShort && within) {
                ++at;
                continue;
            }
            text.replace(at, secret.size(), kHidden);
            at += kHidden.size();
        }
    }
    return text;
}

}  // namespace kavelin::odbc
