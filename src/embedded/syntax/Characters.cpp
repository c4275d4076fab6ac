#include "embedded/syntax/Characters.h"

namespace kavelin::embedded {

namespace {

// Beyond ASCII nearly everything is a letter of some language. These blocks are not: control signs,
// punctuation, signs of currency and mathematics, arrows, drawings, digits, private use.
struct Block {
    char32_t first, last;
};
constexpr Block kNoLetters[] = {
    {0x0080, 0x00A9}, {0x00AB, 0x00B4},  {0x00B6, 0x00B9},    {0x00BB, 0x00BF}, {0x00D7, 0x00D7},
    {0x00F7, 0x00F7}, {0x0300, 0x036F},  {0x2000, 0x207E},    {0x2080, 0x20FF}, {0x2190, 0x2E7F},
    {0x3000, 0x3004}, {0x3008, 0x3020},  {0x302A, 0x3030},    {0x3036, 0x3037}, {0x303D, 0x3040},
    {0x3099, 0x309C}, {0x30A0, 0x30A0},  {0x30FB, 0x30FB},    {0x3190, 0x319F}, {0x3200, 0x33FF},
    {0xD800, 0xF8FF}, {0xFE00, 0xFE6F},  {0xFEFF, 0xFEFF},    {0xFF00, 0xFF20}, {0xFF3B, 0xFF40},
    {0xFF5B, 0xFF65}, {0xFFE0, 0x1FFFF}, {0xE0000, 0x10FFFF},
};

bool IsLetter(char32_t character)
{
    if (character < 0x80)
        return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
    for (const Block& block : kNoLetters)
        if (character >= block.first && character <= block.last)
            return false;
    return true;
}

// Marks over letters and full-width digits stand inside a name, not at its begin.
bool IsMarkOrDigit(char32_t character)
{
    return IsDigit(character) || (character >= 0x0300 && character <= 0x036F) ||
           (character >= 0xFF10 && character <= 0xFF19);
}

}  // namespace

bool IsBlank(char32_t character)
{
    return character == U' ' || character == U'\t' || character == U'\r' || character == U'\n';
}

bool IsDigit(char32_t character)
{
    return character >= U'0' && character <= U'9';
}

bool BeginsName(char32_t character)
{
    return IsLetter(character) || character == U'_' || character == U'#';
}

bool ContinuesName(char32_t character)
{
    return BeginsName(character) || IsMarkOrDigit(character) || character == U'$' || character == U'@';
}

}  // namespace kavelin::embedded
