#include "embedded/bind/TypeRules.h"

#include "embedded/SqlError.h"
#include "frame/Text.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

constexpr int kMaxPrecision = 38;
constexpr int kMaxNvarchar = 4000;
constexpr int kMaxVarchar = 8000;

enum class Arguments { None, Ignored, Length, Precision };

struct NamedType {
    std::string_view name;
    TypeKind kind;
    Arguments arguments;
};

// clang-format off
constexpr NamedType kTypes[] = {
    {"nvarchar",      TypeKind::Nvarchar, Arguments::Length   },
    {"varchar",       TypeKind::Varchar,  Arguments::Length   },
    {"int",           TypeKind::Int,      Arguments::None     },
    {"integer",       TypeKind::Int,      Arguments::None     },
    {"bit",           TypeKind::Bit,      Arguments::None     },
    {"tinyint",       TypeKind::Tinyint,  Arguments::None     },
    {"smallint",      TypeKind::Smallint, Arguments::None     },
    {"bigint",        TypeKind::Bigint,   Arguments::None     },
    {"float",         TypeKind::Float,    Arguments::Ignored  },
    {"real",          TypeKind::Float,    Arguments::None     },
    {"money",         TypeKind::Money,    Arguments::None     },
    {"decimal",       TypeKind::Decimal,  Arguments::Precision},
    {"dec",           TypeKind::Decimal,  Arguments::Precision},
    {"numeric",       TypeKind::Decimal,  Arguments::Precision},
    {"datetime",      TypeKind::Datetime, Arguments::None     },
    {"smalldatetime", TypeKind::Datetime, Arguments::None     },
};
// clang-format on

SqlType LengthOf(const TypeName& name, TypeKind kind, TypeUse use)
{
    const int longest = kind == TypeKind::Nvarchar ? kMaxNvarchar : kMaxVarchar;
    const int length = name.first.value_or(use == TypeUse::Cast ? 30 : 1);
    if (length == kMaxLength)
        return {kind, kMaxLength, 0, 0};
    if (length < 1)
        throw SqlError(1001, "Length or precision " + std::to_string(length) + " is invalid.", name.place);
    if (length > longest)
        throw SqlError(131,
                       "The size (" + std::to_string(length) + ") given to the type '" + name.name +
                           "' exceeds the maximum allowed for any data type (" + std::to_string(longest) +
                           ").",
                       name.place);
    return {kind, length, 0, 0};
}

SqlType PrecisionOf(const TypeName& name)
{
    const int precision = name.first.value_or(18);
    const int scale = name.second.value_or(0);
    if (precision < 1)
        throw SqlError(1001, "Length or precision " + std::to_string(precision) + " is invalid.", name.place);
    if (precision > kMaxPrecision)
        throw SqlError(2750,
                       "Specified column precision " + std::to_string(precision) +
                           " is greater than the maximum precision of 38.",
                       name.place);
    if (scale < 0 || scale > precision)
        throw SqlError(2751,
                       "Specified column scale " + std::to_string(scale) +
                           " is greater than the specified precision of " + std::to_string(precision) + ".",
                       name.place);
    return DecimalType(precision, scale);
}

TypeKind Higher(TypeKind a, TypeKind b)
{
    return std::max(a, b);
}

int WholeDigits(const SqlType& type)
{
    return type.precision - type.scale;
}

// Sums, differences, CASE and UNION: more than 38 digits take decimal places away.
SqlType CapKeepingWholeDigits(int wholeDigits, int scale, int carry)
{
    const int precision = wholeDigits + scale + carry;
    if (precision <= kMaxPrecision)
        return DecimalType(precision, scale);
    return DecimalType(kMaxPrecision, std::min(scale, kMaxPrecision - wholeDigits));
}

// Products and quotients: decimal places give way too, but six remain while the whole digits are many.
SqlType CapKeepingSixPlaces(int precision, int scale)
{
    if (precision <= kMaxPrecision)
        return DecimalType(precision, scale);
    const int wholeDigits = precision - scale;
    if (wholeDigits < 32)
        return DecimalType(kMaxPrecision, std::min(scale, kMaxPrecision - wholeDigits));
    return DecimalType(kMaxPrecision, std::min(scale, 6));
}

SqlType DecimalArithmeticType(ArithmeticOp op, const SqlType& a, const SqlType& b)
{
    switch (op) {
        case ArithmeticOp::Add:
        case ArithmeticOp::Subtract:
            return CapKeepingWholeDigits(std::max(WholeDigits(a), WholeDigits(b)), std::max(a.scale, b.scale),
                                         1);
        case ArithmeticOp::Multiply:
            return CapKeepingSixPlaces(a.precision + b.precision + 1, a.scale + b.scale);
        case ArithmeticOp::Divide: break;
    }
    const int scale = std::max(6, a.scale + b.precision + 1);
    return CapKeepingSixPlaces(WholeDigits(a) + b.scale + scale, scale);
}

int LongerLength(int a, int b)
{
    return a == kMaxLength || b == kMaxLength ? kMaxLength : std::max(a, b);
}

}  // namespace

