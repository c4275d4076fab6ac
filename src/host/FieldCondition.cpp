#include "host/FieldCondition.h"

#include "frame/Decimal.h"
#include "frame/Text.h"
#include "host/FieldValues.h"

#include <vector>

namespace kavelin::host {

namespace {

bool IsNumeric(FieldKind kind)
{
    return kind == FieldKind::Number || kind == FieldKind::Year || kind == FieldKind::Month;
}

// A number stands bare, whatever else is set in a number field stands as a text.
std::string Literal(const FilterField& field, const std::string& text)
{
    const std::string number = field.kind == FieldKind::Month ? ReplaceAll(text, kMonthSign, "") : text;
    return IsNumeric(field.kind) && Decimal::FromText(number) ? number : TextLiteral(text);
}

std::string PrefixTest(const std::string& column, std::string_view prefix)
{
    return column + " like " + TextLiteral(LikePattern(prefix) + "%");
}

std::string RangeTest(const FilterField& field, const std::string& from, const std::string& to)
{
    const bool prefix = field.match == FieldMatch::Prefix;
    if (prefix && from == to)
        return PrefixTest(field.column, from);

    std::vector<std::string> tests;
    if (!from.empty())
        tests.push_back(field.column + " >= " + Literal(field, from));
    if (!to.empty()) {
        const std::string below = field.column + " <= " + Literal(field, to);
        // The last class of the range with its sub-classes, which sort behind it.
        tests.push_back(prefix ? "(" + below + " or " + PrefixTest(field.column, to) + ")" : below);
    }
    return JoinTexts(tests, " and ");
}

std::string ListTest(const FilterField& field, const std::vector<std::string>& values)
{
    std::vector<std::string> tests;
    if (field.match == FieldMatch::Prefix) {
        for (const std::string& value : values)
            tests.push_back(PrefixTest(field.column, value));
        return tests.size() == 1 ? tests[0] : "(" + JoinTexts(tests, " or ") + ")";
    }
    for (const std::string& value : values)
        tests.push_back(Literal(field, value));
    return tests.size() == 1 ? field.column + " = " + tests[0]
                             : field.column + " in (" + JoinTexts(tests, ", ") + ")";
}

}  // namespace

std::string FieldCondition(const FilterField& field, const std::string& from, const std::string& to)
{
    if (field.column.empty() || (from.empty() && to.empty()))
        return "";
    if (field.range)
        return RangeTest(field, from, to);
    const std::vector<std::string> values = ValuesOf(field, from);
    return values.empty() ? "" : ListTest(field, values);
}

std::string TextLiteral(std::string_view text)
{
    return "N'" + ReplaceAll(text, "'", "''") + "'";
}

std::string LikePattern(std::string_view text)
{
    std::string pattern;
    for (const char letter : text) {
        if (letter == '%' || letter == '_' || letter == '[')
            pattern += std::string("[") + letter + "]";
        else
            pattern += letter;
    }
    return pattern;
}

}  // namespace kavelin::host
