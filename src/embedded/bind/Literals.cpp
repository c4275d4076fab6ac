#include "embedded/bind/Literals.h"

#include "embedded/SqlError.h"
#include "embedded/bind/DateLiterals.h"
#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace kavelin::embedded {

namespace {

constexpr std::size_t kMaxDigits = 38;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// A plain number cut into its parts: sign, whole digits without leading zeros, decimal places.
struct Plain {
    bool negative = false;
    std::string whole;
    std::string places;

    std::string Text() const
    {
        const bool zero = whole.empty() && places.find_first_not_of('0') == std::string::npos;
        return std::string(negative && !zero ? "-" : "") + (whole.empty() ? "0" : whole) +
               (places.empty() ? "" : "." + places);
    }
};

// [sign] digits [. digits], at least one digit in all; nothing else.
std::optional<Plain> ReadPlain(std::string_view text)
{
    Plain plain;
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '-' || text[i] == '+'))
        plain.negative = text[i++] == '-';
    const std::size_t first = i;
    while (i < text.size() && IsDigit(text[i]))
        ++i;
    std::string_view whole = text.substr(first, i - first);
    std::size_t digits = whole.size();
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    plain.whole = whole;
    if (i < text.size() && text[i] == '.') {
        const std::size_t point = ++i;
        while (i < text.size() && IsDigit(text[i]))
            ++i;
        plain.places = text.substr(point, i - point);
        digits += plain.places.size();
    }
    if (digits == 0 || i != text.size())
        return std::nullopt;
    return plain;
}

Plain Rounded(const Plain& plain, int scale)
{
    Plain rounded = plain;
    const auto places = static_cast<std::size_t>(scale);
    if (plain.places.size() <= places) {
        rounded.places.append(places - plain.places.size(), '0');
        return rounded;
    }
    const bool up = plain.places[places] >= '5';
    std::string digits = plain.whole + plain.places.substr(0, places);
    if (up) {
        std::size_t i = digits.size();
        while (i > 0 && digits[i - 1] == '9')
            digits[--i] = '0';
        if (i > 0)
            ++digits[i - 1];
        else
            digits.insert(digits.begin(), '1');
    }
    rounded.whole = digits.substr(0, digits.size() - places);
    rounded.places = digits.substr(digits.size() - places);
    return rounded;
}

struct IntegerRange {
    TypeKind kind;
    std::int64_t lowest, highest;
    int overflowNumber;
    std::string_view overflowText;  // behind "overflowed an"
};

constexpr IntegerRange kRanges[] = {
    {TypeKind::Tinyint, 0, 255, 244, " INT1 column. Use a larger integer column."},
    {TypeKind::Smallint, -32768, 32767, 244, " INT2 column. Use a larger integer column."},
    {TypeKind::Int, -2147483648, 2147483647, 248, " int column."},
    {TypeKind::Bigint, INT64_MIN, INT64_MAX, 8115, " bigint column."},
};

using Read = ReadLiteral;

std::string Named(const SqlType& from)
{
    return std::string(BaseName(from.kind));
}

LiteralError NoInteger(const SqlType& type, std::string_view text, const SqlType& from)
{
    return {245, "Conversion failed when converting the " + Named(from) + " value '" + std::string(text) +
                     "' to data type " + std::string(BaseName(type.kind)) + "."};
}

Read ReadInteger(const SqlType& type, std::string_view text, const SqlType& from)
{
    const std::string_view trimmed = Trim(text);
    if (trimmed.empty())
        return "0";
    const auto plain = ReadPlain(trimmed);
    if (!plain || trimmed.find('.') != std::string_view::npos)
        return NoInteger(type, text, from);

    const auto* range = std::find_if(std::begin(kRanges), std::end(kRanges),
                                     [&](const IntegerRange& r) { return r.kind == type.kind; });
    const std::string digits = plain->Text();
    std::int64_t value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (read.ec != std::errc() || value < range->lowest || value > range->highest)
        return LiteralError{range->overflowNumber, "The conversion of the " + Named(from) + " value '" +
                                                       std::string(text) + "' overflowed an" +
                                                       std::string(range->overflowText)};
    return digits;
}

Read ReadBit(const SqlType& type, std::string_view text, const SqlType& from)
{
    const std::string_view trimmed = Trim(text);
    if (trimmed.empty() || EqualsNoCase(trimmed, "false"))
        return "false";
    if (EqualsNoCase(trimmed, "true"))
        return "true";
    const auto plain = ReadPlain(trimmed);
    if (!plain || trimmed.find('.') != std::string_view::npos)
        return NoInteger(type, text, from);
    return plain->whole.empty() ? "false" : "true";
}

