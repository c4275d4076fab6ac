#include "embedded/write/Conversion.h"

#include "embedded/write/DuckTypes.h"

namespace kavelin::embedded {

namespace {

constexpr const char* kDayZero = "TIMESTAMP '1900-01-01 00:00:00'";
constexpr const char* kMicrosecondsOfADay = "86400000000e0";

// Days since 1900-01-01 with their fraction.
std::string DaysOf(const std::string& datetime)
{
    return "((epoch_us(" + datetime + ") - epoch_us(" + kDayZero + ")) / " + kMicrosecondsOfADay + ")";
}

// DuckDB rounds where it casts to a whole number, T-SQL cuts all but money and dates.
std::string ToWhole(const Conversion& conversion, const std::string& operand)
{
    const SqlType& from = conversion.from;
    if (from.kind == TypeKind::Datetime)
        return Cast("round(" + DaysOf(operand) + ")", conversion.to);
    if (from.kind == TypeKind::Float)
        return Cast((conversion.rounds ? "round(" : "trunc(") + operand + ")", conversion.to);
    if (from.kind == TypeKind::Decimal && from.scale > 0)
        return Cast("trunc(" + operand + ")", conversion.to);
    return Cast(operand, conversion.to);
}

// Whole milliseconds, which is more than the server keeps (it counts in thirds of a hundredth).
std::string ToDatetime(const Conversion& conversion, const std::string& operand)
{
    if (conversion.from.IsInteger())
        return "(" + std::string(kDayZero) + " + to_days(" + Cast(operand, {.kind = TypeKind::Int}) + "))";
    return "(" + std::string(kDayZero) + " + to_milliseconds(round(" +
           Cast(operand, {.kind = TypeKind::Float}) + " * 86400000)))";
}

std::string ToDecimal(const Conversion& conversion, const std::string& operand)
{
    if (conversion.from.kind == TypeKind::Datetime)
        return Cast(DaysOf(operand), conversion.to);
    return Cast(operand, conversion.to);
}

}  // namespace

std::string WriteConversion(const Conversion& conversion, const std::string& operand, Scratch& scratch)
{
    const SqlType& from = conversion.from;
    const SqlType& to = conversion.to;
    if (from.kind == TypeKind::Null)
        return Cast("NULL", to);
    if (to.IsText())
        return WriteToText(conversion, operand, scratch);
    if (from.IsText())
        return WriteFromText(conversion, operand, scratch);
    if (SameInDuck(from, to))
        return operand;

    switch (to.kind) {
        case TypeKind::Bit:
            return from.kind == TypeKind::Datetime ? "(" + DaysOf(operand) + " <> 0)"
                                                   : "(" + operand + " <> 0)";
        case TypeKind::Tinyint:
        case TypeKind::Smallint:
        case TypeKind::Int:
        case TypeKind::Bigint: return ToWhole(conversion, operand);
        case TypeKind::Money:
        case TypeKind::Decimal: return ToDecimal(conversion, operand);
        case TypeKind::Float: return from.kind == TypeKind::Datetime ? DaysOf(operand) : Cast(operand, to);
        case TypeKind::Datetime: return ToDatetime(conversion, operand);
        case TypeKind::Null:
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: break;
    }
    return operand;
}

std::string MessageName(const SqlType& type)
{
    switch (type.kind) {
        case TypeKind::Varchar: return "varchar";
        case TypeKind::Nvarchar: return "nvarchar";
        case TypeKind::Bit: return "bit";
        case TypeKind::Tinyint: return "tinyint";
        case TypeKind::Smallint: return "smallint";
        case TypeKind::Bigint: return "bigint";
        case TypeKind::Money: return "money";
        case TypeKind::Decimal: return "numeric";
        case TypeKind::Float: return "float";
        case TypeKind::Datetime: return "datetime";
        case TypeKind::Null:
        case TypeKind::Int: break;
    }
    return "int";
}

}  // namespace kavelin::embedded
