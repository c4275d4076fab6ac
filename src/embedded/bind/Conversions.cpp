#include "embedded/bind/Conversions.h"

#include "embedded/SqlError.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/DateLiterals.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/Literals.h"
#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <charconv>
#include <optional>
#include <string>

namespace kavelin::embedded {

namespace {

// Longer than any number or date is when it is written.
constexpr int kLongestNumberText = 60;

bool HoldsLength(const SqlType& text, int length)
{
    return text.length == kMaxLength || (length != kMaxLength && length <= text.length);
}

bool SameButLonger(const SqlType& from, const SqlType& to)
{
    return from.IsText() && to.IsText() && HoldsLength(to, from.length);
}

// A span of days is a datetime to T-SQL, and is stored as little as one.
const SqlType& TypeAsStored(const BoundExpr& value, ConversionKind kind)
{
    const bool span = std::holds_alternative<BoundDayDifference>(value.node);
    return span && kind == ConversionKind::Assignment ? kDatetime : value.type;
}

// What T-SQL converts only when it is asked to.
bool NeedsCast(const SqlType& from, const SqlType& to)
{
    if (from.kind == TypeKind::Datetime)
        return to.IsNumber();
    return from.kind == TypeKind::Money && to.IsText();
}

// Whether `type` holds the plain number without rounding.
bool HoldsNumber(const SqlType& type, std::string_view number)
{
    const SqlType decimal = AsDecimal(type);
    return decimal.kind == TypeKind::Decimal && ScaleOf(number) <= decimal.scale &&
           WholeDigitsOf(number) <= std::max(1, decimal.precision - decimal.scale);
}

std::optional<std::int64_t> WholeNumber(std::string_view text)
{
    std::int64_t value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size())
        return std::nullopt;
    return value;
}

bool InRange(TypeKind kind, std::int64_t value)
{
    switch (kind) {
        case TypeKind::Tinyint: return value >= 0 && value <= 255;
        case TypeKind::Smallint: return value >= -32768 && value <= 32767;
        case TypeKind::Int: return value >= -2147483648LL && value <= 2147483647LL;
        default: return kind == TypeKind::Bigint;
    }
}

// A literal of a whole number in another type; nothing where the run has to convert or refuse it.
std::optional<std::string> WholeLiteralAs(const SqlType& type, const std::string& text)
{
    const auto value = WholeNumber(text);
    if (!value)
        return std::nullopt;
    switch (type.kind) {
        case TypeKind::Bit: return *value != 0 ? "true" : "false";
        case TypeKind::Tinyint:
        case TypeKind::Smallint:
        case TypeKind::Int:
        case TypeKind::Bigint:
            if (InRange(type.kind, *value))
                return text;
            return std::nullopt;
        case TypeKind::Datetime: {
            std::string date = DateOfDayNumber(*value);
            if (date.empty())
                return std::nullopt;
            return date;
        }
        default: return std::nullopt;
    }
}

// A literal of a number in another type.
std::optional<std::string> NumberLiteralAs(const SqlType& type, const std::string& text, const SqlType& from)
{
    if (from.kind == TypeKind::Float || from.kind == TypeKind::Bit ||
        (from.kind == TypeKind::Money && type.IsText()))
        return type.kind == from.kind ? std::optional(text) : std::nullopt;
    if (type.kind == TypeKind::Float)
        return text;
    if (type.kind == TypeKind::Money)
        return HoldsNumber(type, text) ? std::optional(text) : std::nullopt;
    if (type.kind == TypeKind::Decimal)
        return HoldsNumber(type, text) ? std::optional(RoundTo(text, type.scale)) : std::nullopt;
    if (type.IsText())
        return HoldsLength(type, static_cast<int>(text.size())) ? std::optional(text) : std::nullopt;
    return from.IsInteger() ? WholeLiteralAs(type, text) : std::nullopt;
}

std::optional<std::string> TextLiteralAsText(const SqlType& type, const std::string& text,
                                             ConversionKind kind)
{
    if (HoldsLength(type, static_cast<int>(Length(text))))
        return text;
    if (kind != ConversionKind::Assignment)
        return Left(text, static_cast<std::size_t>(type.length));
    return std::nullopt;
}

// The text of the literal in the new type, or nothing if the run has to convert it.
std::optional<std::string> LiteralAs(const SqlType& type, const BoundExpr& literal, ConversionKind kind,
                                     BadLiteral bad)
{
    const std::string& text = std::get<BoundLiteral>(literal.node).text;
    if (literal.type.kind == TypeKind::Datetime)
        return type.kind == TypeKind::Datetime ? std::optional(text) : std::nullopt;
    if (!literal.type.IsText())
        return NumberLiteralAs(type, text, literal.type);
    if (type.IsText())
        return TextLiteralAsText(type, text, kind);

    auto read = ReadTextAs(type, text, literal.type);
    if (auto* made = std::get_if<std::string>(&read))
        return std::move(*made);
    if (bad == BadLiteral::Refuse) {
        const auto& error = std::get<LiteralError>(read);
        throw SqlError(error.number, error.message, literal.place);
    }
    return std::nullopt;
}

BoundExprPtr Wrap(BoundExprPtr operand, const SqlType& type, ConversionKind kind)
{
    const TextFacts facts = FactsOfConversion(kind, operand->type, operand->facts, type);
    const bool asked = kind == ConversionKind::Explicit || kind == ConversionKind::Style121;
    const bool nullable = asked || operand->nullable;
    const Place place = operand->place;
    return MakeBound(BoundConversion{kind, std::move(operand), {}}, type, nullable, place, facts);
}

bool FitsInto(const BoundExpr& literal, const SqlType& type)
{
    const std::string& text = std::get<BoundLiteral>(literal.node).text;
    if (literal.type.IsText())
        return true;
    if (type.IsText())
        return false;
    if (literal.type.kind == TypeKind::Datetime || type.kind == TypeKind::Datetime)
        return type.kind == TypeKind::Datetime;
    if (type.kind == TypeKind::Bit)
        return literal.type.kind == TypeKind::Bit || text == "0" || text == "1";
    return NumberLiteralAs(type, text, literal.type).has_value();
}

}  // namespace

