#include "cli/Completion.h"
#include "demo/profiles/Profile.h"
#include "host/FilterTemplate.h"
#include "host/Reports.h"
#include "host/definition/ReportDefinition.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>

namespace kavelin::cli {

namespace {

// What stands behind an option or argument, by the name that the help gives its value.
struct ValueKind {
    std::string_view typeName;
    Completes value;
    std::vector<std::string> words;
};

std::vector<std::string> ProfileNames()
{
    std::vector<std::string> names;
    for (const demo::Profile& profile : demo::Profiles())
        names.emplace_back(profile.name);
    return names;
}

// Commands on the result of some report, each once.
std::vector<std::string> Actions()
{
    std::vector<std::string> names;
    for (const host::Report& report : host::AllReports())
        for (const host::RowAction& action : report.actions)
            if (std::ranges::find(names, action.name) == names.end())
                names.emplace_back(action.name);
    return names;
}

// By which some report can be grouped.
std::vector<std::string> Dimensions()
{
    std::vector<std::string> names;
    for (const host::Report& report : host::AllReports())
        if (report.definition)
            for (const std::string_view name : report.definition->dimensions())
                names.emplace_back(name);
    return names;
}

const std::vector<ValueKind>& ValueKinds()
{
    static const std::vector<ValueKind> kinds = {
        {"REPORT", Completes::Report, {}},
        {"KEY=VALUE", Completes::Key, {}},
        {"KEY", Completes::KeyName, {}},
        {"FILE", Completes::File, {}},
        {"PATH", Completes::File, {}},
        {"A", Completes::File, {}},
        {"FROM", Completes::File, {}},
        {"TO", Completes::File, {}},
        {"FOLDER", Completes::Folder, {}},
        {"FORM", Completes::Words, {"table", "csv", "json"}},
        {"CHECKFORM", Completes::Words, {"table", "json"}},
        {"PROFILE", Completes::Words, ProfileNames()},
        {"ACTION", Completes::Words, Actions()},
        {"DIMENSIONS", Completes::Words, Dimensions()},
        {"LANGUAGE", Completes::Words, {"zh-CN", "en-US"}},
        {"POLICY", Completes::Words, {"checked", "legacy"}},
        {"SHELL", Completes::Words, {"bash", "zsh", "fish"}},
    };
    return kinds;
}

CompletionOption OptionOf(const CLI::Option& option)
{
    CompletionOption result;
    if (!option.get_lnames().empty())
        result.name = "--" + option.get_lnames().front();
    result.description = option.get_description();
    result.takesValue = option.get_expected_max() > 0;
    for (const ValueKind& kind : ValueKinds()) {
        if (kind.typeName == option.get_type_name()) {
            result.value = kind.value;
            result.words = kind.words;
        }
    }
    return result;
}

void AddCommandsBelow(const CLI::App& app, const std::string& path, CompletionModel& model)
{
    CompletionCommand command;
    command.path = path;
    command.description = app.get_description();
    for (const CLI::Option* option : app.get_options())
        (option->get_positional() ? command.arguments : command.options).push_back(OptionOf(*option));
    for (const CLI::App* sub : app.get_subcommands({}))
        command.commands.push_back(sub->get_name());
    model.commands.push_back(std::move(command));
    for (const CLI::App* sub : app.get_subcommands({}))
        AddCommandsBelow(*sub, path.empty() ? sub->get_name() : path + " " + sub->get_name(), model);
}

}  // namespace

std::string Joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

CompletionModel ModelOf(const CLI::App& program)
{
    CompletionModel model;
    AddCommandsBelow(program, "", model);
    for (const host::Report& report : host::AllReports()) {
        CompletionReport entry{std::string(report.name), std::string(report.titleEnglish), {}};
        for (const host::FilterField& field : host::TemplateOf(report.name).fields)
            entry.keys.push_back(field.key);
        model.reports.push_back(std::move(entry));
    }
    return model;
}

}  // namespace kavelin::cli
