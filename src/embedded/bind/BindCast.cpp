#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/TypeRules.h"

#include <string>

namespace kavelin::embedded {

namespace {

// The style asks for a form of its own only from datetime to text.
ConversionKind KindOfStyle(const BoundExpr& operand, const SqlType& type, const std::optional<int>& style,
                           Place place)
{
    const bool dateToText = operand.type.kind == TypeKind::Datetime && type.IsText();
    if (!dateToText || !style || *style == 0 || *style == 100)
        return ConversionKind::Explicit;
    // 120 differs from 121 by the milliseconds only, which stand from the 20th character on.
    const bool startsAlike = *style == 120 && type.length != kMaxLength && type.length <= 19;
    if (*style == 121 || startsAlike)
        return ConversionKind::Style121;
    throw SqlError(281,
                   std::to_string(*style) +
                       " is not a valid style number when converting from datetime to a character string.",
                   place);
}

}  // namespace

BoundExprPtr BindCast(const CastExpr& expression, Place place, Scope& scope)
{
    const SqlType type = TypeOf(expression.type, TypeUse::Cast);
    BoundExprPtr converted = Convert(BindValue(*expression.operand, scope), type, ConversionKind::Explicit);
    converted->place = place;
    return converted;
}

BoundExprPtr BindConvert(const ConvertExpr& expression, Place place, Scope& scope)
{
    const SqlType type = TypeOf(expression.type, TypeUse::Cast);
    BoundExprPtr operand = BindValue(*expression.operand, scope);
    const ConversionKind kind = KindOfStyle(*operand, type, expression.style, place);
    BoundExprPtr converted = Convert(std::move(operand), type, kind);
    converted->place = place;
    return converted;
}

}  // namespace kavelin::embedded
