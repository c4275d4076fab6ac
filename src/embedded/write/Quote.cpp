#include "embedded/write/Quote.h"

namespace kavelin::embedded {

namespace {

std::string Doubled(std::string_view text, char quote)
{
    std::string result(1, quote);
    for (const char c : text) {
        result += c;
        if (c == quote)
            result += c;
    }
    return result + quote;
}

}  // namespace

std::string QuoteName(std::string_view name)
{
    return Doubled(name, '"');
}

std::string QuoteText(std::string_view text)
{
    if (text.find('\0') == std::string_view::npos)
        return Doubled(text, '\'');

    std::vector<std::string> pieces;
    for (std::size_t from = 0;;) {
        const std::size_t nul = text.find('\0', from);
        pieces.push_back(Doubled(text.substr(from, nul - from), '\''));
        if (nul == std::string_view::npos)
            break;
        from = nul + 1;
    }
    return "(" + Join(pieces, " || chr(0) || ") + ")";
}

std::string Raise(int number, std::string_view message)
{
    return "error(" + QuoteText("[" + std::to_string(number) + "] " + std::string(message)) + ")";
}

std::string RaiseWith(int number, std::string_view before, std::string_view value, std::string_view behind)
{
    return "error(" + QuoteText("[" + std::to_string(number) + "] " + std::string(before)) + " || " +
           std::string(value) + " || " + QuoteText(behind) + ")";
}

std::string Join(const std::vector<std::string>& pieces, std::string_view separator)
{
    std::string result;
    for (const std::string& piece : pieces) {
        if (&piece != &pieces.front())
            result += separator;
        result += piece;
    }
    return result;
}

}  // namespace kavelin::embedded
