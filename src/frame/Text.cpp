#include "frame/Text.h"

#include <algorithm>

namespace kavelin {

namespace {

// Blocks in which the small letter stands `distance` behind the capital.
struct CaseBlock {
    char32_t first, last, distance;
};
constexpr CaseBlock kCaseBlocks[] = {
    {U'A', U'Z', 32},     {0x00C0, 0x00D6, 32}, {0x00D8, 0x00DE, 32}, {0x0391, 0x03A1, 32},
    {0x03A3, 0x03A9, 32}, {0x0410, 0x042F, 32}, {0x0400, 0x040F, 80}, {0xFF21, 0xFF3A, 32},
};

// Blocks in which capital and small letter take turns; the capitals are even or odd.
struct CasePairs {
    char32_t first, last;
    bool evenCapitals;
};
constexpr CasePairs kCasePairs[] = {
    {0x0100, 0x0137, true},
    {0x0139, 0x0148, false},
    {0x014A, 0x0177, true},
    {0x0179, 0x017E, false},
};

char32_t Lower(char32_t c)
{
    if (c < 0x80)  // nearly all that comes; names are compared by the thousand
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    if (c > 0x042F && c < 0xFF21)  // Chinese
        return c;
    for (const CaseBlock& block : kCaseBlocks)
        if (c >= block.first && c <= block.last)
            return c + block.distance;
    for (const CasePairs& pairs : kCasePairs)
        if (c >= pairs.first && c <= pairs.last && (c % 2 == 0) == pairs.evenCapitals)
            return c + 1;
    return c;
}

char32_t Upper(char32_t c)
{
    for (const CaseBlock& block : kCaseBlocks)
        if (c >= block.first + block.distance && c <= block.last + block.distance)
            return c - block.distance;
    for (const CasePairs& pairs : kCasePairs)
        if (c >= pairs.first && c <= pairs.last && (c % 2 == 0) != pairs.evenCapitals)
            return c - 1;
    return c;
}

template <class Change>
std::string ChangeEach(std::string_view text, Change change)
{
    std::string changed;
    changed.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        AppendCharacter(changed, change(NextCharacter(text, position)));
    return changed;
}

// Where the `count`-th character begins, or the end of the text.
std::size_t OffsetOf(std::string_view text, std::size_t count)
{
    std::size_t position = 0;
    while (count-- > 0 && position < text.size())
        NextCharacter(text, position);
    return position;
}

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& position)
{
    constexpr char32_t kReplacement = 0xFFFD;
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };

    const unsigned char lead = byte(position);
    const std::size_t start = position++;
    if (lead < 0x80)
        return lead;
    const int following = lead >= 0xF0 && lead <= 0xF4 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
    if (following == 0 || lead > 0xF4 || start + static_cast<std::size_t>(following) >= text.size())
        return kReplacement;

    char32_t character = lead & (0x3Fu >> following);
    for (int i = 1; i <= following; ++i) {
        const unsigned char next = byte(start + static_cast<std::size_t>(i));
        if ((next & 0xC0) != 0x80)
            return kReplacement;
        character = (character << 6) | (next & 0x3Fu);
    }
    const bool overlong = (following == 2 && character < 0x800) || (following == 3 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (overlong || surrogate || character > 0x10FFFF)
        return kReplacement;
    position = start + 1 + static_cast<std::size_t>(following);
    return character;
}

void AppendCharacter(std::string& text, char32_t character)
{
    const auto add = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0 | (character >> 6));
        add(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        add(0xE0 | (character >> 12));
        add(0x80 | ((character >> 6) & 0x3F));
        add(0x80 | (character & 0x3F));
    } else {
        add(0xF0 | (character >> 18));
        add(0x80 | ((character >> 12) & 0x3F));
        add(0x80 | ((character >> 6) & 0x3F));
        add(0x80 | (character & 0x3F));
    }
}

bool EqualsNoCase(std::string_view a, std::string_view b)
{
    std::size_t positionA = 0;
    std::size_t positionB = 0;
    while (positionA < a.size() && positionB < b.size())
        if (Lower(NextCharacter(a, positionA)) != Lower(NextCharacter(b, positionB)))
            return false;
    return positionA == a.size() && positionB == b.size();
}

bool LessNoCase::operator()(std::string_view a, std::string_view b) const
{
    std::size_t positionA = 0;
    std::size_t positionB = 0;
    while (positionA < a.size() && positionB < b.size()) {
        const char32_t characterA = Lower(NextCharacter(a, positionA));
        const char32_t characterB = Lower(NextCharacter(b, positionB));
        if (characterA != characterB)
            return characterA < characterB;
    }
    return positionA == a.size() && positionB < b.size();
}

std::string ToLower(std::string_view text)
{
    return ChangeEach(text, Lower);
}

std::string ToUpper(std::string_view text)
{
    return ChangeEach(text, Upper);
}

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::size_t Length(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count)
        NextCharacter(text, position);
    return count;
}

std::string Left(std::string_view text, std::size_t count)
{
    return std::string(text.substr(0, OffsetOf(text, count)));
}

std::string Right(std::string_view text, std::size_t count)
{
    const std::size_t length = Length(text);
    return std::string(text.substr(OffsetOf(text, length - std::min(length, count))));
}

std::vector<std::string> Split(std::string_view text, std::string_view separator)
{
    std::vector<std::string> pieces;
    for (;;) {
        const std::size_t end = separator.empty() ? std::string_view::npos : text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + separator.size());
    }
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view by)
{
    if (what.empty())
        return std::string(text);
    std::string replaced;
    for (;;) {
        const std::size_t found = text.find(what);
        replaced += text.substr(0, found);
        if (found == std::string_view::npos)
            return replaced;
        replaced += by;
        text.remove_prefix(found + what.size());
    }
}

}  // namespace kavelin
