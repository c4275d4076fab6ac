#include "support/Scenario.h"

#include "support/GoldenFile.h"

#include "frame/Text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>

namespace kavelin::test {

namespace {

std::string Escaped(const std::string& text)
{
    constexpr std::pair<char, std::string_view> kEscapes[] = {
        {'|', "\\p"}, {'\\', "\\\\"}, {'\r', "\\r"}, {'\n', "\\n"}, {'\t', "\\t"},
    };
    std::string escaped;
    for (const char c : text) {
        std::string_view shown(&c, 1);
        for (const auto& [character, escape] : kEscapes)
            if (c == character)
                shown = escape;
        escaped += shown;
    }
    return escaped;
}

std::string ShownValue(const Value& value)
{
    if (value.IsEmpty())
        return "#empty";
    if (value.IsNull())
        return "#null";
    if (value.IsText()) {
        const std::string text = Escaped(ToText(value));
        return text.starts_with("#") ? "\\h" + text.substr(1) : text;
    }
    if (const bool* truth = value.As<bool>())
        return *truth ? "#true" : "#false";
    const bool isWhole = value.As<std::int64_t>() != nullptr;
    const std::string kind = value.As<DateTime>() ? "date" : value.As<Decimal>() ? "decimal" : "double";
    return "#" + (isWhole ? "int" : kind) + " " + ToText(value);
}

class ScenarioWriter {
  public:
    void Line(std::string_view entry, std::initializer_list<std::string> shownValues)
    {
        Line(entry, std::vector<std::string>(shownValues));
    }
    void Line(std::string_view entry, const std::vector<std::string>& shownValues)
    {
        strText += entry;
        for (const std::string& shown : shownValues)
            strText += "|" + shown;
        strText += "\n";
    }
    template <class Map>
    void Lines(std::string_view entry, const Map& values)
    {
        for (const auto& [key, value] : values)
            Line(entry, {Escaped(key), ShownValue(value)});
    }

    std::string strText;
};

void WriteLogin(ScenarioWriter& writer, const HostAnswers& answers)
{
    const std::pair<const char*, Value> members[] = {
        {"VosDbName", answers.vosDbName},
        {"AccountId", answers.accountId},
        {"Year", answers.year},
        {"Month", answers.month},
        {"Date", answers.date},
        {"Password", answers.password},
        {"UserId", answers.userId},
        {"ConnectionText", answers.connectionText},
        {"SystemConnection", answers.systemConnection},
        {"AuthService", answers.loginHasAuthService},
    };
    writer.Lines("login", members);
}

void WriteFilter(ScenarioWriter& writer, const FakeFilter& filter)
{
    for (const FakeField& field : filter.Fields()) {
        std::vector<std::string> values = {Escaped(field.name), ShownValue(field.from), ShownValue(field.to)};
        if (field.rangeInput)
            values.emplace_back("range");
        if (field.multiple)
            values.emplace_back("several");
        writer.Line("field", values);
    }
    for (const auto& [token, where] : filter.whereByToken)
        writer.Line("where", {std::to_string(token), Escaped(where)});
    if (!filter.where.empty())
        writer.Line("where", {"", Escaped(filter.where)});
}

void WriteRows(ScenarioWriter& writer, const char* match, const std::map<std::string, Rows>& answers)
{
    for (const auto& [sql, answer] : answers) {
        writer.Line("rows", {match, Escaped(sql)});
        std::vector<std::string> columns;
        for (const std::string& field : answer.fields)
            columns.push_back(Escaped(field));
        writer.Line("columns", columns);
        for (const auto& row : answer.rows) {
            std::vector<std::string> values;
            for (const Value& value : row)
                values.push_back(ShownValue(value));
            writer.Line("row", values);
        }
    }
}

std::string GuidText(const Guid& guid)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : guid) {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return text;
}

// The lines of the event log, with the number of a statement in the place of its text.
std::string Events(RecordingHost& host)
{
    std::string text;
    std::size_t sent = 0;
    for (const std::string& line : host.Events().Lines()) {
        const bool sends = line.starts_with("#") && (line.find(".Execute ") != std::string::npos ||
                                                     line.find(".OpenRecordset ") != std::string::npos);
        if (!sends) {
            text += Escaped(line) + "\n";
            continue;
        }
        const std::string sql = ReplaceAll(host.Sent().at(sent++).sql, "\r\n", "⏎");
        if (!line.ends_with(sql))
            throw std::logic_error("the event isn't of statement " + std::to_string(sent) + ": " + line);
        text += line.substr(0, line.size() - sql.size()) + "[" + std::to_string(sent) + "]\n";
    }
    return text;
}

}  // namespace

std::string ScenarioText(RecordingHost& host, std::string_view className)
{
    const HostAnswers& answers = host.Answers();
    ScenarioWriter writer;
    writer.Line("class", {std::string(className)});
    if (!host.Filter()->filterId.empty())
        writer.Line("dialog", {Escaped(host.Filter()->filterId)});
    WriteLogin(writer, answers);
    writer.Line("sql", {Escaped(answers.sql)});
    writer.Line("language", {Escaped(answers.langId)});
    writer.Lines("arg", answers.args);
    WriteFilter(writer, *host.Filter());
    writer.Lines("list", answers.lists);
    writer.Lines("text", answers.texts);
    writer.Lines("code", answers.codes);
    const std::pair<const char*, Value> ledger[] = {{"Year", answers.paramsYear},
                                                    {"ValueStyle", answers.valueStyle},
                                                    {"InventoryQualifier", answers.inventoryQualifier}};
    writer.Lines("ledger", ledger);
    writer.Lines("setting", answers.settings);
    if (std::ranges::find(host.Events().Lines(), "CreateGuid") != host.Events().Lines().end())
        writer.Line("guid", {GuidText(answers.guid)});
    WriteRows(writer, "whole", host.Script().rows);
    WriteRows(writer, "start", host.Script().rowsByStart);
    return writer.strText + "events\n" + Events(host);
}

void ExpectScenario(RecordingHost& host, std::string_view className, const std::string& name)
{
    ExpectFile(ScenarioText(host, className),
               std::filesystem::path(KAVELIN_TESTS_DIR) / "scenarios" / (name + ".txt"));
}

}  // namespace kavelin::test
