#include "host/FilterTemplate.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/DataFiles.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
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
};

const KindRow& RowOf(FieldKind kind)
{
    return *std::ranges::find(kKinds, kind, &KindRow::kind);
}

// Reads one field; `where` begins its messages.
class FieldReader {
  public:
    FieldReader(const json& field, std::string where) : objField(field), strWhere(std::move(where)) {}

    FilterField Read()
    {
        if (!objField.is_object())
            Fail("is no object");
        RefuseUnknownMembers();
        FilterField field;
        field.key = Text("key");
        if (field.key.empty())
            Fail("has no key");
        strWhere += " " + field.key;
        field.caption = Caption(objField);
        field.kind = Choice<FieldKind>("kind", [&](std::string_view name) {
            const auto* row = std::ranges::find(kKinds, name, &KindRow::name);
            return row == std::end(kKinds) ? std::optional<FieldKind>() : row->kind;
        });
        field.range = Flag("range");
        field.multiple = Flag("multiple");
        field.argument = Flag("argument");
        field.whole = Flag("whole");
        field.separator = Choice<char>("separator", [](std::string_view name) {
            return name.empty() || name == "comma" ? std::optional(',')
                   : name == "tab"                 ? std::optional('\t')
                                                   : std::nullopt;
        });
        field.match = Choice<FieldMatch>("match", [](std::string_view name) {
            return name.empty() || name == "equal" ? std::optional(FieldMatch::Equal)
                   : name == "prefix"              ? std::optional(FieldMatch::Prefix)
                                                   : std::nullopt;
        });
        field.column = Text("column");
        field.byDefault = Text("default");
        field.example = Text("example");
        if (objField.contains("minimum"))
            field.minimum = objField.at("minimum").get<long>();
        if (objField.contains("entries"))
            for (const json& entry : objField.at("entries"))
                field.entries.push_back({entry.at("value").get<std::string>(), Caption(entry)});
        if ((field.kind == FieldKind::List) == field.entries.empty())
            Fail("has entries if and only if it is a list");
        if (field.range && field.multiple)
            Fail("is either a range or a multiple selection");
        return field;
    }

  private:
    [[noreturn]] void Fail(const std::string& what) const { throw Error(strWhere + " " + what + "."); }

    void RefuseUnknownMembers() const
    {
        static constexpr std::array<std::string_view, 14> known = {
            "key",     "caption",   "kind",  "range",  "multiple", "argument", "whole",
            "minimum", "separator", "match", "column", "default",  "example",  "entries"};
        for (const auto& [name, value] : objField.items())
            if (std::ranges::find(known, name) == known.end())
                Fail("has the unknown member \"" + name + "\"");
    }

    std::string Text(const char* name) const { return objField.value(name, std::string()); }
    bool Flag(const char* name) const { return objField.value(name, false); }

    static LocalText Caption(const json& object)
    {
        const json& caption = object.at("caption");
        return {caption.at(std::string(kChinese)).get<std::string>(),
                caption.at(std::string(kEnglish)).get<std::string>()};
    }

    template <class T, class Read>
    T Choice(const char* name, Read read) const
    {
        const auto choice = read(Text(name));
        if (!choice)
            Fail("has the unknown " + std::string(name) + " \"" + Text(name) + "\"");
        return *choice;
    }

    const json& objField;
    std::string strWhere;
};

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
    if (field.kind == FieldKind::List)
        for (std::size_t i = 0; i < field.entries.size(); ++i)
            text += (i == 0 ? " " : ", ") + field.entries[i].value;
    if (field.whole)
        text = "a whole number";
    if (field.minimum)
        text += " from " + std::to_string(*field.minimum);
    if (field.range)
        text += ", or a range FROM..TO of which either end may be missing";
    if (field.multiple)
        text += ", several times if wanted";
    return text;
}

FilterTemplate ParseFilterTemplate(std::string_view report, std::string_view text)
{
    const std::string name = "The filter template of " + std::string(report);
    FilterTemplate filter{std::string(report), {}};
    try {
        const json document = json::parse(text);
        for (const json& entry : document.at("fields")) {
            const std::string where = name + ": field " + std::to_string(filter.fields.size() + 1);
            FilterField field = FieldReader(entry, where).Read();
            if (filter.Find(field.key))
                throw Error(where + " has the key " + field.key + ", which another field has.");
            filter.fields.push_back(std::move(field));
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
        found = templates.emplace(report, ParseFilterTemplate(report, DataFile(file))).first;
    }
    return found->second;
}

}  // namespace kavelin::host
