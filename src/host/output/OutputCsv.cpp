#include "host/output/OutputCsv.h"

#include "host/output/MachineText.h"

#include <string>
#include <string_view>

namespace kavelin::host {

namespace {

constexpr std::size_t kChunk = 64 * 1024;  // bytes handed to the stream at a time

void AppendText(std::string& line, std::string_view text)
{
    // An empty text is quoted so that it differs from NULL; blanks at the ends so that no reader trims them.
    const bool plain = !text.empty() && text.find_first_of(",\"\r\n") == text.npos && text.front() != ' ' &&
                       text.back() != ' ';
    if (plain) {
        line += text;
        return;
    }
    line += '"';
    for (const char character : text) {
        if (character == '"')
            line += '"';
        line += character;
    }
    line += '"';
}

void AppendValue(std::string& line, const Value& value)
{
    if (const auto* text = value.As<std::string>())
        AppendText(line, *text);
    else
        line += MachineText(value);
}

}  // namespace

void WriteCsv(Recordset& rows, std::optional<std::int64_t> limit, std::ostream& out)
{
    std::string buffer;
    std::string_view separator;
    for (const std::string& name : MachineNames(rows)) {
        buffer += separator;
        AppendText(buffer, name);
        separator = ",";
    }
    buffer += "\r\n";

    const int fields = rows.FieldCount();
    for (std::int64_t row = 0; out && !rows.Eof() && (!limit || row < *limit); ++row, rows.MoveNext()) {
        for (int field = 0; field < fields; ++field) {
            if (field > 0)
                buffer += ',';
            AppendValue(buffer, rows.Field(field));
        }
        buffer += "\r\n";
        if (buffer.size() >= kChunk) {
            out << buffer;
            buffer.clear();
        }
    }
    out << buffer;
}

}  // namespace kavelin::host
