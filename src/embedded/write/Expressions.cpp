#include "embedded/write/Conversion.h"
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Kept.h"
#include "embedded/write/Quote.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

bool IsTrue(std::string_view text)
{
    return text != "0" && text != "false" && text != "False";
}

// 007 is 7, and a sign is kept apart from what stands in front of it.
std::string Digits(std::string_view text)
{
    const bool negative = text.substr(0, 1) == "-";
    text.remove_prefix(negative ? 1 : 0);
    while (text.size() > 1 && text[0] == '0' && text[1] >= '0' && text[1] <= '9')
        text.remove_prefix(1);
    return negative ? "(-" + std::string(text) + ")" : std::string(text);
}

int DigitsBehindPoint(std::string_view text)
{
    const std::size_t point = text.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(text.size() - point - 1);
}

// Whether a loose value of `from` serves as a loose value of `to`: the same digits behind the point, and
// no number of `from` that `to` couldn't hold.
bool Widens(const SqlType& from, const SqlType& to)
{
    const auto whole = [](const SqlType& type) { return type.IsInteger() && type.kind != TypeKind::Bit; };
    const auto decimal = [](const SqlType& type) {
        return type.kind == TypeKind::Decimal || type.kind == TypeKind::Money;
    };
    const auto width = [](const SqlType& type) { return type.kind == TypeKind::Money ? 19 : type.precision; };
    return (whole(from) && whole(to) && from.kind <= to.kind) ||
           (decimal(from) && decimal(to) && ScaleOf(from) == ScaleOf(to) && width(from) <= width(to));
}

}  // namespace

std::string Writer::Value(const BoundExpr& expression, Fit fit)
{
    const auto condition = [&](const auto&) { return Condition(expression); };
    return std::visit(
        Overloaded{
            [&](const BoundLiteral& node) { return Literal(node, expression.type, fit); },
            [&](const BoundColumn& node) { return Alias(node.source) + "." + QuoteName(node.column); },
            [&](const BoundGroupKey& node) { return objState.keys->at(node.index).shown; },
            [&](const BoundConversion& node) { return Convert(node, expression, fit); },
            [&](const BoundArithmetic& node) { return Arithmetic(node, expression, fit); },
            [&](const BoundConcat&) { return Concat(expression); },
            [&](const BoundNegation& node) { return Negation(node, expression, fit); },
            [&](const BoundDayDifference& node) {
                return "((epoch_us(" + Value(*node.left) + ") - epoch_us(" + Value(*node.right) +
                       ")) / 86400000000e0)";
            },
            [&](const BoundCase& node) { return Case(node, fit); },
            [&](const BoundFunction& node) { return Function(node, expression, fit); },
            [&](const BoundAggregate& node) { return Aggregate(node, expression, fit); },
            [&](const BoundRunning& node) { return Running(node, expression, fit); },
            [&](const BoundIdentity& node) { return Identity(node); },
            [&](const BoundScalarSubquery& node) { return Subquery(*node.query); },
            condition,
        },
        expression.node);
}

std::string Writer::Literal(const BoundLiteral& literal, const SqlType& type, Fit fit)
{
    if (literal.null)
        return type.kind == TypeKind::Null ? "NULL" : Cast("NULL", type);
    switch (type.kind) {
        case TypeKind::Bit: return IsTrue(literal.text) ? "TRUE" : "FALSE";
        case TypeKind::Float: return Cast(QuoteText(literal.text), type);
        case TypeKind::Datetime: return "TIMESTAMP " + QuoteText(literal.text);
        case TypeKind::Tinyint:
        case TypeKind::Smallint:
        case TypeKind::Bigint:
        case TypeKind::Money:
        case TypeKind::Decimal:
            return fit == Fit::Loose && DigitsBehindPoint(literal.text) == ScaleOf(type)
                       ? Digits(literal.text)
                       : Cast(Digits(literal.text), type);
        case TypeKind::Int: return Digits(literal.text);
        case TypeKind::Varchar:
        case TypeKind::Nvarchar:
        case TypeKind::Null: break;
    }
    return QuoteText(literal.text);
}

std::string Writer::Convert(const BoundConversion& conversion, const BoundExpr& node, Fit fit)
{
    const BoundExpr& operand = *conversion.operand;
    const bool refusesNull =
        conversion.kind == ConversionKind::Assignment && operand.nullable && !node.nullable;
    const auto finish = [&](const std::string& value) {
        return refusesNull ? RefuseNull(value, conversion.target) : value;
    };

    const auto* literal = std::get_if<BoundLiteral>(&operand.node);
    if (literal && !literal->null && node.type.kind == TypeKind::Bit && operand.type.kind == TypeKind::Int)
        return literal->text.find_first_not_of("-0") == std::string::npos ? "FALSE" : "TRUE";

    if (SameInDuck(operand.type, node.type) && !node.type.IsText())
        return finish(Value(operand, fit));
    if (fit == Fit::Loose && Widens(operand.type, node.type))
        return finish(Value(operand, fit));

    // A quotient that is rounded at once need not have more digits than the rounding looks at.
    const auto* quotient = std::get_if<BoundArithmetic>(&operand.node);
    if (quotient && quotient->op == ArithmeticOp::Divide && operand.type.kind == TypeKind::Decimal &&
        (node.type.kind == TypeKind::Decimal || node.type.kind == TypeKind::Money)) {
        const int scale = std::min(operand.type.scale, std::max(ScaleOf(node.type) + 1, 6));
        return finish(Cast(DecimalDivision(*quotient, scale), node.type));
    }

    const Conversion form{
        .kind = conversion.kind,
        .from = operand.type,
        .to = node.type,
        .forgiving = objState.forgiving,
        .rounds = std::holds_alternative<BoundDayDifference>(operand.node),
    };
    return finish(WriteConversion(form, Value(operand, Fit::Loose), objScratch));
}

std::string Writer::RefuseNull(const std::string& value, const std::string& column) const
{
    return "coalesce(" + value + ", " +
           Raise(515, "Cannot insert the value NULL into column '" + column + "', table '" + strTable +
                          "'; column does not allow nulls. " + strVerb + " fails.") +
           ")";
}

std::string Writer::Case(const BoundCase& choice, Fit fit)
{
    std::string text = "CASE";
    for (const BoundWhen& branch : choice.branches) {
        text += " WHEN ";
        {
            const Kept kept(objState);
            objState.negated = false;
            text += Condition(*branch.condition);
        }
        text += " THEN " + Value(*branch.result, fit);
    }
    if (choice.otherwise)
        text += " ELSE " + Value(*choice.otherwise, fit);
    return text + " END";
}

// a + b + c leans to the left; it is written as one chain.
std::string Writer::Concat(const BoundExpr& node)
{
    std::vector<std::string> pieces;
    const BoundExpr* at = &node;
    while (const auto* concat = std::get_if<BoundConcat>(&at->node)) {
        pieces.push_back(Value(*concat->right));
        at = concat->left.get();
    }
    pieces.push_back(Value(*at));
    std::reverse(pieces.begin(), pieces.end());
    return "(" + Join(pieces, " || ") + ")";
}

std::string Writer::Identity(const BoundIdentity& identity) const
{
    const std::string number = "row_number() OVER (" + objState.order + ")";
    if (identity.seed == 1 && identity.increment == 1)
        return "CAST(" + number + " AS INTEGER)";
    return "CAST(" + std::to_string(identity.seed) + " + (" + number + " - 1) * " +
           std::to_string(identity.increment) + " AS INTEGER)";
}

}  // namespace kavelin::embedded
