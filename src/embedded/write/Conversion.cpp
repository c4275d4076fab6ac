#include "embedded/write/Conversion.h"

#include "embedded/write/DuckTypes.h"

namespace kavelin::embedded {

namespace {

constexpr const char* kDayZero = "TIMESTAMP '1900-01-01 00:00:00'";
constexpr const char* kMicrosecondsOfADay = "86400000000e0";
constexpr int kNarrow = 18;  // digits that DuckDB keeps in 64 bits

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

// Whether digits behind the point go from a number that DuckDB keeps in 128 bits.
bool RoundsWideNumber(const SqlType& from, const SqlType& to)
{
    const bool wide =
        from.kind == TypeKind::Money || (from.kind == TypeKind::Decimal && from.precision > kNarrow);
    return wide && ScaleOf(from) <= kNarrow && ScaleOf(from) > ScaleOf(to);
}

// Dividing numbers of 128 bits is slow in DuckDB; few amounts need them:
//   coalesce(CAST(TRY_CAST(m AS DECIMAL(18,4)) AS DECIMAL(38,2)), CAST(m AS DECIMAL(38,2)))
std::string RoundedWideNumber(const Conversion& conversion, const std::string& operand, Scratch& scratch)
{
    const std::string narrow =
        "DECIMAL(" + std::to_string(kNarrow) + "," + std::to_string(ScaleOf(conversion.from)) + ")";
    return scratch.Repeat(operand, [&](const std::string& number) {
        return "coalesce(" + Cast("TRY_CAST(" + number + " AS " + narrow + ")", conversion.to) + ", " +
               Cast(number, conversion.to) + ")";
    });
}

std::string ToDecimal(const Conversion& conversion, const std::string& operand, Scratch& scratch)
{
    if (conversion.from.kind == TypeKind::Datetime)
        return Cast(DaysOf(operand), conversion.to);
    if (RoundsWideNumber(conversion.from, conversion.to))
        return RoundedWideNumber(conversion, operand, scratch);
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
        case TypeKind::Decimal: return ToDecimal(conversion, operand, scratch);
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
