#include "embedded/bind/Facts.h"

#include "embedded/bind/BoundBuild.h"
#include "frame/Text.h"

#include <string>

namespace kavelin::embedded {

namespace {

bool HasCase(char32_t character)
{
    constexpr char32_t kFirstIdeograph = 0x2E80;
    constexpr char32_t kLastIdeograph = 0xD7FF;
    if (character >= kFirstIdeograph && character <= kLastIdeograph)
        return false;
    std::string text;
    AppendCharacter(text, character);
    return ToLower(text) != text || ToUpper(text) != text;
}

bool HoldsCase(std::string_view text)
{
    std::size_t position = 0;
    while (position < text.size()) {
        const char c = text[position];
        if (static_cast<unsigned char>(c) < 0x80) {
            if (c >= 'a' && c <= 'z')
                return true;
            ++position;
        } else if (HasCase(NextCharacter(text, position))) {
            return true;
        }
    }
    return false;
}

}  // namespace

TextFacts FactsOf(std::string_view text)
{
    return {!text.ends_with(' '), !HoldsCase(text)};
}

TextFacts Both(const TextFacts& a, const TextFacts& b)
{
    return {a.noTrailingBlanks && b.noTrailingBlanks, a.noCase && b.noCase};
}

bool Weakens(const TextFacts& column, const TextFacts& value)
{
    return Both(column, value) != column;
}

TextFacts FactsOfConversion(ConversionKind kind, const SqlType& from, const TextFacts& facts,
                            const SqlType& to)
{
    if (!to.IsText())
        return {};
    switch (from.kind) {
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: {
            const bool cut = kind != ConversionKind::Assignment && to.length != kMaxLength &&
                             (from.length == kMaxLength || to.length < from.length);
            return {facts.noTrailingBlanks && !cut, facts.noCase};
        }
        case TypeKind::Float: return {true, false};  // 1e+010
        case TypeKind::Datetime:
            if (kind == ConversionKind::Style121)
                return {to.length <= 10 || to.length >= 23, true};  // a cut may end behind the day's blank
            return {to.length == kMaxLength || to.length >= 19, false};  // Jul  1 2008 12:00AM
        default: return {true, true};
    }
}

TextFacts FactsOfConcat(const BoundExpr& left, const BoundExpr& right)
{
    const BoundLiteral* end = AsLiteral(right);
    const bool endShows = end && !end->text.empty();
    return {right.facts.noTrailingBlanks && (left.facts.noTrailingBlanks || endShows),
            left.facts.noCase && right.facts.noCase};
}

}  // namespace kavelin::embedded
