#include "embedded/bind/DateLiterals.h"

#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>

namespace kavelin::embedded {

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Takes a number of `least` to `most` digits off the front.
std::optional<int> TakeNumber(std::string_view& text, std::size_t least, std::size_t most)
{
    std::size_t digits = 0;
    int value = 0;
    while (digits < most && digits < text.size() && IsDigit(text[digits]))
        value = value * 10 + (text[digits++] - '0');
    if (digits < least)
        return std::nullopt;
    text.remove_prefix(digits);
    return value;
}

bool TakeCharacter(std::string_view& text, char c)
{
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

struct DateParts {
    int year = 0, month = 0, day = 0;
};

// YYYY-M-D with - / or . between, or YYYYMMDD.
std::optional<DateParts> TakeDate(std::string_view& text)
{
    const bool compact = text.size() >= 8 && std::all_of(text.begin(), text.begin() + 8, IsDigit);
    const auto year = TakeNumber(text, 4, 4);
    if (!year || text.empty())
        return std::nullopt;
    const char separator = text.front();
    if (!compact && separator != '-' && separator != '/' && separator != '.')
        return std::nullopt;
    if (!compact)
        text.remove_prefix(1);
    const auto month = TakeNumber(text, compact ? 2 : 1, 2);
    if (!month || (!compact && !TakeCharacter(text, separator)))
        return std::nullopt;
    const auto day = TakeNumber(text, compact ? 2 : 1, 2);
    if (!day)
        return std::nullopt;
    return DateParts{*year, *month, *day};
}

struct TimeParts {
    int hour = 0, minute = 0, second = 0, milliseconds = 0;
};

// hh:mm[:ss[.mmm]]
std::optional<TimeParts> TakeTime(std::string_view& text)
{
    TimeParts time;
    const auto hour = TakeNumber(text, 1, 2);
    if (!hour || !TakeCharacter(text, ':'))
        return std::nullopt;
    const auto minute = TakeNumber(text, 1, 2);
    if (!minute)
        return std::nullopt;
    time.hour = *hour;
    time.minute = *minute;
    if (!TakeCharacter(text, ':'))
        return time;
    const auto second = TakeNumber(text, 1, 2);
    if (!second)
        return std::nullopt;
    time.second = *second;
    if (!TakeCharacter(text, '.'))
        return time;
    const std::size_t before = text.size();
    const auto fraction = TakeNumber(text, 1, 3);
    if (!fraction)
        return std::nullopt;
    time.milliseconds = *fraction;
    for (std::size_t digits = before - text.size(); digits < 3; ++digits)
        time.milliseconds *= 10;
    return time;
}

using Moment = std::chrono::sys_time<std::chrono::milliseconds>;

// Empty outside the years 1753 to 9999, which a datetime holds.
std::string MomentText(Moment moment)
{
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(moment - day);
    const int year = static_cast<int>(date.year());
    if (year < 1753 || year > 9999)
        return {};
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d:%02d.%03d", year,
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()), static_cast<int>(time.subseconds().count()));
    return text;
}

// A datetime counts three-hundredths of a second: .999 is the next second, .998 is .997.
std::chrono::milliseconds OnTick(int milliseconds)
{
    const int ticks = (milliseconds * 3 + 5) / 10;
    return std::chrono::milliseconds((ticks * 10 + 1) / 3);
}

}  // namespace

ReadLiteral ReadDatetime(std::string_view text, const SqlType& from)
{
    const LiteralError noDate{241,
                              "Conversion failed when converting date and/or time from character string."};
    const LiteralError outOfRange{242, "The conversion of a " + std::string(BaseName(from.kind)) +
                                           " data type to a datetime data type resulted in an out-of-range "
                                           "value."};
    std::string_view rest = Trim(text);
    if (rest.empty())
        return "1900-01-01 00:00:00.000";
    const auto date = TakeDate(rest);
    if (!date)
        return noDate;
    TimeParts time;
    if (!rest.empty()) {
        if (!TakeCharacter(rest, ' ') && !TakeCharacter(rest, 'T'))
            return noDate;
        rest = Trim(rest);
        const auto read = TakeTime(rest);
        if (!read || !rest.empty())
            return noDate;
        time = *read;
    }
    const std::chrono::year_month_day day(std::chrono::year(date->year),
                                          std::chrono::month(static_cast<unsigned>(date->month)),
                                          std::chrono::day(static_cast<unsigned>(date->day)));
    if (!day.ok() || time.hour > 23 || time.minute > 59 || time.second > 59)
        return outOfRange;
    const Moment moment = std::chrono::sys_days(day) + std::chrono::hours(time.hour) +
                          std::chrono::minutes(time.minute) + std::chrono::seconds(time.second) +
                          OnTick(time.milliseconds);
    std::string written = MomentText(moment);
    if (written.empty())
        return outOfRange;
    return written;
}

std::string DateOfDayNumber(std::int64_t days)
{
    constexpr std::int64_t kFarthest = 3'000'000;
    if (days < -kFarthest || days > kFarthest)
        return {};
    constexpr std::chrono::sys_days first = std::chrono::year(1900) / 1 / 1;
    return MomentText(first + std::chrono::days(days));
}

}  // namespace kavelin::embedded
