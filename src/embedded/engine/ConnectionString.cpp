#include "embedded/engine/ConnectionString.h"

#include "embedded/engine/EngineErrors.h"
#include "frame/Text.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

// The value that begins at the front of `text`, which then begins behind the semicolon.
std::string TakeValue(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    std::string value;
    if (text.starts_with('"') || text.starts_with('\'')) {
        const char quote = text.front();
        std::size_t i = 1;
        for (;; ++i) {
            if (i >= text.size())
                throw Refusal("The connection string ends within quotes.");
            if (text[i] == quote) {
                if (i + 1 >= text.size() || text[i + 1] != quote)
                    break;
                ++i;
            }
            value += text[i];
        }
        text.remove_prefix(i + 1);
        const std::string_view rest = text.substr(0, text.find(';'));
        if (!Trim(rest).empty())
            throw Refusal("The connection string has text behind a quoted value.");
        text.remove_prefix(rest.size());
    } else {
        const std::string_view bare = text.substr(0, text.find(';'));
        text.remove_prefix(bare.size());
        value = Trim(bare);
    }
    if (text.starts_with(';'))
        text.remove_prefix(1);
    return value;
}

}  // namespace

ConnectionSettings ReadConnectionString(std::string_view text)
{
    ConnectionSettings settings;
    while (!Trim(text).empty()) {
        if (Trim(text).front() == ';') {
            text.remove_prefix(text.find(';') + 1);
            continue;
        }
        const std::size_t equals = text.find('=');
        if (equals == std::string_view::npos || text.find(';') < equals)
            throw Refusal("The connection string is no list of keys with values.");
        const std::string_view key = Trim(text.substr(0, equals));
        text.remove_prefix(equals + 1);
        const std::string value = TakeValue(text);

        if (EqualsNoCase(key, "Embedded Account"))
            settings.account = value;
        else if (EqualsNoCase(key, "Locale"))
            settings.locale = value;
        else if (!settings.limits.Take(key, value) && !EqualsNoCase(key, "User ID") &&
                 !EqualsNoCase(key, "UID") && !EqualsNoCase(key, "Password") && !EqualsNoCase(key, "PWD"))
            throw Refusal("The embedded account does not know '" + std::string(key) +
                          "' in a connection string.");
    }
    return settings;
}

}  // namespace kavelin::embedded
