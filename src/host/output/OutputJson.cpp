#include "host/output/OutputJson.h"

#include "frame/Text.h"
#include "host/output/MachineText.h"

#include <fmt/format.h>

#include <vector>

namespace kavelin::host {

namespace {

constexpr std::size_t kChunk = 64 * 1024;  // bytes handed to the stream at a time

void AppendControl(std::string& json, char character)
{
    switch (character) {
        case '\b': json += "\\b"; break;
        case '\f': json += "\\f"; break;
        case '\n': json += "\\n"; break;
        case '\r': json += "\\r"; break;
        case '\t': json += "\\t"; break;
        default: json += fmt::format("\\u{:04x}", static_cast<unsigned char>(character));
    }
}

void AppendValue(std::string& json, const Value& value)
{
    if (value.IsNull() || value.IsEmpty())
        json += "null";
    else if (const auto* text = value.As<std::string>())
        AppendJsonText(json, *text);
    else if (const auto* flag = value.As<bool>())
        json += *flag ? "true" : "false";
    else if (value.As<DateTime>())
        AppendJsonText(json, MachineText(value));
    else
        json += MachineText(value);
}

// Each column's name as it stands in an object: `"amount": `.
std::vector<std::string> Keys(const Recordset& rows)
{
    std::vector<std::string> keys;
    for (const std::string& name : MachineNames(rows)) {
        std::string key;
        AppendJsonText(key, name);
        keys.push_back(key + ": ");
    }
    return keys;
}

}  // namespace

void AppendJsonText(std::string& json, std::string_view text)
{
    json += '"';
    for (std::size_t position = 0; position < text.size();) {
        const char character = text[position];
        if (static_cast<unsigned char>(character) >= 0x80) {
            AppendCharacter(json, NextCharacter(text, position));
            continue;
        }
        ++position;
        if (character == '"' || character == '\\')
            (json += '\\') += character;
        else if (static_cast<unsigned char>(character) < 0x20)
            AppendControl(json, character);
        else
            json += character;
    }
    json += '"';
}

void WriteJson(Recordset& rows, std::optional<std::int64_t> limit, std::ostream& out)
{
    const std::vector<std::string> keys = Keys(rows);
    std::string buffer = "[";
    std::int64_t row = 0;
    for (; out && !rows.Eof() && (!limit || row < *limit); ++row, rows.MoveNext()) {
        buffer += row == 0 ? "\n{" : ",\n{";
        for (std::size_t field = 0; field < keys.size(); ++field) {
            if (field > 0)
                buffer += ", ";
            buffer += keys[field];
            AppendValue(buffer, rows.Field(static_cast<int>(field)));
        }
        buffer += '}';
        if (buffer.size() >= kChunk) {
            out << buffer;
            buffer.clear();
        }
    }
    out << buffer << (row == 0 ? "]\n" : "\n]\n");
}

}  // namespace kavelin::host
