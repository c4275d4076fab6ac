#include "host/output/MachineText.h"

#include "frame/Errors.h"

#include <fmt/format.h>

#include <charconv>
#include <chrono>
#include <cmath>
#include <set>

namespace kavelin::host {

namespace {

std::string DoubleText(double number)
{
    if (!std::isfinite(number))
        throw Error("A column holds a floating-point value that is no finite number; it cannot be written.");
    if (number == 0)
        return "0";

    // An exponent only where the digits would be drowned in zeros.
    const double size = std::fabs(number);
    const auto format =
        size >= 1e-5 && size < 1e17 ? std::chars_format::fixed : std::chars_format::scientific;
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, number, format).ptr;
    return std::string(text, end);
}

std::string DateText(DateTime date)
{
    const auto day = std::chrono::floor<std::chrono::days>(date);
    const std::chrono::hh_mm_ss time{date - day};
    std::string text = FormatDate(date);
    if (date != day)
        text += fmt::format(" {:02}:{:02}:{:02}", time.hours().count(), time.minutes().count(),
                            time.seconds().count());
    if (time.subseconds().count() != 0)
        text += fmt::format(".{:03}", time.subseconds().count());
    return text;
}

struct Writer {
    std::string operator()(std::monostate) const { return ""; }
    std::string operator()(Value::NullTag) const { return ""; }
    std::string operator()(bool content) const { return content ? "1" : "0"; }
    std::string operator()(std::int64_t content) const { return std::to_string(content); }
    std::string operator()(double content) const { return DoubleText(content); }
    std::string operator()(const Decimal& content) const { return content.ToText(); }
    std::string operator()(DateTime content) const { return DateText(content); }
    std::string operator()(const std::string& content) const { return content; }
};

}  // namespace

std::string MachineText(const Value& value)
{
    return std::visit(Writer{}, value.Get());
}

std::vector<std::string> MachineNames(const Recordset& rows)
{
    std::vector<std::string> names;
    std::set<std::string> taken;
    for (int field = 0; field < rows.FieldCount(); ++field) {
        std::string plain = rows.FieldName(field);
        if (plain.empty())
            plain = fmt::format("column{}", field + 1);
        std::string name = plain;
        for (int number = 2; !taken.insert(name).second; ++number)
            name = fmt::format("{}_{}", plain, number);
        names.push_back(std::move(name));
    }
    return names;
}

}  // namespace kavelin::host
