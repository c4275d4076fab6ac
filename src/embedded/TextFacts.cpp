#include "embedded/TextFacts.h"

#include "frame/Text.h"

namespace kavelin::embedded {

TextFacts FactsOf(std::string_view text)
{
    TextFacts facts{!text.ends_with(' '), true};
    for (std::size_t position = 0; position < text.size() && facts.noCase;) {
        const char32_t character = NextCharacter(text, position);
        facts.noCase =
            character < 0x80 ? character < U'a' || character > U'z' : IsCaselessBeyondAscii(character);
    }
    return facts;
}

TextFacts Both(const TextFacts& a, const TextFacts& b)
{
    return {a.noTrailingBlanks && b.noTrailingBlanks, a.noCase && b.noCase};
}

bool IsCaselessBeyondAscii(char32_t character)
{
    return (character >= 0x2E80 && character <= 0xA4CF) || (character >= 0xAC00 && character <= 0xD7A3) ||
           (character >= 0xF900 && character <= 0xFAFF) || (character >= 0x20000 && character <= 0x3FFFF);
}

}  // namespace kavelin::embedded
