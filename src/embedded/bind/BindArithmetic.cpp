#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/Literals.h"
#include "embedded/bind/TypeRules.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

std::string_view OperatorName(ArithmeticOp op)
{
    switch (op) {
        case ArithmeticOp::Add: return "add";
        case ArithmeticOp::Subtract: return "subtract";
        case ArithmeticOp::Multiply: return "multiply";
        case ArithmeticOp::Divide: return "divide";
    }
    return {};
}

[[noreturn]] void RefuseOperand(const SqlType& type, std::string_view op, Place place)
{
    throw SqlError(8117,
                   "Operand data type " + std::string(BaseName(type.kind)) + " is invalid for " +
                       std::string(op) + " operator.",
                   place);
}

BoundExprPtr Concat(BoundExprPtr left, BoundExprPtr right, Place place)
{
    const SqlType type = ConcatType(left->type, right->type);
    const TextFacts facts = FactsOfConcat(*left, *right);
    return MakeBound(BoundConcat{std::move(left), std::move(right)}, type, true, place, facts);
}

// datetime - datetime is a span; datetime + n and datetime - n move by days.
BoundExprPtr DateArithmetic(ArithmeticOp op, BoundExprPtr left, BoundExprPtr right, Place place)
{
    const auto isDate = [](const BoundExprPtr& each) { return each->type.kind == TypeKind::Datetime; };
    if (op == ArithmeticOp::Multiply || op == ArithmeticOp::Divide)
        RefuseOperand(kDatetime, OperatorName(op), place);
    for (BoundExprPtr* each : {&left, &right})
        if ((*each)->type.IsText() || IsBareNull(**each))
            *each = Convert(std::move(*each), kDatetime, ConversionKind::Implicit, BadLiteral::Refuse);

    if (isDate(left) && isDate(right)) {
        if (op == ArithmeticOp::Add)
            throw SqlError(402, "The embedded engine does not add two datetimes.", place);
        return MakeBound(BoundDayDifference{std::move(left), std::move(right)}, kFloat, true, place);
    }
    if (!isDate(left)) {
        if (op == ArithmeticOp::Subtract)
            throw SqlError(402, "The embedded engine does not subtract a datetime from a number.", place);
        std::swap(left, right);
    }
    right = Convert(std::move(right), kFloat, ConversionKind::Implicit);
    return MakeBound(BoundArithmetic{op, std::move(left), std::move(right)}, kDatetime, true, place);
}

// A literal beside a decimal counts as a decimal of its own digits, any other whole number as one of its
// type's.
SqlType DecimalOf(const BoundExpr& operand)
{
    if (IsConstant(operand) && operand.type.kind == TypeKind::Int)
        return DecimalType(WholeDigitsOf(std::get<BoundLiteral>(operand.node).text), 0);
    return AsDecimal(operand.type);
}

BoundExprPtr NumberArithmetic(ArithmeticOp op, BoundExprPtr left, BoundExprPtr right, Place place)
{
    const TypeKind kind = std::max(left->type.kind, right->type.kind);
    if (kind == TypeKind::Bit)
        RefuseOperand(kBit, OperatorName(op), place);
    for (BoundExprPtr* each : {&left, &right}) {
        const SqlType operandType = kind == TypeKind::Decimal ? DecimalOf(**each) : SqlType{kind, 0, 0, 0};
        *each = Convert(std::move(*each), operandType, ConversionKind::Implicit, BadLiteral::Refuse);
    }
    const SqlType type = ArithmeticType(op, left->type, right->type);
    return MakeBound(BoundArithmetic{op, std::move(left), std::move(right)}, type, true, place);
}

// What meets a bare null gives it its type; a text beside a number becomes one of that number's type.
void TypeByOther(BoundExprPtr& operand, const BoundExpr& other)
{
    if (IsBareNull(*operand) || (operand->type.IsText() && other.type.IsNumber()))
        operand = Convert(std::move(operand), other.type, ConversionKind::Implicit, BadLiteral::Refuse);
}

}  // namespace

BoundExprPtr BindArithmetic(const Arithmetic& arithmetic, Place place, Scope& scope)
{
    BoundExprPtr left = BindValue(*arithmetic.left, scope);
    BoundExprPtr right = BindValue(*arithmetic.right, scope);
    const ArithmeticOp op = arithmetic.op;
    if (IsBareNull(*left) && IsBareNull(*right))
        left = Convert(std::move(left), kInt, ConversionKind::Implicit);
    if (left->type.kind == TypeKind::Datetime || right->type.kind == TypeKind::Datetime)
        return DateArithmetic(op, std::move(left), std::move(right), place);

    TypeByOther(left, *right);
    TypeByOther(right, *left);
    if (!left->type.IsText())
        return NumberArithmetic(op, std::move(left), std::move(right), place);
    if (op != ArithmeticOp::Add)
        RefuseOperand(left->type, OperatorName(op), place);
    return Concat(std::move(left), std::move(right), place);
}

BoundExprPtr BindSigned(const Signed& expression, Place place, Scope& scope)
{
    BoundExprPtr operand = BindValue(*expression.operand, scope);
    if (expression.sign == Sign::Plus)
        return operand;
    if (IsBareNull(*operand))
        operand = Convert(std::move(operand), kInt, ConversionKind::Implicit);
    if (!operand->type.IsNumber() || operand->type.kind == TypeKind::Bit)
        RefuseOperand(operand->type, "minus", place);
    if (IsConstant(*operand)) {
        std::string& text = std::get<BoundLiteral>(operand->node).text;
        const bool zero = text.find_first_of("123456789") == std::string::npos;
        if (text.front() == '-')
            text.erase(0, 1);
        else if (!zero)
            text.insert(0, "-");
        operand->place = place;
        return operand;
    }
    // A tinyint has no negative values.
    if (operand->type.kind == TypeKind::Tinyint)
        operand = Convert(std::move(operand), SqlType{TypeKind::Smallint, 0, 0, 0}, ConversionKind::Implicit);
    const SqlType type = operand->type;
    return MakeBound(BoundNegation{std::move(operand)}, type, true, place);
}

}  // namespace kavelin::embedded