std::string_view BaseName(TypeKind kind)
{
    switch (kind) {
        case TypeKind::Null: return "NULL";
        case TypeKind::Varchar: return "varchar";
        case TypeKind::Nvarchar: return "nvarchar";
        case TypeKind::Bit: return "bit";
        case TypeKind::Tinyint: return "tinyint";
        case TypeKind::Smallint: return "smallint";
        case TypeKind::Int: return "int";
        case TypeKind::Bigint: return "bigint";
        case TypeKind::Money: return "money";
        case TypeKind::Decimal: return "numeric";
        case TypeKind::Float: return "float";
        case TypeKind::Datetime: return "datetime";
    }
    return {};
}

SqlType TypeOf(const TypeName& name, TypeUse use)
{
    const auto found = std::find_if(std::begin(kTypes), std::end(kTypes), [&](const NamedType& type) {
        return EqualsNoCase(type.name, name.name);
    });
    if (found == std::end(kTypes)) {
        if (use == TypeUse::Cast)
            throw SqlError(243, "Type " + name.name + " is not a defined system type.", name.place);
        throw SqlError(2715, "Cannot find data type " + name.name + ".", name.place);
    }
    const bool tooMany = (name.first && found->arguments == Arguments::None) ||
                         (name.second && found->arguments != Arguments::Precision);
    if (tooMany)
        throw SqlError(2716, "Cannot specify a column width on data type " + name.name + ".", name.place);
    if (found->arguments == Arguments::Length)
        return LengthOf(name, found->kind, use);
    if (found->arguments == Arguments::Precision)
        return PrecisionOf(name);
    return {found->kind, 0, 0, 0};
}

SqlType AsDecimal(const SqlType& type)
{
    switch (type.kind) {
        case TypeKind::Bit: return DecimalType(1, 0);
        case TypeKind::Tinyint: return DecimalType(3, 0);
        case TypeKind::Smallint: return DecimalType(5, 0);
        case TypeKind::Int: return DecimalType(10, 0);
        case TypeKind::Bigint: return DecimalType(19, 0);
        case TypeKind::Money: return DecimalType(19, 4);
        default: return type;
    }
}

SqlType ArithmeticType(ArithmeticOp op, const SqlType& left, const SqlType& right)
{
    const TypeKind kind = Higher(left.kind, right.kind);
    if (kind == TypeKind::Decimal)
        return DecimalArithmeticType(op, AsDecimal(left), AsDecimal(right));
    return {kind, 0, 0, 0};
}

SqlType ConcatType(const SqlType& left, const SqlType& right)
{
    const bool national = Higher(left.kind, right.kind) == TypeKind::Nvarchar;
    if (left.length == kMaxLength || right.length == kMaxLength)
        return TextType(national, kMaxLength);
    return TextType(national, std::min(left.length + right.length, national ? kMaxNvarchar : kMaxVarchar));
}

SqlType CommonType(const SqlType& a, const SqlType& b)
{
    const TypeKind kind = Higher(a.kind, b.kind);
    if (a.IsText() && b.IsText())
        return {kind, LongerLength(a.length, b.length), 0, 0};
    if (kind == TypeKind::Decimal && a.IsNumber() && b.IsNumber()) {
        const SqlType left = AsDecimal(a);
        const SqlType right = AsDecimal(b);
        return CapKeepingWholeDigits(std::max(WholeDigits(left), WholeDigits(right)),
                                     std::max(left.scale, right.scale), 0);
    }
    return a.kind >= b.kind ? a : b;
}

SqlType ComparisonType(const SqlType& a, const SqlType& b)
{
    if (a.IsNumber() && b.IsNumber() && Higher(a.kind, b.kind) == TypeKind::Decimal) {
        const SqlType left = AsDecimal(a);
        const SqlType right = AsDecimal(b);
        const int scale = std::max(left.scale, right.scale);
        const int wholeDigits = std::max(WholeDigits(left), WholeDigits(right));
        return DecimalType(std::min(kMaxPrecision, wholeDigits + scale), scale);
    }
    return CommonType(a, b);
}

SqlType AggregateType(AggregateKind kind, const SqlType& argument, Place place)
{
    const auto refuse = [&](std::string_view aggregate) -> SqlType {
        throw SqlError(8117,
                       "Operand data type " + std::string(BaseName(argument.kind)) + " is invalid for " +
                           std::string(aggregate) + " operator.",
                       place);
    };
    const bool adds = argument.IsNumber() && argument.kind != TypeKind::Bit;
    switch (kind) {
        case AggregateKind::Count:
        case AggregateKind::CountRows: return kInt;
        case AggregateKind::Min:
        case AggregateKind::Max:
            if (argument.kind == TypeKind::Null || argument.kind == TypeKind::Bit)
                return refuse(kind == AggregateKind::Min ? "min" : "max");
            return argument;
        case AggregateKind::Sum:
            if (!adds)
                return refuse("sum");
            break;
        case AggregateKind::Avg:
            if (!adds)
                return refuse("avg");
            break;
    }
    switch (argument.kind) {
        case TypeKind::Tinyint:
        case TypeKind::Smallint: return kInt;
        case TypeKind::Decimal:
            return DecimalType(kMaxPrecision,
                               kind == AggregateKind::Avg ? std::max(argument.scale, 6) : argument.scale);
        default: return argument;
    }
}

}  // namespace kavelin::embedded
