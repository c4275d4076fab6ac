#include "host/FilterInput.h"

#include "frame/Decimal.h"
#include "frame/FilterWalk.h"
#include "frame/Text.h"
#include "host/FieldValues.h"
#include "host/HostErrors.h"
#include "host/Log.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace kavelin::host {

namespace {

using nlohmann::json;

constexpr std::string_view kRangeMark = "..";

// A value of a JSON file as a user would write it on the command line.
std::string TextOf(const FilterField& field, const json& value)
{
    if (value.is_string())
        return value.get<std::string>();
    if (value.is_number())
        return value.dump();
    if (value.is_boolean() && field.kind == FieldKind::Flag)
        return std::string(value.get<bool>() ? kYes : kNo);
    if (value.is_null())
        return "";
    throw UsageError(fmt::format("{}: {} is not what it takes, which is {}.", field.key, value.dump(),
                                 WhatItTakes(field)));
}

// Codes of letters, digits and signs, which every collation orders alike but for their case. Others are the
// server's to order.
bool IsProbablyReversed(std::string_view from, std::string_view to)
{
    const auto isAscii = [](std::string_view text) {
        return !text.empty() &&
               std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    };
    return isAscii(from) && isAscii(to) && ToLower(from) > ToLower(to);
}

// Numbers and months by value, dates by day; texts are left to the server's collation.
bool IsReversed(FieldKind kind, const std::string& from, const std::string& to)
{
    if (from.empty() || to.empty())
        return false;
    switch (kind) {
        case FieldKind::Number:
        case FieldKind::Month:
            return *Decimal::FromText(ReplaceAll(from, kMonthSign, "")) >
                   *Decimal::FromText(ReplaceAll(to, kMonthSign, ""));
        case FieldKind::Date:
        case FieldKind::Year:
        case FieldKind::Period: return from > to;
        default: return false;
    }
}

}  // namespace

FilterInput::FilterInput(const FilterTemplate& filter, ValuePolicy policy)
    : objTemplate(&filter), enmPolicy(policy)
{
    for (const FilterField& field : filter.fields) {
        lstFields.push_back({&field, false, {}, {}, {}});
        if (!field.byDefault.empty())
            Take(lstFields.size() - 1, field.byDefault);
    }
}

void FilterInput::Set(std::string_view assignment)
{
    const auto equals = assignment.find('=');
    if (equals == std::string_view::npos || Trim(assignment.substr(0, equals)).empty())
        throw UsageError(fmt::format("\"{}\" sets nothing: a value is given as KEY=VALUE.", assignment));
    Set(Trim(assignment.substr(0, equals)), assignment.substr(equals + 1));
}

void FilterInput::Set(std::string_view key, std::string_view value)
{
    const std::size_t position = Find(key);
    Begin(position);
    Take(position, value);
}

void FilterInput::SetRange(std::string_view key, std::string_view from, std::string_view to)
{
    const std::size_t position = Find(key);
    const FilterField& field = *lstFields[position].field;
    if (!field.range)
        throw UsageError(
            fmt::format("{}: a range is not what it takes, which is {}.", field.key, WhatItTakes(field)));
    Begin(position);
    TakeRange(position, from, to);
}

void FilterInput::SetFromJson(std::string_view text, std::string_view source)
{
    const json document = [&] {
        try {
            return json::parse(text);
        } catch (const json::parse_error& e) {
            const std::string what = e.what();
            const auto prefix = what.find("] ");
            throw UsageError(
                fmt::format("{}: {}", source, prefix == what.npos ? what : what.substr(prefix + 2)));
        }
    }();
    if (!document.is_object())
        throw UsageError(fmt::format("{}: a filter file holds an object of keys and values.", source));

    for (const auto& [key, value] : document.items()) {
        const FilterField& field = *lstFields[Find(key)].field;
        if (value.is_object()) {
            for (const auto& [end, ignored] : value.items())
                if (end != "from" && end != "to")
                    throw UsageError(
                        fmt::format("{}: a range has \"from\" and \"to\", not \"{}\".", field.key, end));
            SetRange(key, TextOf(field, value.value("from", json())),
                     TextOf(field, value.value("to", json())));
        } else if (value.is_array()) {
            if (!field.multiple && value.size() > 1)
                throw UsageError(fmt::format("{}: several values are not what it takes, which is {}.",
                                             field.key, WhatItTakes(field)));
            for (const json& entry : value)
                Set(key, TextOf(field, entry));
        } else if (!value.is_null()) {
            Set(key, TextOf(field, value));
        }
    }
}

std::size_t FilterInput::Find(std::string_view key) const
{
    if (const FilterField* field = objTemplate->Find(key))
        return static_cast<std::size_t>(field - objTemplate->fields.data());

    std::vector<std::string_view> keys;
    for (const FilterField& field : objTemplate->fields)
        keys.push_back(field.key);
    throw UsageError(fmt::format("{} has no field \"{}\".{} Its fields are {}.", objTemplate->report, key,
                                 DidYouMean(key, keys), fmt::join(keys, ", ")));
}

// Before the first value that the user gives a field, its default goes.
void FilterInput::Begin(std::size_t position)
{
    FieldInput& input = lstFields[position];
    if (!input.given || !input.field->multiple)
        input = {input.field, true, {}, {}, {}};
}

void FilterInput::Take(std::size_t position, std::string_view value)
{
    FieldInput& input = lstFields[position];
    const FilterField& field = *input.field;
    if (field.range) {
        const auto mark = value.find(kRangeMark);
        if (mark == std::string_view::npos) {
            TakeRange(position, value, value);
            return;
        }
        const std::string_view to = value.substr(mark + kRangeMark.size());
        if (to.find(kRangeMark) != std::string_view::npos)
            throw UsageError(fmt::format("{}: \"..\" stands twice in \"{}\"; it takes {}.", field.key, value,
                                         WhatItTakes(field)));
        TakeRange(position, value.substr(0, mark), to);
        return;
    }
    const bool split = field.multiple && field.separator == ',';
    if (field.multiple && !split && value.find(',') != std::string_view::npos)
        LogWarning(
            fmt::format("{}: \"{}\" is one value, since a value may hold commas here; several are given by "
                        "as many --set.",
                        field.key, value));
    for (const std::string& one : split ? Split(value, ",") : std::vector<std::string>{std::string(value)})
        if (std::string checked = CheckedValue(field, one, enmPolicy); !checked.empty())
            input.values.push_back(std::move(checked));
}

void FilterInput::TakeRange(std::size_t position, std::string_view from, std::string_view to)
{
    FieldInput& input = lstFields[position];
    const FilterField& field = *input.field;
    input.from = CheckedValue(field, from, enmPolicy);
    input.to = from == to ? input.from : CheckedValue(field, to, enmPolicy);
    if (field.bothEnds && input.from.empty() != input.to.empty())
        throw UsageError(fmt::format("{}: it takes both ends, {}.", field.key, WhatItTakes(field)));
    if (IsReversed(field.kind, input.from, input.to))
        throw UsageError(fmt::format("{}: the range begins with {} and ends before it, with {}.", field.key,
                                     input.from, input.to));
    if ((field.kind == FieldKind::Reference || field.kind == FieldKind::Text) &&
        IsProbablyReversed(input.from, input.to))
        LogWarning(fmt::format("{}: the range begins with {} and ends with {}; nothing may lie between them.",
                               field.key, input.from, input.to));
}

}  // namespace kavelin::host
