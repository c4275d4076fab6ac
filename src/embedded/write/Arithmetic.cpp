#include "embedded/syntax/Operators.h"
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"
#include "embedded/write/Quotient.h"
#include "embedded/write/Writer.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

constexpr SqlType kInt{.kind = TypeKind::Int};

bool IsDecimal(const SqlType& type)
{
    return type.kind == TypeKind::Decimal || type.kind == TypeKind::Money;
}

int WidthOf(const SqlType& type)
{
    return type.kind == TypeKind::Money ? 19 : type.precision;
}

// The operand that an implicit conversion from a whole number hides, if it does: a factor need not have
// the other's scale.
const BoundExpr& WholeFactor(const BoundExpr& expression)
{
    const auto* conversion = std::get_if<BoundConversion>(&expression.node);
    const bool whole = conversion && conversion->kind == ConversionKind::Implicit &&
                       conversion->operand->type.IsInteger() &&
                       conversion->operand->type.kind != TypeKind::Bit;
    return whole ? *conversion->operand : expression;
}

// A constant other than 0.
bool IsNeverZero(const BoundExpr& expression)
{
    const BoundExpr* at = &expression;
    while (const auto* conversion = std::get_if<BoundConversion>(&at->node)) {
        // cast(0.4 as int) is 0
        if (conversion->operand->type.kind != TypeKind::Int &&
            !SameInDuck(at->type, conversion->operand->type) && at->type.kind != TypeKind::Float)
            return false;
        at = conversion->operand.get();
    }
    const auto* literal = std::get_if<BoundLiteral>(&at->node);
    return literal && !literal->null && at->type.IsNumber() &&
           literal->text.substr(0, literal->text.find_first_of("eE")).find_first_of("123456789") !=
               std::string::npos;
}

}  // namespace

std::string Writer::Arithmetic(const BoundArithmetic& arithmetic, const BoundExpr& node, Fit fit)
{
    switch (arithmetic.op) {
        case ArithmeticOp::Add:
        case ArithmeticOp::Subtract: return Sum(arithmetic, node.type, fit);
        case ArithmeticOp::Multiply: return Product(arithmetic, node.type, fit);
        case ArithmeticOp::Divide: break;
    }
    return Division(arithmetic, node.type, fit);
}

std::string Writer::Sum(const BoundArithmetic& arithmetic, const SqlType& type, Fit fit)
{
    const auto text = [&](const std::string& left, const std::string& right) {
        return "(" + left + std::string(OperatorText(arithmetic.op)) + right + ")";
    };
    const BoundExpr& left = *arithmetic.left;
    const BoundExpr& right = *arithmetic.right;
    switch (type.kind) {
        case TypeKind::Money: {
            const std::string sum = text(Value(left, Fit::Loose), Value(right, Fit::Loose));
            return fit == Fit::Loose ? sum : Cast(sum, type);
        }
        case TypeKind::Decimal: {
            const std::string sum = text(Value(left), Value(right));
            const int scale = std::max(ScaleOf(left.type), ScaleOf(right.type));
            const int whole =
                std::max(WidthOf(left.type) - ScaleOf(left.type), WidthOf(right.type) - ScaleOf(right.type));
            const bool natural = IsDecimal(left.type) && IsDecimal(right.type) && scale == type.scale &&
                                 (fit == Fit::Loose || std::min(38, whole + scale + 1) == type.precision);
            return natural ? sum : Cast(sum, type);
        }
        case TypeKind::Bit:
        case TypeKind::Tinyint:
            // UTINYINT would overflow in 1 - 2 + 3
            return Cast(text(Cast(Value(left), kInt), Cast(Value(right), kInt)), type);
        case TypeKind::Datetime:
            return text(Value(left), "to_milliseconds(round(" + Value(right) + " * 86400000))");  // days
        default: return text(Value(left), Value(right));
    }
}

