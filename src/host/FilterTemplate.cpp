#include "host/FilterTemplate.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/DataFiles.h"
#include "host/TemplateReader.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <map>
#include <mutex>
#include <utility>

namespace kavelin::host {

namespace {

using nlohmann::json;

struct KindRow {
    FieldKind kind;
    std::string_view name;
    std::string_view takes;
};

constexpr KindRow kKinds[] = {
    {FieldKind::Text, "text", "a text"},
    {FieldKind::Number, "number", "a number"},
    {FieldKind::Date, "date", "a date, YYYY-MM-DD"},
    {FieldKind::List, "list", "one of"},
    {FieldKind::Reference, "reference", "a code"},
    {FieldKind::Flag, "flag", "是 or 否, also yes or no"},
    {FieldKind::Year, "year", "an accounting year, YYYY"},
    {FieldKind::Month, "month", "a month, 1 to 12"},
    {FieldKind::Period, "period", "a month of a year, YYYY.MM"},
};

const KindRow& RowOf(FieldKind kind)
{
    return *std::ranges::find(kKinds, kind, &KindRow::kind);
}

FieldKind ReadKind(const ObjectReader& reader)
{
    const auto* row = std::ranges::find(kKinds, reader.Text("kind"), &KindRow::name);
    if (row == std::end(kKinds))
        reader.Fail("has the unknown kind \"" + reader.Text("kind") + "\"");
    return row->kind;
}

void RefuseWhatDoesNotGoTogether(const FilterField& field, const ObjectReader& reader)
{
    if (!field.entries.empty() && field.kind != FieldKind::List)
        reader.Fail("has entries and is no list");
    if (!field.lookup.from.empty() && field.kind != FieldKind::Reference)
        reader.Fail("has a lookup and is no reference");
    if (field.range && field.multiple)
        reader.Fail("is either a range or a multiple selection");
    if (field.bothEnds && !field.range)
        reader.Fail("has both ends only as a range");
    if (!field.dates.empty() && (field.kind != FieldKind::Period || !field.range || field.dates.size() != 2))
        reader.Fail("has two fields of dates only as a range of periods");
}

FilterField ReadField(const json& object, const std::string& where, const Lookups& lookups)
{
    ObjectReader reader(object, where);
    reader.RefuseMembersBut({"key",      "controlKey",  "caption",   "kind",     "range",   "bothEnds",
                             "multiple", "separator",   "mandatory", "argument", "whole",   "minimum",
                             "column",   "match",       "default",   "example",  "entries", "enum",
                             "lookup",   "lookupWhere", "dates",     "numbers"});
    FilterField field;
    field.key = reader.Text("key");
    if (field.key.empty())
        reader.Fail("has no key");
    reader.Name(field.key);
    field.controlKey = reader.Has("controlKey") ? reader.Text("controlKey") : field.key;
    field.caption = reader.Caption();
    field.kind = ReadKind(reader);
    field.range = reader.Flag("range");
    field.bothEnds = reader.Flag("bothEnds");
    field.multiple = reader.Flag("multiple");
    field.mandatory = reader.Flag("mandatory");
    field.argument = reader.Flag("argument");
    field.whole = reader.Flag("whole");
    field.separator = reader.Choice<char>("separator", {{"comma", ','}, {"tab", '\t'}});
    field.match =
        reader.Choice<FieldMatch>("match", {{"equal", FieldMatch::Equal}, {"prefix", FieldMatch::Prefix}});
    field.column = reader.Text("column");
    field.enumType = reader.Text("enum");
    field.byDefault = reader.Text("default");
    field.example = reader.Text("example");
    if (reader.Has("minimum"))
        field.minimum = reader.Member("minimum").get<long>();
    if (reader.Has("entries"))
        for (const json& entry : reader.Member("entries"))
            field.entries.push_back({entry.at("value").get<std::string>(),
                                     ObjectReader(entry, reader.Where() + ": an entry").Caption()});
    if (reader.Has("lookup")) {
        const auto lookup = lookups.find(reader.Text("lookup"));
        if (lookup == lookups.end())
            reader.Fail("has the unknown lookup \"" + reader.Text("lookup") + "\"");
        field.lookup = lookup->second;
        if (reader.Has("lookupWhere"))
            field.lookup.where = reader.Text("lookupWhere");
    }
    if (reader.Has("dates"))
        field.dates = reader.Member("dates").get<std::vector<std::string>>();
    RefuseWhatDoesNotGoTogether(field, reader);
    return field;
}

// A number of a family, with a sign or without.
int NumberIn(std::string_view text)
{
    const std::string_view digits = text.starts_with("+") ? text.substr(1) : text;
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        throw Error("\"" + std::string(text) + "\" is no number of a family of fields.");
    return number;
}

// "1-3,8" as 1, 2, 3, 8.
std::vector<int> NumbersOf(const std::string& text)
{
    std::vector<int> numbers;
    for (const std::string& part : Split(text, ",")) {
        const std::vector<std::string> ends = Split(part, "-");
        for (int number = NumberIn(ends.front()); number <= NumberIn(ends.back()); ++number)
            numbers.push_back(number);
    }
    return numbers;
}

// The text with `number` for "{}", and with the sum for "{+19}".
std::string Numbered(const std::string& text, int number)
{
    std::string result;
    std::size_t from = 0;
    for (std::size_t open; (open = text.find('{', from)) != text.npos;) {
        const std::size_t close = text.find('}', open);
        if (close == text.npos)
            break;
        const std::string addend = text.substr(open + 1, close - open - 1);
        result +=
            text.substr(from, open - from) + std::to_string(number + (addend.empty() ? 0 : NumberIn(addend)));
        from = close + 1;
    }
    return result + text.substr(from);
}

json Numbered(const json& value, int number)
{
    if (value.is_string())
        return Numbered(value.get<std::string>(), number);
    json result = value;
    if (value.is_structured())
        for (auto& [name, member] : result.items())
            member = Numbered(member, number);
    return result;
}

// A family of fields one by one; any other field alone.
std::vector<json> MembersOf(const json& entry)
{
    if (!entry.is_object() || !entry.contains("numbers"))
        return {entry};
    std::vector<json> members;
    for (const int number : NumbersOf(entry.at("numbers").get<std::string>()))
        members.push_back(Numbered(entry, number));
    return members;
}

}  // namespace

const FilterField* FilterTemplate::Find(std::string_view key) const
{
    const auto found =
        std::ranges::find_if(fields, [&](const FilterField& field) { return EqualsNoCase(field.key, key); });
    return found == fields.end() ? nullptr : &*found;
}

std::string_view KindName(FieldKind kind)
{
    return RowOf(kind).name;
}

std::string WhatItTakes(const FilterField& field)
{
    std::string text(RowOf(field.kind).takes);
    if (field.kind == FieldKind::List && field.entries.empty())
        text += " those that the dialog offers";
    for (std::size_t i = 0; i < field.entries.size(); ++i)
        text += (i == 0 ? " " : ", ") + field.entries[i].value;
    if (field.whole)
        text = "a whole number";
    if (field.minimum)
        text += " from " + std::to_string(*field.minimum);
    if (field.range)
        text += field.bothEnds ? ", or a range FROM..TO"
                               : ", or a range FROM..TO of which either end may be missing";
    if (field.multiple)
        text += ", several times if wanted";
    return text;
}

FilterTemplate ParseFilterTemplate(std::string_view report, std::string_view text, const Lookups& lookups)
{
    const std::string name = "The filter template of " + std::string(report);
    FilterTemplate filter{std::string(report), {}};
    try {
        const json document = json::parse(text);
        for (const json& entry : document.at("fields")) {
            for (const json& member : MembersOf(entry)) {
                const std::string where = name + ": field " + std::to_string(filter.fields.size() + 1);
                FilterField field = ReadField(member, where, lookups);
                if (filter.Find(field.key))
                    throw Error(where + " has the key " + field.key + ", which another field has.");
                filter.fields.push_back(std::move(field));
            }
        }
    } catch (const json::exception& e) {
        throw Error(name + " cannot be read at field " + std::to_string(filter.fields.size() + 1) + ": " +
                    e.what());
    }
    return filter;
}

const FilterTemplate& TemplateOf(std::string_view report)
{
    static std::mutex mutex;
    static std::map<std::string, FilterTemplate, std::less<>> templates;  // nodes stay where they are

    const std::lock_guard lock(mutex);
    auto found = templates.find(report);
    if (found == templates.end()) {
        const std::string file = "filters/" + std::string(report) + ".json";
        found = templates.emplace(report, ParseFilterTemplate(report, DataFile(file), AllLookups())).first;
    }
    return found->second;
}

}  // namespace kavelin::host
