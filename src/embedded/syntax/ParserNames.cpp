// Names, types and the numbers that belong to them.
#include "embedded/SqlError.h"
#include "embedded/syntax/Parser.h"
#include "frame/Text.h"

#include <charconv>

namespace kavelin::embedded {

Name Parser::ParseName()
{
    if (!AtName())
        RefuseName();
    const Token& token = Take();
    return {token.value, token.kind == TokenKind::Bracketed, token.place};
}

std::vector<Name> Parser::ParseNamesInBrackets()
{
    std::vector<Name> names;
    Expect(TokenKind::OpenBracket);
    ParseList([&] { names.push_back(ParseName()); });
    Expect(TokenKind::CloseBracket);
    return names;
}

// Blanks may stand beside a dot. Stops before the dot of `t.*`.
Parser::Parts Parser::ParseParts()
{
    constexpr std::size_t kMostParts = 4;

    Parts parts{ParseName()};
    while (At(TokenKind::Dot) && Ahead(1).kind != TokenKind::Star) {
        Take();
        if (parts.size() == kMostParts)
            throw SqlError(102, "the embedded engine doesn't know names of more than four parts",
                           Here().place);
        if (At(TokenKind::Dot))
            parts.emplace_back();
        else
            parts.emplace_back(ParseName());
    }
    return parts;
}

// Only the schema, the part before the last of three, may be left out.
ObjectName Parser::ToObjectName(Parts parts) const
{
    const std::size_t count = parts.size();
    const Place first = parts.front()->place;
    if (count > 3)
        throw SqlError(102, "the embedded engine doesn't know names with a server", first);
    if (!parts.back() || (count == 2 && !parts.front()))
        throw SqlError(102, "Incorrect syntax near '.'.", first);

    ObjectName name;
    const Place last = parts.back()->place;
    name.place = {first.offset, last.offset + last.length - first.offset};
    name.object = std::move(*parts[count - 1]);
    if (count > 1)
        name.schema = std::move(parts[count - 2]);
    if (count > 2)
        name.database = std::move(parts[count - 3]);
    return name;
}

std::pair<std::optional<ObjectName>, Name> Parser::ToColumnName(Parts parts) const
{
    if (!parts.back())  // `a..` ends behind its dot
        throw SqlError(102, "Incorrect syntax near '.'.", parts.front()->place);
    Name column = std::move(*parts.back());
    parts.pop_back();
    if (parts.empty())
        return {std::nullopt, std::move(column)};
    return {ToObjectName(std::move(parts)), std::move(column)};
}

TypeName Parser::ParseType()
{
    if (!At(TokenKind::Word))
        RefuseName();
    TypeName type;
    const std::uint32_t start = Here().place.offset;
    type.name = Take().value;
    if (Accept(TokenKind::OpenBracket)) {
        if (At(TokenKind::Word) && EqualsNoCase(Here().value, "max")) {
            Take();
            type.first = -1;
        } else {
            type.first = ParseWholeNumber<int>();
            if (Accept(TokenKind::Comma))
                type.second = ParseWholeNumber<int>();
        }
        Expect(TokenKind::CloseBracket);
    }
    type.place = Since(start);
    return type;
}

std::int64_t Parser::ParseInteger()
{
    const bool negative = Accept(TokenKind::Minus);
    if (!negative)
        Accept(TokenKind::Plus);
    const auto number = ParseWholeNumber<std::int64_t>();
    return negative ? -number : number;
}

template <class Integer>
Integer Parser::ParseWholeNumber()
{
    if (!At(TokenKind::Number))
        Refuse();
    const std::string& digits = Here().value;
    const char* const behind = digits.data() + digits.size();
    Integer number = 0;
    const auto [end, error] = std::from_chars(digits.data(), behind, number);
    if (error != std::errc() || end != behind)
        Refuse();
    Take();
    return number;
}

template int Parser::ParseWholeNumber<int>();
template std::int64_t Parser::ParseWholeNumber<std::int64_t>();

}  // namespace kavelin::embedded
