#include "snapshot/Literal.h"

#include "embedded/TextFacts.h"
#include "embedded/engine/LoadValues.h"
#include "frame/Text.h"

#include <fmt/format.h>

namespace kavelin::snapshot {

namespace {

using embedded::SqlType;
using embedded::TypeKind;

// SQL Server takes a backslash at the end of a line for a sign that the text goes on: both would be lost.
std::string TextLiteral(const std::string& text)
{
    std::string quoted = ReplaceAll(text, "'", "''");
    quoted = ReplaceAll(quoted, "\\\r", "\\'+N'\r");
    quoted = ReplaceAll(quoted, "\\\n", "\\'+N'\n");
    return "N'" + quoted + "'";
}

std::string DateLiteral(DateTime date)
{
    using namespace std::chrono;
    const auto day = floor<days>(date);
    const year_month_day ymd(day);
    const hh_mm_ss time(date - day);
    return fmt::format("'{:04}{:02}{:02} {:02}:{:02}:{:02}.{:03}'", static_cast<int>(ymd.year()),
                       static_cast<unsigned>(ymd.month()), static_cast<unsigned>(ymd.day()),
                       time.hours().count(), time.minutes().count(), time.seconds().count(),
                       time.subseconds().count());
}

// Without an exponent it would be a decimal, whose digits may not suffice.
std::string FloatLiteral(double number)
{
    std::string text = fmt::format("{}", number);
    return text.find('e') == std::string::npos ? text + "e0" : text;
}

struct LiteralWriter {
    std::string operator()(std::monostate) const { return "null"; }
    std::string operator()(Value::NullTag) const { return "null"; }
    std::string operator()(bool bit) const { return bit ? "1" : "0"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return FloatLiteral(number); }
    std::string operator()(const Decimal& number) const { return number.ToText(); }
    std::string operator()(DateTime date) const { return DateLiteral(date); }
    std::string operator()(const std::string& text) const { return TextLiteral(text); }
};

int ScaleOf(const SqlType& type)
{
    return type.kind == TypeKind::Money ? 4 : type.scale;
}

}  // namespace

std::string Literal(const Value& value)
{
    return std::visit(LiteralWriter{}, value.Get());
}

Value ValueFor(const Value& value, const SqlType& type)
{
    if (value.IsNull() || value.IsEmpty())
        return Value::Null();
    switch (type.kind) {
        case TypeKind::Bit: return Value(embedded::AsBit(value, type));
        case TypeKind::Float: return Value(embedded::AsFloat(value, type));
        case TypeKind::Money:
        case TypeKind::Decimal: return Value(Decimal(embedded::AsUnscaled(value, type), ScaleOf(type)));
        case TypeKind::Datetime: {
            const std::chrono::microseconds since(embedded::AsMicroseconds(value, type));
            return Value(DateTime(std::chrono::floor<std::chrono::milliseconds>(since)));
        }
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: {
            embedded::TextFacts facts;
            std::string buffer;
            return Value(embedded::AsText(value, type, facts, buffer));
        }
        default: return Value(embedded::AsInteger(value, type));
    }
}

}  // namespace kavelin::snapshot
