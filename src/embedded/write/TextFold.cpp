#include "embedded/write/TextFold.h"

#include "embedded/TextFacts.h"
#include "embedded/write/Quote.h"
#include "frame/Text.h"

namespace kavelin::embedded {

namespace {

bool IsAsciiLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

Letters LettersOf(std::string_view text)
{
    Letters letters;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = NextCharacter(text, at);
        if (character < 0x80) {
            letters.cased = letters.cased || IsAsciiLetter(static_cast<char>(character));
        } else if (!IsCaselessBeyondAscii(character)) {
            letters.cased = true;
            letters.onlyAscii = false;
        }
    }
    return letters;
}

const BoundLiteral* ConstantText(const BoundExpr& expression)
{
    const BoundExpr* at = &expression;
    while (const auto* conversion = std::get_if<BoundConversion>(&at->node)) {
        const BoundExpr& operand = *conversion->operand;
        const bool renames = at->type.IsText() && operand.type.IsText() &&
                             conversion->kind != ConversionKind::Assignment &&
                             (at->type.length == kMaxLength ||
                              (operand.type.length != kMaxLength && operand.type.length <= at->type.length));
        if (!renames)
            return nullptr;
        at = &operand;
    }
    const auto* literal = std::get_if<BoundLiteral>(&at->node);
    return literal && !literal->null && at->type.IsText() ? literal : nullptr;
}

CaseForm CommonCase(const std::vector<const BoundExpr*>& sides, bool ordered)
{
    std::size_t values = 0;
    bool valuesHaveCase = false;
    Letters letters;
    for (const BoundExpr* side : sides) {
        if (const BoundLiteral* literal = ConstantText(*side)) {
            const Letters more = LettersOf(literal->text);
            letters = {letters.cased || more.cased, letters.onlyAscii && more.onlyAscii};
        } else {
            ++values;
            valuesHaveCase = valuesHaveCase || !side->facts.noCase;
        }
    }
    if (!valuesHaveCase) {
        if (!letters.cased)
            return CaseForm::AsIs;
        return values > 0 && letters.onlyAscii ? CaseForm::Upper : CaseForm::Lower;
    }
    // What equals '33' but for its case is '33'.
    return !ordered && values == 1 && sides.size() > 1 && !letters.cased ? CaseForm::AsIs : CaseForm::Lower;
}

std::string FoldText(const std::string& written, const TextFacts& facts, CaseForm form)
{
    const std::string trimmed = facts.noTrailingBlanks ? written : "rtrim(" + written + ")";
    return form == CaseForm::Lower ? "lower(" + trimmed + ")" : trimmed;
}

std::string FoldLiteral(std::string_view text, CaseForm form, bool trimmed)
{
    if (trimmed)
        text = text.substr(0, text.find_last_not_of(' ') + 1);
    if (form == CaseForm::AsIs)
        return QuoteText(text);
    const Letters letters = LettersOf(text);
    if (form == CaseForm::Lower && !letters.onlyAscii)
        return "lower(" + QuoteText(text) + ")";  // beyond ASCII by DuckDB's own tables
    std::string folded(text);
    for (char& c : folded)
        if (IsAsciiLetter(c))
            c = static_cast<char>(form == CaseForm::Lower ? c | 0x20 : c & ~0x20);
    return QuoteText(folded);
}

std::string FoldAlone(const std::string& written, const TextFacts& facts)
{
    return FoldText(written, facts, facts.noCase ? CaseForm::AsIs : CaseForm::Lower);
}

}  // namespace kavelin::embedded
