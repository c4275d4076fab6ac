#include "embedded/bind/Facts.h"

#include "embedded/bind/BoundBuild.h"

namespace kavelin::embedded {

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