BoundExprPtr Convert(BoundExprPtr operand, const SqlType& type, ConversionKind kind, BadLiteral bad)
{
    const bool asked = kind == ConversionKind::Explicit || kind == ConversionKind::Style121;
    if (IsBareNull(*operand)) {
        operand->type = type;
        return operand;
    }
    const SqlType from = TypeAsStored(*operand, kind);
    if (!asked && NeedsCast(from, type))
        throw SqlError(257,
                       "Implicit conversion from data type " + std::string(BaseName(from.kind)) + " to " +
                           std::string(BaseName(type.kind)) +
                           " is not allowed. Use the CONVERT function to run this query.",
                       operand->place);
    if (!asked && (from == type || SameButLonger(from, type)))
        return operand;
    const BoundLiteral* literal = AsLiteral(*operand);
    if (literal && literal->null) {
        operand->type = type;
        return operand;
    }
    // An int that was asked for counts as an int beside a decimal, a literal by its digits: keep them apart.
    const bool intAskedFor = asked && type.kind == TypeKind::Int;
    if (literal && !intAskedFor) {
        if (auto text = LiteralAs(type, *operand, kind, bad)) {
            operand->facts = type.IsText() ? FactsOf(*text) : TextFacts{};
            operand->node = BoundLiteral{false, std::move(*text)};
            operand->type = type;
            operand->nullable = operand->nullable || asked;  // a column made by a cast takes nulls
            return operand;
        }
    }
    return Wrap(std::move(operand), type, kind);
}

BoundExprPtr AsText(BoundExprPtr operand)
{
    if (operand->type.IsText())
        return operand;
    return Convert(std::move(operand), TextType(true, kLongestNumberText), ConversionKind::Implicit);
}

BoundExprPtr Assign(BoundExprPtr value, const ColumnInfo& column)
{
    BoundExprPtr converted = Convert(std::move(value), column.type, ConversionKind::Assignment);
    auto* conversion = std::get_if<BoundConversion>(&converted->node);
    const bool assigns =
        conversion && conversion->kind == ConversionKind::Assignment && conversion->target.empty();
    const bool mayBeNull = converted->nullable && !column.nullable;
    if (!assigns && !mayBeNull)
        return converted;
    if (!assigns) {
        converted = Wrap(std::move(converted), column.type, ConversionKind::Assignment);
        conversion = &std::get<BoundConversion>(converted->node);
    }
    conversion->target = column.name;
    converted->nullable = column.nullable && converted->nullable;
    return converted;
}

SqlType TypeForComparison(const std::vector<const BoundExpr*>& values)
{
    SqlType common;
    for (const BoundExpr* value : values)
        if (!AsLiteral(*value))
            common = ComparisonType(common, value->type);
    const bool onlyLiterals = common.kind == TypeKind::Null;
    for (const BoundExpr* value : values)
        if (AsLiteral(*value) && !IsBareNull(*value)) {
            const bool fits = !onlyLiterals && IsConstant(*value) && FitsInto(*value, common);
            if (!fits)
                common = ComparisonType(common, value->type);
        }
    return common;
}

void AlignForComparison(const std::vector<BoundExprPtr*>& values)
{
    std::vector<const BoundExpr*> read;
    for (const BoundExprPtr* value : values)
        read.push_back(value->get());
    SqlType common = TypeForComparison(read);
    if (common.kind == TypeKind::Null)
        common = kInt;
    for (BoundExprPtr* value : values)
        if (!common.IsText() || IsBareNull(**value))
            *value = Convert(std::move(*value), common, ConversionKind::Implicit, BadLiteral::Refuse);
}

SqlType AlignForChoice(const std::vector<BoundExprPtr*>& values)
{
    SqlType common;
    for (const BoundExprPtr* value : values)
        common = CommonType(common, (*value)->type);
    if (common.kind == TypeKind::Null)
        return common;
    for (BoundExprPtr* value : values)
        *value = Convert(std::move(*value), common, ConversionKind::Implicit);
    return common;
}

}  // namespace kavelin::embedded
