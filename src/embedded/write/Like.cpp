#include "embedded/write/Like.h"

#include "embedded/write/Quote.h"
#include "embedded/write/TextFold.h"

namespace kavelin::embedded {

namespace {

// [a-c], [^a] and the rest of a pattern as a regular expression of the whole text. A bracket that nothing
// closes makes a pattern that no text matches: then nothing is returned but an empty text.
std::string AsRegularExpression(std::string_view pattern)
{
    constexpr std::string_view special = "\\.+*?()|{}^$[]";
    std::string expression;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const char c = pattern[at];
        if (c == '%') {
            expression += ".*";
        } else if (c == '_') {
            expression += '.';
        } else if (c == '[') {
            const bool negated = pattern.substr(at + 1, 1) == "^";
            const std::size_t from = at + (negated ? 2 : 1);
            const std::size_t to = pattern.find(']', from);
            if (to == std::string_view::npos || to == from)
                return "";
            expression += negated ? "[^" : "[";
            for (const char member : pattern.substr(from, to - from)) {
                if (member == '\\' || member == '[' || member == '^')
                    expression += '\\';
                expression += member;
            }
            expression += ']';
            at = to;
        } else {
            if (special.find(c) != std::string_view::npos)
                expression += '\\';
            expression += c;
        }
    }
    return expression;
}

}  // namespace

std::string WriteLike(const std::string& operand, const TextFacts& facts, std::string_view pattern,
                      bool nullIsFalse)
{
    const std::size_t wildcard = pattern.find_first_of("%_[");
    if (!pattern.empty() && pattern.find_first_not_of('%') == std::string_view::npos)
        return nullIsFalse ? "(" + operand + " IS NOT NULL)" : "starts_with(" + operand + ", '')";

    const Letters letters = LettersOf(pattern);
    CaseForm form = CaseForm::AsIs;
    if (letters.cased)
        form = facts.noCase && letters.onlyAscii && pattern.find('[') == std::string_view::npos
                   ? CaseForm::Upper
                   : CaseForm::Lower;
    const std::string folded = form == CaseForm::Lower ? "lower(" + operand + ")" : operand;

    if (wildcard == std::string_view::npos)
        return "(" + folded + " = " + FoldLiteral(pattern, form, false) + ")";
    if (pattern.find_first_not_of('%', wildcard) == std::string_view::npos)
        return "starts_with(" + folded + ", " + FoldLiteral(pattern.substr(0, wildcard), form, false) + ")";
    if (pattern.find('[') == std::string_view::npos)
        return "(" + folded + " LIKE " + FoldLiteral(pattern, form, false) + ")";

    const std::string expression = AsRegularExpression(pattern);
    if (expression.empty())
        return "(" + operand + " IS NULL AND NULL)";
    return "regexp_full_match(" + operand + ", " + QuoteText("(?is)" + expression) + ")";
}

std::string WriteLikeExpression(const std::string& operand, const std::string& pattern, Scratch& scratch)
{
    return scratch.Repeat(pattern, [&](const std::string& p) {
        return "(lower(" + operand + ") LIKE CASE WHEN contains(" + p + ", '[') THEN " +
               Raise(102, "The embedded account takes brackets of LIKE in a constant pattern only.") +
               " ELSE lower(" + p + ") END)";
    });
}

}  // namespace kavelin::embedded
