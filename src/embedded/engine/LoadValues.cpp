#include "embedded/engine/LoadValues.h"

#include "embedded/bind/Literals.h"
#include "frame/Errors.h"
#include "frame/Text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace kavelin::embedded {

namespace {

// For messages: long texts are cut.
std::string Shown(const Value& value)
{
    constexpr std::size_t kShown = 40;
    const std::string text = ToText(value);
    return '\'' + (Length(text) > kShown ? Left(text, kShown) + "..." : text) + '\'';
}

[[noreturn]] void RefuseType(const Value& value, const SqlType& type)
{
    throw BadValue(245, "The value " + Shown(value) + " is no " + ToText(type) + '.');
}

[[noreturn]] void RefuseRange(const Value& value, const SqlType& type)
{
    throw BadValue(8115, "The value " + Shown(value) + " is out of the range of " + ToText(type) + '.');
}

// The text as the constant that a statement would hold in its place.
std::string ReadAs(const std::string& text, const SqlType& type)
{
    const SqlType nvarchar{TypeKind::Nvarchar, kMaxLength, 0, 0};
    auto read = ReadTextAs(type, text, nvarchar);
    if (const auto* error = std::get_if<LiteralError>(&read))
        throw BadValue(error->number, error->message);
    return std::get<std::string>(read);
}

Int128 PowerOfTen(int exponent)
{
    Int128 power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

int PrecisionOf(const SqlType& type)
{
    return type.kind == TypeKind::Money ? 19 : type.precision;
}

int ScaleOf(const SqlType& type)
{
    return type.kind == TypeKind::Money ? 4 : type.scale;
}

Int128 Rescale(const Decimal& number, const Value& value, const SqlType& type)
{
    const int shift = ScaleOf(type) - number.Scale();
    const Int128 limit = PowerOfTen(PrecisionOf(type));
    Int128 unscaled = number.Unscaled();
    if (shift >= 0) {
        const Int128 power = PowerOfTen(shift);
        if (unscaled >= limit / power + 1 || unscaled <= -(limit / power + 1))
            RefuseRange(value, type);
        unscaled *= power;
    } else {
        const Int128 power = PowerOfTen(-shift);
        const Int128 rest = unscaled % power;
        unscaled /= power;
        if (rest >= power / 2 && rest > 0)
            ++unscaled;
        else if (-rest >= power / 2 && rest < 0)
            --unscaled;
    }
    if (unscaled >= limit || unscaled <= -limit)
        RefuseRange(value, type);
    return unscaled;
}

Int128 Scale(double number, const Value& value, const SqlType& type)
{
    const long double scaled =
        std::round(static_cast<long double>(number) * static_cast<long double>(PowerOfTen(ScaleOf(type))));
    if (!(std::fabs(scaled) < static_cast<long double>(PowerOfTen(PrecisionOf(type)))))
        RefuseRange(value, type);
    return static_cast<Int128>(scaled);
}

// "2008-07-31 14:30:00.000", as ReadTextAs gives it.
std::int64_t ParseTimestamp(const std::string& text)
{
    const auto part = [&](std::size_t at, std::size_t length) {
        int number = 0;
        std::from_chars(text.data() + at, text.data() + at + length, number);
        return number;
    };
    using namespace std::chrono;
    const sys_days day = year(part(0, 4)) / part(5, 2) / part(8, 2);
    const auto time =
        hours(part(11, 2)) + minutes(part(14, 2)) + seconds(part(17, 2)) + milliseconds(part(20, 3));
    return duration_cast<microseconds>(day.time_since_epoch() + time).count();
}

struct TextScan {
    std::size_t characters = 0;
    bool valid = true;
    bool noCase = true;
};

TextScan Scan(std::string_view text)
{
    TextScan scan;
    std::size_t position = 0;
    while (position < text.size()) {
        const auto byte = static_cast<unsigned char>(text[position]);
        ++scan.characters;
        if (byte < 0x80) {
            if (byte >= 'a' && byte <= 'z')
                scan.noCase = false;
            ++position;
            continue;
        }
        const std::size_t before = position;
        const char32_t character = NextCharacter(text, position);
        // A real U+FFFD takes three bytes; the one that stands for a bad byte takes one.
        if (position - before == 1)
            scan.valid = false;
        if (!IsCaselessBeyondAscii(character))
            scan.noCase = false;
    }
    return scan;
}

}  // namespace

bool AsBit(const Value& value, const SqlType& type)
{
    if (const bool* content = value.As<bool>())
        return *content;
    if (const std::string* text = value.As<std::string>()) {
        if (EqualsNoCase(Trim(*text), "true") || EqualsNoCase(Trim(*text), "false"))
            return EqualsNoCase(Trim(*text), "true");
        const SqlType integer{TypeKind::Int, 0, 0, 0};
        return ReadAs(*text, integer) != "0";
    }
    if (value.As<DateTime>())
        RefuseType(value, type);
    return ToDouble(value) != 0;
}

template <class Number>
Number NumberIn(const std::string& text, const Value& value, const SqlType& type)
{
    const std::string read = ReadAs(text, type);
    Number number{};
    const auto [end, error] = std::from_chars(read.data(), read.data() + read.size(), number);
    if (error != std::errc{} || end != read.data() + read.size())
        RefuseType(value, type);
    return number;
}

std::int64_t AsInteger(const Value& value, const SqlType& type)
{
    std::int64_t number = 0;
    if (const auto* integer = value.As<std::int64_t>()) {
        number = *integer;
    } else if (const auto* text = value.As<std::string>()) {
        number = NumberIn<decltype(number)>(*text, value, type);
    } else if (const bool* bit = value.As<bool>()) {
        number = *bit ? 1 : 0;
    } else if (value.As<DateTime>()) {
        RefuseType(value, type);
    } else {
        // A fraction is an error here, not cut as by a cast: a loader that brings one has the wrong column.
        const double real = ToDouble(value);
        if (real != std::trunc(real))
            RefuseType(value, type);
        if (!(std::fabs(real) < 9.2e18))
            RefuseRange(value, type);
        number = static_cast<std::int64_t>(real);
    }
    std::int64_t low = std::numeric_limits<std::int64_t>::min(),
                 high = std::numeric_limits<std::int64_t>::max();
    if (type.kind == TypeKind::Tinyint)
        low = 0, high = 255;
    else if (type.kind == TypeKind::Smallint)
        low = -32768, high = 32767;
    else if (type.kind == TypeKind::Int)
        low = std::numeric_limits<std::int32_t>::min(), high = std::numeric_limits<std::int32_t>::max();
    if (number < low || number > high)
        RefuseRange(value, type);
    return number;
}

double AsFloat(const Value& value, const SqlType& type)
{
    double number = 0;
    if (const double* real = value.As<double>()) {
        number = *real;
    } else if (const auto* text = value.As<std::string>()) {
        number = NumberIn<decltype(number)>(*text, value, type);
    } else if (const bool* bit = value.As<bool>()) {
        number = *bit ? 1 : 0;
    } else if (value.As<DateTime>()) {
        RefuseType(value, type);
    } else {
        number = ToDouble(value);
    }
    if (!std::isfinite(number))
        RefuseRange(value, type);
    return number;
}

Int128 AsUnscaled(const Value& value, const SqlType& type)
{
    if (const auto* decimal = value.As<Decimal>())
        return Rescale(*decimal, value, type);
    if (const auto* integer = value.As<std::int64_t>())
        return Rescale(Decimal(*integer, 0), value, type);
    if (const double* real = value.As<double>())
        return Scale(*real, value, type);
    if (const bool* bit = value.As<bool>())
        return Rescale(Decimal(*bit ? 1 : 0, 0), value, type);
    if (const auto* text = value.As<std::string>()) {
        const std::optional<Decimal> read = Decimal::FromText(ReadAs(*text, type));
        if (!read)
            RefuseType(value, type);
        return Rescale(*read, value, type);
    }
    RefuseType(value, type);
}

std::int64_t AsMicroseconds(const Value& value, const SqlType& type)
{
    using namespace std::chrono;
    if (const auto* text = value.As<std::string>())
        return ParseTimestamp(ReadAs(*text, type));
    const auto* date = value.As<DateTime>();
    if (date == nullptr)
        RefuseType(value, type);
    constexpr DateTime kFirst = sys_days(year(1753) / 1 / 1);
    constexpr DateTime kEnd = sys_days(year(10000) / 1 / 1);
    if (*date < kFirst || *date >= kEnd)
        throw BadValue(242, "The value is out of the range of datetime, which begins with the year 1753.");
    return duration_cast<microseconds>(date->time_since_epoch()).count();
}

std::string_view AsText(const Value& value, const SqlType& type, TextFacts& facts, std::string& buffer)
{
    std::string_view text;
    if (const auto* own = value.As<std::string>()) {
        text = *own;
    } else if (const bool* bit = value.As<bool>()) {
        text = *bit ? "1" : "0";
    } else {
        buffer = ToText(value);
        text = buffer;
    }

    TextScan scan = Scan(text);
    if (!scan.valid)
        throw BadValue(245, "The text is no valid UTF-8.");
    const auto length = static_cast<std::size_t>(type.length);
    while (type.length != kMaxLength && scan.characters > length && text.ends_with(' ')) {
        text.remove_suffix(1);
        --scan.characters;
    }
    if (type.length != kMaxLength && scan.characters > length)
        throw BadValue(8152, "The text " + Shown(value) + " has " + std::to_string(scan.characters) +
                                 " characters, the column takes " + std::to_string(length) + '.');
    facts.noTrailingBlanks = facts.noTrailingBlanks && !text.ends_with(' ');
    facts.noCase = facts.noCase && scan.noCase;
    return text;
}

}  // namespace kavelin::embedded
