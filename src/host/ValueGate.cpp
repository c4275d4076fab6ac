#include "host/ValueGate.h"

#include "frame/Decimal.h"
#include "frame/FilterWalk.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "host/FieldValues.h"
#include "host/HostErrors.h"
#include "host/Log.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <numeric>
#include <vector>

namespace kavelin::host {

namespace {

struct CharacterRange {
    char32_t first, last;
};

// Quotation marks of all scripts, and the marks that are typed or converted in their place.
constexpr CharacterRange kQuotes[] = {
    {0x22, 0x22},     {0x27, 0x27},     {0x60, 0x60},     {0xAB, 0xAB},     {0xB4, 0xB4},
    {0xBB, 0xBB},     {0x2B9, 0x2BD},   {0x2C8, 0x2C8},   {0x2CA, 0x2CB},   {0x2EE, 0x2EE},
    {0x5F3, 0x5F4},   {0x2018, 0x201F}, {0x2032, 0x2037}, {0x2039, 0x203A}, {0x2057, 0x2057},
    {0x275B, 0x2760}, {0x276E, 0x276F}, {0x2E42, 0x2E42}, {0x300C, 0x300F}, {0x301D, 0x301F},
    {0xFE41, 0xFE44}, {0xFF02, 0xFF02}, {0xFF07, 0xFF07}, {0xFF40, 0xFF40}, {0xFF62, 0xFF63},
};

// Also the two separators of lines and paragraphs, which some readers take for line ends.
constexpr CharacterRange kControls[] = {{0, 0x1F}, {0x7F, 0x9F}, {0x2028, 0x2029}};

template <std::size_t size>
bool IsIn(const CharacterRange (&ranges)[size], char32_t character)
{
    return std::ranges::any_of(ranges, [&](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

enum class Encoding { Valid, Surrogate, Bad };

// Whether the character that begins at `position` is encoded as UTF-8 allows; `length` gets its bytes.
Encoding EncodingAt(std::string_view text, std::size_t position, std::size_t& length)
{
    const auto byteAt = [&](std::size_t offset) -> unsigned {
        return position + offset < text.size() ? static_cast<std::uint8_t>(text[position + offset]) : 0u;
    };
    const unsigned first = byteAt(0);
    length = first < 0x80                     ? 1
             : first >= 0xC2 && first <= 0xDF ? 2
             : (first & 0xF0) == 0xE0         ? 3
             : first >= 0xF0 && first <= 0xF4 ? 4
                                              : 0;
    if (length == 0)
        return Encoding::Bad;
    for (std::size_t i = 1; i < length; ++i)
        if ((byteAt(i) & 0xC0) != 0x80)
            return Encoding::Bad;
    if (first == 0xED && byteAt(1) >= 0xA0)
        return Encoding::Surrogate;
    const bool overlong = (first == 0xE0 && byteAt(1) < 0xA0) || (first == 0xF0 && byteAt(1) < 0x90);
    const bool beyond = first == 0xF4 && byteAt(1) > 0x8F;
    return overlong || beyond ? Encoding::Bad : Encoding::Valid;
}

std::optional<std::string> EncodingObjection(std::string_view value)
{
    for (std::size_t position = 0, length = 0; position < value.size(); position += length) {
        const Encoding encoding = EncodingAt(value, position, length);
        if (encoding == Encoding::Surrogate)
            return fmt::format("holds a lone surrogate (at byte {})", position + 1);
        if (encoding == Encoding::Bad)
            return fmt::format("is not valid UTF-8 (at byte {})", position + 1);
    }
    return std::nullopt;
}

std::string Quoted(std::string_view value)
{
    constexpr std::size_t longest = 60;
    return Length(value) <= longest ? fmt::format("\"{}\"", value)
                                    : fmt::format("\"{}...\"", Left(value, longest));
}

[[noreturn]] void RefuseKind(const FilterField& field, std::string_view value)
{
    throw UsageError(fmt::format("{}: {} is not what it takes, which is {}.", field.key, Quoted(value),
                                 WhatItTakes(field)));
}

std::string CheckedNumber(const FilterField& field, std::string_view value)
{
    const auto number = Decimal::FromText(value);
    if (!number)
        RefuseKind(field, value);
    // 5.00 is refused too: the report pastes the text, not the number.
    if (field.whole && value.find('.') != std::string_view::npos)
        RefuseKind(field, value);
    if (field.minimum && *number < Decimal(*field.minimum, 0))
        RefuseKind(field, value);
    return std::string(value);
}

std::string CheckedDate(const FilterField& field, std::string_view value)
{
    // The first day that the server's datetime can hold; a time alone is a date before it.
    constexpr DateTime earliest = std::chrono::sys_days(std::chrono::year(1753) / 1 / 1);
    const Value text(value);
    if (!IsDate(text))
        RefuseKind(field, value);
    const DateTime date = ToDate(text);
    if (date < earliest || std::chrono::floor<std::chrono::days>(date) != date ||
        value.find(':') != value.npos)
        RefuseKind(field, value);
    return FormatDate(date);
}

// One of the forms in which a user may write a value of the kind, as the filter holds it.
std::string CheckedForm(const FilterField& field, std::string_view value,
                        std::optional<std::string> (*read)(std::string_view))
{
    const auto text = read(value);
    if (!text)
        RefuseKind(field, value);
    return *text;
}

// Without entries it is the dialog that knows what it offers.
std::string CheckedEntry(const FilterField& field, std::string_view value)
{
    if (field.entries.empty())
        return std::string(value);
    for (const ListEntry& entry : field.entries)
        if (EqualsNoCase(entry.value, value) || EqualsNoCase(entry.caption.chinese, value) ||
            EqualsNoCase(entry.caption.english, value))
            return entry.value;
    std::vector<std::string_view> names;
    for (const ListEntry& entry : field.entries)
        names.push_back(entry.value);
    throw UsageError(fmt::format("{}: {} is not what it takes, which is {}.{}", field.key, Quoted(value),
                                 WhatItTakes(field), DidYouMean(value, names)));
}

std::string CheckedFlag(const FilterField& field, std::string_view value)
{
    for (const std::string_view yes :
         {kYes, std::string_view("yes"), std::string_view("true"), std::string_view("1")})
        if (EqualsNoCase(value, yes))
            return std::string(kYes);
    for (const std::string_view no :
         {kNo, std::string_view("no"), std::string_view("false"), std::string_view("0")})
        if (EqualsNoCase(value, no))
            return std::string(kNo);
    RefuseKind(field, value);
}

}  // namespace

std::optional<std::string> Objection(std::string_view value)
{
    if (auto bad = EncodingObjection(value))
        return bad;

    std::size_t count = 0;
    for (std::size_t position = 0; position < value.size(); ++count) {
        const std::size_t begin = position;
        const char32_t character = NextCharacter(value, position);
        if (IsIn(kQuotes, character))
            return fmt::format("holds a quote ({})", value.substr(begin, position - begin));
        if (IsIn(kControls, character))
            return fmt::format("holds a control character (U+{:04X})", static_cast<std::uint32_t>(character));
        if (character == ';')
            return "holds a semicolon (;)";
        const std::string_view two = value.substr(begin, 2);
        if (two == "--" || two == "/*")
            return fmt::format("holds the beginning of a comment ({})", two);
    }
    if (count > kLongestValue)
        return fmt::format("is longer than 4,000 characters ({})", count);
    return std::nullopt;
}

std::string CheckedValue(const FilterField& field, std::string_view value, ValuePolicy policy)
{
    if (const auto objection = Objection(value)) {
        if (policy == ValuePolicy::Checked)
            throw UsageError(
                fmt::format("{}: the value {}, and values go into statements as they stand. "
                            "It takes {}.",
                            field.key, *objection, WhatItTakes(field)));
        LogWarning(fmt::format("{}: the value {}; it goes into statements as it stands (values: legacy)",
                               field.key, *objection));
    }
    const std::string_view trimmed = Trim(value);
    if (value.empty() || (trimmed.empty() && field.kind != FieldKind::Text))
        return "";
    switch (field.kind) {
        case FieldKind::Number: return CheckedNumber(field, trimmed);
        case FieldKind::Date: return CheckedDate(field, trimmed);
        case FieldKind::List: return CheckedEntry(field, trimmed);
        case FieldKind::Flag: return CheckedFlag(field, trimmed);
        case FieldKind::Year: return CheckedForm(field, trimmed, YearText);
        case FieldKind::Month: return CheckedForm(field, trimmed, MonthText);
        case FieldKind::Period: return CheckedForm(field, trimmed, PeriodText);
        case FieldKind::Reference: return std::string(trimmed);
        case FieldKind::Text: break;
    }
    return std::string(value);
}

std::size_t EditDistance(std::string_view a, std::string_view b)
{
    const auto characters = [](std::string_view text) {
        const std::string lower = ToLower(text);
        std::u32string result;
        for (std::size_t position = 0; position < lower.size();)
            result.push_back(NextCharacter(lower, position));
        return result;
    };
    const std::u32string from = characters(a);
    const std::u32string to = characters(b);

    // row[j]: the distance between the part of `from` seen so far and the first j characters of `to`.
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

void NearMiss::Try(std::string_view name)
{
    const std::size_t distance = EditDistance(strWord, name);
    const std::size_t reach = std::max<std::size_t>(1, Length(name) / 3);
    if (distance <= reach && (strNearest.empty() || distance < lngDistance)) {
        strNearest = name;
        lngDistance = distance;
    }
}

std::string NearMiss::Suggestion() const
{
    return strNearest.empty() ? "" : " Did you mean " + strNearest + "?";
}

}  // namespace kavelin::host
