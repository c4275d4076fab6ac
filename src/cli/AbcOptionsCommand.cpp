// kavelin abc-options
#include "cli/AbcOptionsCommand.h"

#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/OutputFlags.h"
#include "cli/TextRows.h"
#include "frame/Text.h"
#include "host/Config.h"
#include "host/FormRun.h"
#include "host/HostErrors.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <charconv>
#include <cmath>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kavelin::cli {

namespace {

struct OptionsFlags {
    host::Flags login;
    std::vector<std::string> values;  // "M2=70"
    OutputFlags output;
};

constexpr std::string_view kKeys[] = {"M1", "M2", "M3", "M4", "N1", "N2", "N3", "N4"};

// The boxes of the form stand in the order of the keys.
FormField& FieldOf(Form& form, const std::string& key)
{
    const auto fields = form.Fields();
    for (std::size_t i = 0; i < std::size(kKeys) && i < fields.size(); ++i)
        if (EqualsNoCase(key, kKeys[i]) || EqualsNoCase(key, fields[i].name))
            return fields[i];
    throw host::UsageError(
        fmt::format("There is no threshold \"{}\"; there are M1 to M4 of money and N1 to N4 of "
                    "quantity.",
                    key));
}

// "70", "66.5" or "-5". The form takes "1-2" for 1; the analysis, which doesn't, would put all eight back.
bool IsPlainNumber(std::string_view text)
{
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    return read.ec == std::errc() && read.ptr == end && std::isfinite(number);
}

void Type(Form& form, const std::string& assignment)
{
    const std::size_t equals = assignment.find('=');
    if (equals == std::string::npos)
        throw host::UsageError(fmt::format("--set takes KEY=VALUE, not \"{}\".", assignment));
    const std::string value(Trim(std::string_view(assignment).substr(equals + 1)));
    if (!IsPlainNumber(value))
        throw host::UsageError(fmt::format("A threshold is a percentage such as 70, not \"{}\".", value));
    FieldOf(form, assignment.substr(0, equals)).text = value;
}

}  // namespace

void ShowAbcOptions(const host::Flags& login, const std::vector<std::string>& values,
                    const OutputFlags& output)
{
    const host::Config config = LoadConfig(login);
    host::PlatformSettings settings;
    settings.language = config.Language(host::AccountSettings{});
    settings.settingsFile = config.SettingsFile();
    settings.onMessage = [](const host::ShownMessage& message) { Say(message.text); };

    std::vector<TextRows::Row> rows;
    settings.onForm = [&](Form& form) {
        for (const std::string& assignment : values)
            Type(form, assignment);
        // The form's own check, as a click on OK; a refused form is left by Cancel.
        const bool accepted = values.empty() || form.Click(form.Commands().front().name);
        if (!accepted) {
            form.Click(form.Commands().back().name);
            throw host::FilterRefused("The thresholds stay as they were.");
        }
        const auto fields = form.Fields();
        for (std::size_t i = 0; i < fields.size(); ++i)
            rows.push_back({std::string(kKeys[i]), fields[i].text, fields[i].label});
    };
    RowsTarget target(output);
    host::ShowFormOf(host::FindReport("abc"), "ActOption", std::move(settings));
    TextRows list({"key", "percent", "meaning"}, std::move(rows));
    target.WriteWhole(list);
    target.Finish();
}

void AddAbcOptions(CLI::App& program, Action& action)
{
    CLI::App* command =
        AddCommand(program, "abc-options", "Show or change the thresholds of the ABC analysis",
                   "abc-options\n"
                   "abc-options --set M2=70 --set M3=10    # money: A from 70 %, B from 10 %\n"
                   "abc-options --set N2=20 --set N3=50    # quantity: B from 20 %, C from 50 %");
    const auto flags = std::make_shared<OptionsFlags>();
    command->add_option("--set", flags->values, "A threshold in per cent; may be given several times")
        ->type_name("KEY=VALUE");
    command->add_option("--language", flags->login.language, "Language of the meanings")
        ->type_name("LANGUAGE");
    AddOutputFlags(*command, flags->output, false);
    OnChosen(*command, action, [flags] { ShowAbcOptions(flags->login, flags->values, flags->output); });
}

}  // namespace kavelin::cli
