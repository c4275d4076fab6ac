#include "host/FieldValues.h"

#include "frame/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace kavelin::host {

namespace {

constexpr std::string_view kYearSign = "年";

// A whole number of `shortest` to `longest` digits and nothing else.
std::optional<int> Digits(std::string_view text, std::size_t shortest, std::size_t longest)
{
    if (text.size() < shortest || text.size() > longest ||
        !std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string_view Without(std::string_view text, std::string_view sign)
{
    return text.ends_with(sign) ? text.substr(0, text.size() - sign.size()) : text;
}

std::optional<int> MonthNumber(std::string_view text)
{
    const auto month = Digits(Without(text, kMonthSign), 1, 2);
    return month && *month >= 1 && *month <= 12 ? month : std::nullopt;
}

}  // namespace

std::optional<std::string> YearText(std::string_view text)
{
    const auto year = Digits(Without(Trim(text), kYearSign), 4, 4);
    return year ? std::optional(fmt::format("{:04}", *year)) : std::nullopt;
}

std::optional<std::string> MonthText(std::string_view text)
{
    const auto month = MonthNumber(Trim(text));
    return month ? std::optional(fmt::format("{}{}", *month, kMonthSign)) : std::nullopt;
}

std::optional<std::string> PeriodText(std::string_view text)
{
    const std::string_view period = Trim(text);
    for (const std::string_view mark :
         {std::string_view("."), std::string_view("-"), std::string_view("/"), kYearSign}) {
        const auto place = period.find(mark);
        if (place == period.npos)
            continue;
        const auto year = Digits(period.substr(0, place), 4, 4);
        const auto month = MonthNumber(period.substr(place + mark.size()));
        if (year && month)
            return fmt::format("{:04}.{:02}", *year, *month);
    }
    return std::nullopt;
}

std::vector<std::string> ValuesOf(const FilterField& field, const std::string& text)
{
    std::vector<std::string> values =
        field.multiple ? Split(text, std::string(1, field.separator)) : std::vector<std::string>{text};
    std::erase(values, "");
    return values;
}

std::string JoinTexts(const std::vector<std::string>& texts, std::string_view separator)
{
    std::string result;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0)
            result += separator;
        result += texts[i];
    }
    return result;
}

}  // namespace kavelin::host
