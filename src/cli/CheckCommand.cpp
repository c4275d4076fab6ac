// kavelin account check
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/Work.h"
#include "demo/check/AccountCheck.h"
#include "host/AccountLogin.h"
#include "host/HostErrors.h"
#include "host/output/DisplayWidth.h"
#include "host/output/OutputJson.h"
#include "host/output/OutputTable.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace {

struct CheckFlags {
    std::string path, format;
    host::Flags login;
};

// "1,234 costing keys, 16,042 months"
std::string Told(const std::vector<demo::Counted>& counted)
{
    std::string text;
    for (const demo::Counted& part : counted)
        text += fmt::format("{}{} {}", text.empty() ? "" : ", ",
                            host::GroupThousands(std::to_string(part.count)), part.what);
    return text;
}

std::string Padded(const std::string& text, int width)
{
    return text + std::string(static_cast<std::size_t>(std::max(0, width - host::DisplayWidth(text))), ' ');
}

std::string DifferencesOf(const demo::CheckResult& result)
{
    std::vector<std::vector<std::string>> lines = {result.columns};
    for (const std::vector<std::string>& row : result.differences)
        lines.push_back(row);

    std::vector<int> widths(result.columns.size(), 0);
    for (std::vector<std::string>& line : lines)
        for (std::size_t column = 0; column < widths.size(); ++column) {
            line[column] = host::Printable(line[column]);
            widths[column] = std::max(widths[column], host::DisplayWidth(line[column]));
        }

    std::string text;
    for (const std::vector<std::string>& line : lines) {
        std::string row = "       ";
        for (std::size_t column = 0; column < widths.size(); ++column)
            row += " " + Padded(line[column], widths[column] + 1);
        text += row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return text + (result.more ? "        ... and more\n" : "");
}

std::string AsText(const std::vector<demo::CheckResult>& results)
{
    std::string text;
    for (const demo::CheckResult& result : results) {
        const std::string counted = Told(result.counted);
        text += fmt::format("{} {}{}{}\n", result.Passed() ? "ok     " : "FAILED ", counted,
                            counted.empty() ? "" : ": ", result.claim);
        if (!result.Passed())
            text += DifferencesOf(result);
    }
    return text;
}

std::string JsonText(std::string_view text)
{
    std::string json;
    host::AppendJsonText(json, text);
    return json;
}

template <class Items, class Write>
std::string JsonList(const Items& items, std::string_view between, Write write)
{
    std::string json;
    for (const auto& item : items)
        json += (json.empty() ? std::string() : std::string(between)) + write(item);
    return json;
}

std::string AsJson(const std::vector<demo::CheckResult>& results)
{
    const auto counted = [](const demo::Counted& part) {
        return fmt::format("{{\"what\": {}, \"count\": {}}}", JsonText(part.what), part.count);
    };
    const auto check = [&](const demo::CheckResult& result) {
        const auto difference = [&](const std::vector<std::string>& row) {
            std::size_t column = 0;
            return "{" +
                   JsonList(row, ", ",
                            [&](const std::string& value) {
                                return JsonText(result.columns[column++]) + ": " + JsonText(value);
                            }) +
                   "}";
        };
        return fmt::format(
            "  {{\"check\": {}, \"claim\": {}, \"passed\": {}, \"counted\": [{}],"
            " \"differences\": [{}], \"more\": {}}}",
            JsonText(result.name), JsonText(result.claim), result.Passed(),
            JsonList(result.counted, ", ", counted), JsonList(result.differences, ", ", difference),
            result.more);
    };
    return "[\n" + JsonList(results, ",\n", check) + "\n]\n";
}

bool WantsJson(const std::string& format)
{
    if (format.empty() || format == "table" || format == "json")
        return format == "json";
    throw host::UsageError(fmt::format("account check takes --format table or json, not \"{}\".", format));
}

void Check(const CheckFlags& flags)
{
    const bool asJson = WantsJson(flags.format);
    host::Flags chosen = flags.login;
    if (!flags.path.empty()) {
        if (chosen.account)
            throw host::UsageError("Name the account once: as PATH or with --account.");
        chosen.account = flags.path;
    }
    host::AccountLogin login = ChosenLogin(chosen);

    Work work;
    const auto connection = host::OpenLogin(login, work.Connections(), "check");
    const std::vector<demo::CheckResult> results =
        demo::CheckAccount(*connection, [&](std::string_view claim) {
            work.StopIfInterrupted();
            work.Show(fmt::format("checking: {}", claim));
        });
    work.EndProgress();
    connection->Close();

    std::cout << (asJson ? AsJson(results) : AsText(results));
    const auto failed =
        std::ranges::count_if(results, [](const demo::CheckResult& result) { return !result.Passed(); });
    if (failed > 0)
        throw Error(fmt::format("{} of {} checks failed.", failed, results.size()));
    if (!asJson)
        std::cout << fmt::format("All {} checks passed.\n", results.size());
}

}  // namespace

void AddAccountCheck(CLI::App& account, Action& action)
{
    CLI::App* command = AddCommand(account, "check", "Prove that an account's books reconcile",
                                   "account check books.kavelin\n"
                                   "account check --account demo --format json");
    const auto flags = std::make_shared<CheckFlags>();
    command->add_option("path", flags->path, "File of the account; without it the one that run would take")
        ->type_name("PATH");
    AddAccountFlag(*command, flags->login);
    command->add_option("--format", flags->format, "table (by default), or json for scripts")
        ->type_name("CHECKFORM");
    OnChosen(*command, action, [flags] { Check(*flags); });
}

}  // namespace kavelin::cli
