#include "demo/FieldValue.h"

#include "frame/Decimal.h"
#include "frame/Errors.h"
#include "frame/Text.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace kavelin::demo {

namespace {

using embedded::SqlType;
using embedded::TypeKind;

constexpr std::size_t kShown = 40;

std::optional<Value> ReadInteger(std::string_view text, std::int64_t least, std::int64_t most)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < least || number > most)
        return std::nullopt;
    return Value(number);
}

template <class Integer>
std::optional<Value> ReadInteger(std::string_view text)
{
    return ReadInteger(text, std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max());
}

std::optional<Value> ReadBit(std::string_view text)
{
    if (text == "1" || EqualsNoCase(text, "true"))
        return Value(true);
    if (text == "0" || EqualsNoCase(text, "false"))
        return Value(false);
    return std::nullopt;
}

std::optional<Value> ReadFloat(std::string_view text)
{
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return Value(number);
}

std::optional<Value> ReadDecimal(std::string_view text, int precision, int scale)
{
    const std::optional<Decimal> number = Decimal::FromText(text);
    if (!number || number->Scale() > scale)
        return std::nullopt;
    Int128 limit = 1;
    for (int digit = 0; digit < precision - scale + number->Scale(); ++digit)
        limit *= 10;
    if (number->Unscaled() >= limit || number->Unscaled() <= -limit)
        return std::nullopt;
    return Value(*number);
}

// Takes `count` digits off the text's front.
std::optional<int> TakeDigits(std::string_view& text, std::size_t count)
{
    int number = 0;
    if (text.size() < count)
        return std::nullopt;
    const auto [end, error] = std::from_chars(text.data(), text.data() + count, number);
    if (error != std::errc() || end != text.data() + count || text.front() == '-')
        return std::nullopt;
    text.remove_prefix(count);
    return number;
}

bool TakeSign(std::string_view& text, char sign)
{
    if (!text.starts_with(sign))
        return false;
    text.remove_prefix(1);
    return true;
}

// hh:mm[:ss[.fff]]
std::optional<std::chrono::milliseconds> ReadTime(std::string_view text)
{
    const auto hours = TakeDigits(text, 2);
    if (!hours || *hours > 23 || !TakeSign(text, ':'))
        return std::nullopt;
    const auto minutes = TakeDigits(text, 2);
    if (!minutes || *minutes > 59)
        return std::nullopt;
    std::chrono::milliseconds time = std::chrono::hours(*hours) + std::chrono::minutes(*minutes);
    if (text.empty())
        return time;
    if (!TakeSign(text, ':'))
        return std::nullopt;
    const auto seconds = TakeDigits(text, 2);
    if (!seconds || *seconds > 59)
        return std::nullopt;
    time += std::chrono::seconds(*seconds);
    if (text.empty())
        return time;
    if (!TakeSign(text, '.'))
        return std::nullopt;
    const auto fraction = TakeDigits(text, 3);
    if (!fraction || !text.empty())
        return std::nullopt;
    return time + std::chrono::milliseconds(*fraction);
}

// YYYY-MM-DD[ time]
std::optional<Value> ReadDate(std::string_view text)
{
    const auto year = TakeDigits(text, 4);
    if (!year || !TakeSign(text, '-'))
        return std::nullopt;
    const auto month = TakeDigits(text, 2);
    if (!month || !TakeSign(text, '-'))
        return std::nullopt;
    const auto day = TakeDigits(text, 2);
    if (!day)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    constexpr int kFirstYear = 1753;  // T-SQL's datetime begins there
    if (!date.ok() || *year < kFirstYear)
        return std::nullopt;
    const DateTime midnight = std::chrono::sys_days(date);
    if (text.empty())
        return Value(midnight);
    if (!TakeSign(text, ' '))
        return std::nullopt;
    const auto time = ReadTime(text);
    return time ? std::optional(Value(midnight + *time)) : std::nullopt;
}

bool IsUtf8(std::string_view text)
{
    // A byte that begins no character is passed over alone; U+FFFD itself has three bytes.
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t before = position;
        if (NextCharacter(text, position) == 0xFFFD && position - before == 1)
            return false;
    }
    return true;
}

std::optional<Value> ReadText(const std::string& text, const SqlType& type)
{
    if (!IsUtf8(text) ||
        (type.length != embedded::kMaxLength && Length(text) > static_cast<std::size_t>(type.length)))
        return std::nullopt;
    return Value(text);
}

std::optional<Value> Read(const std::string& text, const SqlType& type)
{
    switch (type.kind) {
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: return ReadText(text, type);
        case TypeKind::Bit: return ReadBit(text);
        case TypeKind::Tinyint: return ReadInteger<std::uint8_t>(text);
        case TypeKind::Smallint: return ReadInteger<std::int16_t>(text);
        case TypeKind::Int: return ReadInteger<std::int32_t>(text);
        case TypeKind::Bigint: return ReadInteger<std::int64_t>(text);
        case TypeKind::Money: return ReadDecimal(text, 19, 4);
        case TypeKind::Decimal: return ReadDecimal(text, type.precision, type.scale);
        case TypeKind::Float: return ReadFloat(text);
        case TypeKind::Datetime: return ReadDate(text);
        case TypeKind::Null: break;
    }
    return std::nullopt;
}

std::string Wanted(const SqlType& type)
{
    switch (type.kind) {
        case TypeKind::Varchar:
        case TypeKind::Nvarchar:
            return type.length == embedded::kMaxLength
                       ? "is not UTF-8 text"
                       : "is not UTF-8 text of at most " + std::to_string(type.length) + " characters";
        case TypeKind::Bit: return "is not 0 or 1";
        case TypeKind::Tinyint: return "is not a whole number from 0 to 255";
        case TypeKind::Smallint: return "is not a whole number from -32768 to 32767";
        case TypeKind::Int: return "is not a whole number from -2147483648 to 2147483647";
        case TypeKind::Bigint: return "is not a whole number of at most 64 bits";
        case TypeKind::Money: return "is not an amount of at most 15 digits and 4 decimals";
        case TypeKind::Float: return "is not a number";
        case TypeKind::Datetime: return "is not a date YYYY-MM-DD, or one with a time hh:mm:ss behind it";
        default: return "is not a " + ToText(type);
    }
}

}  // namespace

Value ReadField(const CsvField& field, const SqlType& type)
{
    if (field.IsNull())
        return Value::Null();
    if (std::optional<Value> value = Read(field.text, type))
        return *std::move(value);
    const bool cut = Length(field.text) > kShown;
    throw ConversionError("'" + (cut ? Left(field.text, kShown) + "..." : field.text) + "' " + Wanted(type));
}

}  // namespace kavelin::demo
