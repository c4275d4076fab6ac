// A value of a filter item, a field or an argument, and its conversions: those of the platform that the
// reports were written for, where a value carries its type and every reader converts as it needs.
#pragma once

#include "frame/Decimal.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace kavelin {

// A day with a time of day, without a zone.
using DateTime = std::chrono::sys_time<std::chrono::milliseconds>;

class Value {
  public:
    struct NullTag {
        bool operator==(const NullTag&) const = default;
    };

    // Empty: a value that nobody has set, not the same as null or as an empty text.
    Value() = default;
    Value(NullTag) : varContent(NullTag{}) {}
    Value(bool content) : varContent(content) {}
    Value(std::int32_t content) : varContent(std::int64_t{content}) {}
    Value(std::int64_t content) : varContent(content) {}
    Value(double content) : varContent(content) {}
    Value(Decimal content) : varContent(content) {}
    Value(DateTime content) : varContent(content) {}
    Value(std::string content) : varContent(std::move(content)) {}
    Value(std::string_view content) : varContent(std::string(content)) {}
    Value(const char* content) : varContent(std::string(content)) {}

    static Value Null() { return Value(NullTag{}); }

    bool IsEmpty() const { return std::holds_alternative<std::monostate>(varContent); }
    bool IsNull() const { return std::holds_alternative<NullTag>(varContent); }
    bool IsText() const { return std::holds_alternative<std::string>(varContent); }

    // The content if it is of that type, else null.
    template <class T>
    const T* As() const
    {
        return std::get_if<T>(&varContent);
    }

    // Same type and same content. Reports compare by the conversions below.
    bool operator==(const Value&) const = default;

    using Content =
        std::variant<std::monostate, NullTag, bool, std::int64_t, double, Decimal, DateTime, std::string>;
    const Content& Get() const { return varContent; }

  private:
    Content varContent;
};

// --- conversions -------------------------------------------------------------------------------
// Each throws ConversionError for a null and for a content that cannot be converted, OverflowError for
// a number outside the target's range.

// The default text: empty gives "", a Boolean "True" or "False", a whole double no decimals ("3"), other
// doubles up to 15 digits, a decimal without trailing zeros, a date "2008-07-31" and, where there is a
// time of day, " 14:30:00" behind it.
std::string ToText(const Value& value);

// A number: empty gives 0, a Boolean -1 or 0, a text must be a number as a whole (blanks at its ends do
// not count), a date its days since 1899-12-30.
double ToDouble(const Value& value);

// As ToDouble, then rounded to the nearest whole number, halves to the even one.
std::int32_t ToInt32(const Value& value);
std::int16_t ToInt16(const Value& value);
std::uint8_t ToByte(const Value& value);

// A number is true unless 0; a text must be "True", "False" in any case, or a number.
bool ToBoolean(const Value& value);

// A date as it is; a text as IsDate tells; a number as days since 1899-12-30.
DateTime ToDate(const Value& value);

// Whether a text is a date: year, month and day in this order between "-", "/" or ".", also as
// "2008年7月31日", with or without a time hh:mm[:ss] behind it, blanks at its ends left out; a text of
// a time alone counts too. No day outside the calendar.
bool IsDate(const Value& value);

// The number that a text begins with, 0 if it begins with none: blanks anywhere are skipped,
// "12abc" gives 12, "1.5.2" gives 1.5, "abc" gives 0. Never fails.
double LeadingNumber(std::string_view text);

// "2008-07-31", whatever the time of day.
std::string FormatDate(DateTime date);

// Month of the year, 1 to 12.
int MonthOf(DateTime date);

}  // namespace kavelin
