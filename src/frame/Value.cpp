#include "frame/Value.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace kavelin {

namespace {

using std::chrono::days;
using std::chrono::milliseconds;
using std::chrono::sys_days;
using std::chrono::year_month_day;

// Day 0 of dates as numbers.
constexpr sys_days kDayZero =
    year_month_day{std::chrono::year{1899}, std::chrono::month{12}, std::chrono::day{30}};
constexpr double kMillisecondsADay = 86'400'000.0;

[[noreturn]] void ThrowTypeMismatch(const std::string& what)
{
    throw ConversionError("Type mismatch: " + what);
}

std::string TwoDigits(long number)
{
    std::string text = std::to_string(number);
    return text.size() < 2 ? "0" + text : text;
}

std::string DoubleToText(double number)
{
    if (number == 0)
        return "0";  // also of a negative zero
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, 15);
    std::string text(buffer.data(), end.ptr);
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

std::string DecimalToText(const Decimal& number)
{
    std::string text = number.ToText();
    if (text.find('.') == std::string::npos)
        return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

std::string DateToText(DateTime date)
{
    const auto day = std::chrono::floor<days>(date);
    const std::chrono::hh_mm_ss time(date - day);
    std::string text = FormatDate(date);
    if (date != day)
        text += " " + TwoDigits(time.hours().count()) + ":" + TwoDigits(time.minutes().count()) + ":" +
                TwoDigits(time.seconds().count());
    return text;
}

std::optional<double> WholeNumberText(std::string_view text)
{
    text = Trim(text);
    std::string plain;  // without the commas that group thousands
    bool fraction = false;
    for (const char c : text) {
        fraction = fraction || c == '.';
        if (c != ',' || fraction)
            plain += c == 'D' || c == 'd' ? 'e' : c;
    }
    if (plain.starts_with('+') && !plain.starts_with("+-"))
        plain.erase(0, 1);
    double number = 0;
    const auto end = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (plain.empty() || end.ec != std::errc() || end.ptr != plain.data() + plain.size() ||
        !std::isfinite(number))
        return std::nullopt;
    return number;
}

// Reads the parts of a date from left to right.
class DateReader {
  public:
    explicit DateReader(std::string_view text) : strRest(Trim(text)) {}

    bool AtEnd() const { return strRest.empty(); }

    bool Take(std::string_view word)
    {
        if (!strRest.starts_with(word))
            return false;
        strRest.remove_prefix(word.size());
        return true;
    }

    // A number of `least` to `most` digits.
    std::optional<int> TakeNumber(std::size_t least, std::size_t most)
    {
        std::size_t count = 0;
        while (count < strRest.size() && std::isdigit(static_cast<unsigned char>(strRest[count])))
            ++count;
        if (count < least || count > most)
            return std::nullopt;
        int number = 0;
        std::from_chars(strRest.data(), strRest.data() + count, number);
        strRest.remove_prefix(count);
        return number;
    }

    void SkipBlanks()
    {
        while (Take(" ")) {
        }
    }

  private:
    std::string_view strRest;
};

std::optional<milliseconds> ReadTime(DateReader& reader)
{
    const auto hour = reader.TakeNumber(1, 2);
    if (!hour || !reader.Take(":"))
        return std::nullopt;
    const auto minute = reader.TakeNumber(1, 2);
    int second = 0;
    if (minute && reader.Take(":")) {
        const auto read = reader.TakeNumber(1, 2);
        if (!read)
            return std::nullopt;
        second = *read;
    }
    if (!minute || *hour > 23 || *minute > 59 || second > 59 || !reader.AtEnd())
        return std::nullopt;
    return std::chrono::hours(*hour) + std::chrono::minutes(*minute) + std::chrono::seconds(second);
}

std::optional<DateTime> ReadDate(std::string_view text)
{
    DateReader timeOnly(text);
    if (const auto time = ReadTime(timeOnly))
        return DateTime(kDayZero) + *time;

    DateReader reader(text);
    const auto year = reader.TakeNumber(4, 4);
    if (!year)
        return std::nullopt;
    const bool chinese = reader.Take("年");
    std::string_view separator = "月";
    if (!chinese) {
        separator = reader.Take("-") ? "-" : reader.Take("/") ? "/" : reader.Take(".") ? "." : "";
        if (separator.empty())
            return std::nullopt;
    }
    const auto month = reader.TakeNumber(1, 2);
    if (!month || !reader.Take(separator))
        return std::nullopt;
    const auto day = reader.TakeNumber(1, 2);
    if (!day || (chinese && !reader.Take("日")))
        return std::nullopt;

    const year_month_day date{std::chrono::year{*year}, std::chrono::month{static_cast<unsigned>(*month)},
                              std::chrono::day{static_cast<unsigned>(*day)}};
    if (!date.ok() || *year < 100)
        return std::nullopt;
    if (reader.AtEnd())
        return DateTime(sys_days(date));
    if (!reader.Take(" "))
        return std::nullopt;
    reader.SkipBlanks();
    const auto time = ReadTime(reader);
    if (!time)
        return std::nullopt;
    return DateTime(sys_days(date)) + *time;
}

DateTime DateOfNumber(double number)
{
    const double whole = std::trunc(number);
    const auto day = kDayZero + days(static_cast<std::int64_t>(whole));
    // The fraction is the time of day, also of a day before day 0.
    return DateTime(day) + milliseconds(static_cast<std::int64_t>(
                               std::llround(std::fabs(number - whole) * kMillisecondsADay)));
}

double NumberOfDate(DateTime date)
{
    const auto day = std::chrono::floor<days>(date);
    const double whole = static_cast<double>((day - kDayZero).count());
    const double time = static_cast<double>((date - day).count()) / kMillisecondsADay;
    return whole < 0 ? whole - time : whole + time;
}

template <class Integer>
Integer ToWhole(const Value& value)
{
    const double rounded = std::nearbyint(ToDouble(value));  // the default mode: halves to the even number
    if (rounded < static_cast<double>(std::numeric_limits<Integer>::min()) ||
        rounded > static_cast<double>(std::numeric_limits<Integer>::max()))
        throw OverflowError("Overflow: " + ToText(value));
    return static_cast<Integer>(rounded);
}

struct TextOf {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(Value::NullTag) const { ThrowTypeMismatch("null has no text"); }
    std::string operator()(bool content) const { return content ? "True" : "False"; }
    std::string operator()(std::int64_t content) const { return std::to_string(content); }
    std::string operator()(double content) const { return DoubleToText(content); }
    std::string operator()(const Decimal& content) const { return DecimalToText(content); }
    std::string operator()(DateTime content) const { return DateToText(content); }
    std::string operator()(const std::string& content) const { return content; }
};

struct NumberOf {
    double operator()(std::monostate) const { return 0; }
    double operator()(Value::NullTag) const { ThrowTypeMismatch("null is no number"); }
    double operator()(bool content) const { return content ? -1 : 0; }
    double operator()(std::int64_t content) const { return static_cast<double>(content); }
    double operator()(double content) const { return content; }
    double operator()(const Decimal& content) const { return content.ToDouble(); }
    double operator()(DateTime content) const { return NumberOfDate(content); }
    double operator()(const std::string& content) const
    {
        if (const auto number = WholeNumberText(content))
            return *number;
        ThrowTypeMismatch("\"" + content + "\" is no number");
    }
};

}  // namespace

std::string ToText(const Value& value)
{
    return std::visit(TextOf{}, value.Get());
}

double ToDouble(const Value& value)
{
    return std::visit(NumberOf{}, value.Get());
}

std::int32_t ToInt32(const Value& value)
{
    return ToWhole<std::int32_t>(value);
}

std::int16_t ToInt16(const Value& value)
{
    return ToWhole<std::int16_t>(value);
}

std::uint8_t ToByte(const Value& value)
{
    return ToWhole<std::uint8_t>(value);
}

bool ToBoolean(const Value& value)
{
    if (const auto* text = value.As<std::string>()) {
        if (EqualsNoCase(*text, "True"))
            return true;
        if (EqualsNoCase(*text, "False"))
            return false;
    }
    return ToDouble(value) != 0;
}

DateTime ToDate(const Value& value)
{
    if (const auto* date = value.As<DateTime>())
        return *date;
    if (const auto* text = value.As<std::string>()) {
        if (const auto date = ReadDate(*text))
            return *date;
        ThrowTypeMismatch("\"" + *text + "\" is no date");
    }
    const double number = ToDouble(value);
    if (number < -657434 || number > 2958465.9999999)  // the years 100 to 9999
        throw OverflowError("Overflow: " + ToText(value));
    return DateOfNumber(number);
}

bool IsDate(const Value& value)
{
    if (const auto* text = value.As<std::string>())
        return ReadDate(*text).has_value();
    return value.As<DateTime>() != nullptr;
}

double LeadingNumber(std::string_view text)
{
    std::string plain;
    for (const char c : text)
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r')
            plain += c == 'D' || c == 'd' ? 'e' : c;
    std::size_t start = plain.starts_with('+') ? 1 : 0;
    // from_chars would also take "inf" and "nan".
    const std::size_t first = start + (plain.substr(start).starts_with('-') ? 1 : 0);
    if (first >= plain.size() ||
        (!std::isdigit(static_cast<unsigned char>(plain[first])) && plain[first] != '.'))
        return 0;
    double number = 0;
    std::from_chars(plain.data() + start, plain.data() + plain.size(), number);
    return number;
}

std::string FormatDate(DateTime date)
{
    const year_month_day day(std::chrono::floor<days>(date));
    std::string year = std::to_string(static_cast<int>(day.year()));
    year.insert(0, 4 - std::min<std::size_t>(4, year.size()), '0');
    return year + "-" + TwoDigits(static_cast<long>(static_cast<unsigned>(day.month()))) + "-" +
           TwoDigits(static_cast<long>(static_cast<unsigned>(day.day())));
}

int MonthOf(DateTime date)
{
    return static_cast<int>(static_cast<unsigned>(year_month_day(std::chrono::floor<days>(date)).month()));
}

}  // namespace kavelin
