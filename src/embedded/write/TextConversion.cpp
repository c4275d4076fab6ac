// Texts that become numbers and dates, and what becomes a text.
//
// DuckDB's casts of texts take more than T-SQL's ('1.5' for an int, '1_000', 'infinity'), so a text is
// matched with a pattern first:
//   CASE WHEN regexp_full_match(v, pattern) THEN value WHEN trim(v) = '' THEN 0
//        WHEN v IS NOT NULL THEN error(...) END
#include "embedded/write/Conversion.h"
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"

#include <string_view>

namespace kavelin::embedded {

namespace {

constexpr std::string_view kWholePattern = " *[+-]?[0-9]+ *";
constexpr std::string_view kDecimalPattern = " *[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+) *";
constexpr std::string_view kFloatPattern = " *[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][+-]?[0-9]+)? *";
constexpr std::string_view kMoneyPattern = " *[+-]?([0-9][0-9,]*[.]?[0-9]*|[.][0-9]+) *";

// YYYY-M-D, YYYY/M/D, YYYY.M.D, YYYYMMDD, each with a time behind it.
constexpr std::string_view kDatePattern =
    " *[0-9]{4}(-[0-9]{1,2}-[0-9]{1,2}|/[0-9]{1,2}/[0-9]{1,2}|[.][0-9]{1,2}[.][0-9]{1,2}|[0-9]{4})"
    "( +[0-9]{1,2}:[0-9]{2}(:[0-9]{2}([.][0-9]{1,3})?)?)? *";

struct TextReading {
    std::string_view pattern;
    std::string value;    // of a text that matches
    std::string blank;    // of a text of blanks only; empty if that is an error
    std::string failure;  // the error of a text that doesn't match
};

std::string Guarded(const TextReading& reading, const std::string& v, bool forgiving)
{
    std::string text =
        "CASE WHEN regexp_full_match(" + v + ", " + QuoteText(reading.pattern) + ") THEN " + reading.value;
    if (!reading.blank.empty())
        text += " WHEN trim(" + v + ") = '' THEN " + reading.blank;
    if (!forgiving)
        text += " WHEN " + v + " IS NOT NULL THEN " + reading.failure;
    return text + " END";
}

// `value`, or the error where it gives NULL.
std::string Insist(const std::string& value, const std::string& failure, bool forgiving)
{
    return forgiving ? value : "coalesce(" + value + ", " + failure + ")";
}

// The wording for a text that is no whole number, no date and so on.
std::string ConversionFailed(const Conversion& conversion, const std::string& v)
{
    return RaiseWith(245,
                     "Conversion failed when converting the " + MessageName(conversion.from) + " value '", v,
                     "' to data type " + MessageName(conversion.to) + ".");
}

std::string WholeOverflow(const Conversion& conversion, const std::string& v)
{
    const std::string before = "The conversion of the " + MessageName(conversion.from) + " value '";
    switch (conversion.to.kind) {
        case TypeKind::Tinyint:
            return RaiseWith(244, before, v, "' overflowed an INT1 column. Use a larger integer column.");
        case TypeKind::Smallint:
            return RaiseWith(244, before, v, "' overflowed an INT2 column. Use a larger integer column.");
        case TypeKind::Bigint:
            return Raise(8115, "Arithmetic overflow error converting expression to data type bigint.");
        default: return RaiseWith(248, before, v, "' overflowed an int column.");
    }
}

std::string ReadingError(const Conversion& conversion)
{
    return Raise(8114, "Error converting data type " + MessageName(conversion.from) + " to " +
                           MessageName(conversion.to) + ".");
}

std::string Overflow(const Conversion& conversion)
{
    return Raise(8115, "Arithmetic overflow error converting " + MessageName(conversion.from) +
                           " to data type " + MessageName(conversion.to) + ".");
}

std::string ReadWhole(const Conversion& conversion, const std::string& v)
{
    const std::string value = "TRY_CAST(" + v + " AS " + DuckType(conversion.to) + ")";
    return Guarded(
        {kWholePattern, Insist(value, WholeOverflow(conversion, v), conversion.forgiving), "0",
         conversion.to.kind == TypeKind::Bigint ? ReadingError(conversion) : ConversionFailed(conversion, v)},
        v, conversion.forgiving);
}

std::string ReadBit(const Conversion& conversion, const std::string& v)
{
    std::string text = "CASE WHEN regexp_full_match(" + v + ", " + QuoteText(kWholePattern) +
                       ") THEN regexp_matches(" + v + ", '[1-9]') WHEN lower(trim(" + v +
                       ")) = 'true' THEN TRUE WHEN lower(trim(" + v + ")) IN ('false', '') THEN FALSE";
    if (!conversion.forgiving)
        text += " WHEN " + v + " IS NOT NULL THEN " + ConversionFailed(conversion, v);
    return text + " END";
}

std::string ReadDecimal(const Conversion& conversion, const std::string& v)
{
    const std::string value = "TRY_CAST(" + v + " AS " + DuckType(conversion.to) + ")";
    return Guarded({kDecimalPattern, Insist(value, Overflow(conversion), conversion.forgiving), "",
                    ReadingError(conversion)},
                   v, conversion.forgiving);
}

std::string ReadMoney(const Conversion& conversion, const std::string& v)
{
    const std::string value = "TRY_CAST(replace(" + v + ", ',', '') AS DECIMAL(19,4))";
    return Guarded({kMoneyPattern, Insist(value, Overflow(conversion), conversion.forgiving), "0",
                    Raise(235, "Cannot convert a char value to money. The char value has incorrect syntax.")},
                   v, conversion.forgiving);
}

std::string ReadFloat(const Conversion& conversion, const std::string& v)
{
    const std::string value = "TRY_CAST(" + v + " AS DOUBLE)";
    return Guarded({kFloatPattern, Insist(value, Overflow(conversion), conversion.forgiving), "0e0",
                    ReadingError(conversion)},
                   v, conversion.forgiving);
}

std::string ReadDatetime(const Conversion& conversion, const std::string& v)
{
    const std::string value =
        "TRY_CAST(regexp_replace(trim(" + v +
        "), '^([0-9]{4})[-/.]?([0-9]{1,2})[-/.]?([0-9]{1,2})', '\\1-\\2-\\3') AS TIMESTAMP)";
    const std::string outOfRange =
        Raise(242, "The conversion of a " + MessageName(conversion.from) +
                       " data type to a datetime data type resulted in an out-of-range value.");
    return Guarded(
        {kDatePattern, Insist(value, outOfRange, conversion.forgiving), "TIMESTAMP '1900-01-01 00:00:00'",
         Raise(241, "Conversion failed when converting date and/or time from character string.")},
        v, conversion.forgiving);
}

// --- to text -----------------------------------------------------------------------------------

bool MayExceed(const SqlType& to, int longest)
{
    return to.length != kMaxLength && (longest == kMaxLength || longest > to.length);
}

std::string TextToText(const Conversion& conversion, const std::string& operand, Scratch& scratch)
{
    if (!MayExceed(conversion.to, conversion.from.length))
        return operand;
    const std::string limit = std::to_string(conversion.to.length);
    if (conversion.kind != ConversionKind::Assignment)
        return "left(" + operand + ", " + limit + ")";

    // Counting bytes is quick and nearly always settles it.
    return scratch.Repeat(operand, [&](const std::string& v) {
        return "CASE WHEN strlen(" + v + ") <= " + limit + " THEN " + v + " WHEN length(rtrim(" + v +
               ")) > " + limit + " THEN " + Raise(8152, "String or binary data would be truncated.") +
               " ELSE left(" + v + ", " + limit + ") END";
    });
}

// `text` is the number as a text of at most `longest` characters. A number is never cut: it is an error,
// or, of a whole number in a varchar, a star.
std::string NumberText(const Conversion& conversion, const std::string& text, int longest, Scratch& scratch)
{
    if (!MayExceed(conversion.to, longest))
        return text;
    const bool star = conversion.from.IsInteger() && conversion.to.kind == TypeKind::Varchar;
    const std::string tooLong =
        star ? "'*'"
             : Raise(8115, "Arithmetic overflow error converting " +
                               (conversion.from.IsInteger() ? "expression" : MessageName(conversion.from)) +
                               " to data type " + MessageName(conversion.to) + ".");
    return scratch.Repeat(text, [&](const std::string& v) {
        return "CASE WHEN strlen(" + v + ") > " + std::to_string(conversion.to.length) + " THEN " + tooLong +
               " ELSE " + v + " END";
    });
}

std::string DatetimeText(const Conversion& conversion, const std::string& operand)
{
    const auto cut = [&](const std::string& text, int longest) {
        return MayExceed(conversion.to, longest)
                   ? "left(" + text + ", " + std::to_string(conversion.to.length) + ")"
                   : text;
    };
    if (conversion.kind != ConversionKind::Style121) {
        // Jul  1 2008 12:00AM: day and hour take two places each.
        return cut("regexp_replace(regexp_replace(strftime(" + operand +
                       ", '%b %-d %Y %-I:%M%p'), '^(...) ([0-9]) ', '\\1  \\2 '), ' ([0-9]:)', '  \\1')",
                   19);
    }
    if (conversion.to.length != kMaxLength && conversion.to.length <= 10)
        return cut("strftime(" + operand + ", '%Y-%m-%d')", 10);
    return cut("strftime(" + operand + ", '%Y-%m-%d %H:%M:%S.%g')", 23);
}

// Digits and sign of the longest whole number.
int LongestWhole(TypeKind kind)
{
    switch (kind) {
        case TypeKind::Tinyint: return 3;
        case TypeKind::Smallint: return 6;
        case TypeKind::Int: return 11;
        default: return 20;
    }
}

}  // namespace

std::string WriteFromText(const Conversion& conversion, const std::string& operand, Scratch& scratch)
{
    return scratch.Repeat(operand, [&](const std::string& v) {
        switch (conversion.to.kind) {
            case TypeKind::Bit: return ReadBit(conversion, v);
            case TypeKind::Money: return ReadMoney(conversion, v);
            case TypeKind::Decimal: return ReadDecimal(conversion, v);
            case TypeKind::Float: return ReadFloat(conversion, v);
            case TypeKind::Datetime: return ReadDatetime(conversion, v);
            default: return ReadWhole(conversion, v);
        }
    });
}

std::string WriteToText(const Conversion& conversion, const std::string& operand, Scratch& scratch)
{
    const SqlType& from = conversion.from;
    const auto asText = [](const std::string& number) { return "CAST(" + number + " AS VARCHAR)"; };
    switch (from.kind) {
        case TypeKind::Bit:
            return NumberText(conversion, asText("CAST(" + operand + " AS UTINYINT)"), 1, scratch);
        case TypeKind::Money:  // two digits behind the point
            return NumberText(conversion, asText("CAST(" + operand + " AS DECIMAL(19,2))"), 20, scratch);
        case TypeKind::Decimal: {
            // DuckDB writes a decimal of no whole digits without the zero in front of the point.
            const bool noWhole = from.precision == from.scale && from.precision < 38;
            const SqlType wider{
                .kind = TypeKind::Decimal, .precision = from.precision + 1, .scale = from.scale};
            return NumberText(conversion, asText(noWhole ? Cast(operand, wider) : operand),
                              from.precision + 3, scratch);
        }
        case TypeKind::Float:  // six digits, and exponents of three
            return NumberText(
                conversion,
                "regexp_replace(printf('%g', " + operand + "), 'e([+-])([0-9][0-9])$', 'e\\10\\2')", 13,
                scratch);
        case TypeKind::Datetime: return DatetimeText(conversion, operand);
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: return TextToText(conversion, operand, scratch);
        default: return NumberText(conversion, asText(operand), LongestWhole(from.kind), scratch);
    }
}

}  // namespace kavelin::embedded