Read ReadFloat(std::string_view text, const SqlType& from)
{
    const LiteralError failed{8114, "Error converting data type " + Named(from) + " to float."};
    const std::string_view trimmed = Trim(text);
    if (trimmed.empty())
        return "0";
    const std::size_t exponent = trimmed.find_first_of("eE");
    const auto mantissa = ReadPlain(trimmed.substr(0, exponent));
    if (!mantissa)
        return failed;
    if (exponent == std::string_view::npos)
        return mantissa->Text();

    std::string_view power = trimmed.substr(exponent + 1);
    if (!power.empty() && power.front() == '+')
        power.remove_prefix(1);
    int value = 0;
    const auto read = std::from_chars(power.data(), power.data() + power.size(), value);
    if (power.empty() || read.ec != std::errc() || read.ptr != power.data() + power.size())
        return failed;
    if (value > 308)
        return LiteralError{8115, "Arithmetic overflow error converting expression to data type float."};
    return mantissa->Text() + "e" + std::to_string(value);
}

Read ReadMoney(std::string_view text)
{
    const std::string digits = ReplaceAll(Trim(text), ",", "");
    if (digits.empty())
        return "0";
    const auto plain = ReadPlain(digits);
    if (!plain)
        return LiteralError{235,
                            "Cannot convert a char value to money. The char value has incorrect "
                            "syntax."};
    const Plain rounded = Rounded(*plain, 4);
    if (rounded.whole.size() > 15)
        return LiteralError{8115, "Arithmetic overflow error converting expression to data type money."};
    return rounded.Text();
}

Read ReadDecimal(const SqlType& type, std::string_view text, const SqlType& from)
{
    const auto plain = ReadPlain(Trim(text));
    if (!plain)
        return LiteralError{8114, "Error converting data type " + Named(from) + " to numeric."};
    const Plain rounded = Rounded(*plain, type.scale);
    if (static_cast<int>(rounded.whole.size()) > type.precision - type.scale)
        return LiteralError{8115,
                            "Arithmetic overflow error converting " + Named(from) + " to data type numeric."};
    return rounded.Text();
}

}  // namespace

NumberRead ReadNumber(std::string_view text, Place place)
{
    if (text.find_first_of("eE") != std::string_view::npos) {
        Read read = ReadFloat(text, kFloat);
        if (const auto* error = std::get_if<LiteralError>(&read))
            throw SqlError(error->number, error->message, place);
        return {std::get<std::string>(read), kFloat};
    }
    const auto plain = ReadPlain(text);
    if (!plain)
        throw SqlError(102, "Incorrect syntax near '" + std::string(text) + "'.", place);
    if (plain->whole.size() + plain->places.size() > kMaxDigits)
        throw SqlError(1007,
                       "The number '" + std::string(text) +
                           "' is out of the range for numeric representation (maximum precision 38).",
                       place);
    const int whole = static_cast<int>(plain->whole.size());
    const int places = static_cast<int>(plain->places.size());
    const bool hasPoint = text.find('.') != std::string_view::npos;
    const bool isInt = !hasPoint && (whole < 10 || (whole == 10 && plain->whole <= "2147483647"));
    return {plain->Text(), isInt ? kInt : DecimalType(std::max(1, whole + places), places)};
}

int WholeDigitsOf(std::string_view number)
{
    const auto plain = ReadPlain(number);
    if (!plain)
        return 0;
    const int whole = static_cast<int>(plain->whole.size());
    return plain->places.empty() ? std::max(1, whole) : whole;
}

int ScaleOf(std::string_view number)
{
    const auto plain = ReadPlain(number);
    return plain ? static_cast<int>(plain->places.size()) : 0;
}

std::string RoundTo(std::string_view number, int scale)
{
    const auto plain = ReadPlain(number);
    return plain ? Rounded(*plain, scale).Text() : std::string(number);
}

Read ReadTextAs(const SqlType& type, std::string_view text, const SqlType& from)
{
    switch (type.kind) {
        case TypeKind::Bit: return ReadBit(type, text, from);
        case TypeKind::Tinyint:
        case TypeKind::Smallint:
        case TypeKind::Int:
        case TypeKind::Bigint: return ReadInteger(type, text, from);
        case TypeKind::Money: return ReadMoney(text);
        case TypeKind::Decimal: return ReadDecimal(type, text, from);
        case TypeKind::Float: return ReadFloat(text, from);
        case TypeKind::Datetime: return ReadDatetime(text, from);
        case TypeKind::Null:
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: break;
    }
    return std::string(text);
}

}  // namespace kavelin::embedded