std::string Writer::Product(const BoundArithmetic& arithmetic, const SqlType& type, Fit fit)
{
    const BoundExpr& left = *arithmetic.left;
    const BoundExpr& right = *arithmetic.right;
    if (type.kind == TypeKind::Tinyint || type.kind == TypeKind::Bit)
        return Cast("(" + Cast(Value(left), kInt) + " * " + Cast(Value(right), kInt) + ")", type);
    if (!IsDecimal(type))
        return "(" + Value(left) + " * " + Value(right) + ")";

    const BoundExpr& leftFactor = WholeFactor(left);
    const BoundExpr& rightFactor = WholeFactor(right);
    int leftScale = ScaleOf(leftFactor.type);
    int rightScale = ScaleOf(rightFactor.type);
    const auto factor = [&](const BoundExpr& expression, int scale) {
        const std::string text = Value(expression, Fit::Loose);
        if (scale == ScaleOf(expression.type))
            return text;
        return Cast(text, {.kind = TypeKind::Decimal, .precision = 38, .scale = scale});
    };
    // DuckDB has no product of more than 38 digits behind the point.
    const int excess = std::max(0, leftScale + rightScale - 38);
    (leftScale > rightScale ? leftScale : rightScale) -= excess;
    const std::string leftText = factor(leftFactor, leftScale);
    const std::string rightText = factor(rightFactor, rightScale);
    const int scale = leftScale + rightScale;
    if (scale > ScaleOf(type) && WidthOf(left.type) + WidthOf(right.type) > 38)
        return WideProduct(leftText, rightText, scale, type);
    const std::string product = "(" + leftText + " * " + rightText + ")";
    return fit == Fit::Loose && scale == ScaleOf(type) ? product : Cast(product, type);
}

// A product whose places give way to its whole digits. DuckDB has 38 digits for both, also on the way: what has
// more whole digits than the full scale leaves room for is computed as a DOUBLE.
std::string Writer::WideProduct(const std::string& left, const std::string& right, int scale,
                                const SqlType& type)
{
    const std::string limit = "9e" + std::to_string(37 - scale);
    return objScratch.Repeat(left, [&](const std::string& v) {
        return objScratch.Repeat(right, [&](const std::string& w) {
            const std::string rough = "CAST(" + v + " AS DOUBLE) * CAST(" + w + " AS DOUBLE)";
            return "CASE WHEN abs(" + rough + ") < " + limit + " THEN " +
                   Cast("(" + v + " * " + w + ")", type) + " ELSE " + Cast("(" + rough + ")", type) + " END";
        });
    });
}

std::string Writer::Division(const BoundArithmetic& arithmetic, const SqlType& type, Fit fit)
{
    const BoundExpr& left = *arithmetic.left;
    const BoundExpr& right = *arithmetic.right;
    if (type.kind == TypeKind::Float)
        return "(" + Value(left) + " / " + Divisor(right, Value(right)) + ")";
    if (IsDecimal(type)) {
        const std::string quotient = DecimalDivision(arithmetic, ScaleOf(type));
        return fit == Fit::Loose || WidthOf(type) == 38 ? quotient : Cast(quotient, type);
    }
    return "(" + Value(left) + " // " + Divisor(right, Value(right)) + ")";
}

std::string Writer::DecimalDivision(const BoundArithmetic& arithmetic, int scale)
{
    const BoundExpr& left = WholeFactor(*arithmetic.left);
    const BoundExpr& right = WholeFactor(*arithmetic.right);
    return WriteQuotient({Value(left, Fit::Loose), ScaleOf(left.type)},
                         {Divisor(right, Value(right, Fit::Loose)), ScaleOf(right.type)}, scale);
}

std::string Writer::Divisor(const BoundExpr& expression, const std::string& written)
{
    if (IsNeverZero(expression))
        return written;
    return objScratch.Repeat(written, [](const std::string& v) {
        return "CASE WHEN " + v + " = 0 THEN " + Raise(8134, "Divide by zero error encountered.") + " ELSE " +
               v + " END";
    });
}

std::string Writer::Negation(const BoundNegation& negation, const BoundExpr& node, Fit fit)
{
    const BoundExpr& operand = *negation.operand;
    if (operand.type.kind == TypeKind::Tinyint || operand.type.kind == TypeKind::Bit) {
        const std::string negative = "(-" + Cast(Value(operand), kInt) + ")";
        return fit == Fit::Loose || node.type.kind == TypeKind::Int ? negative : Cast(negative, node.type);
    }
    return "(-" + Value(operand, fit) + ")";
}

}  // namespace kavelin::embedded
