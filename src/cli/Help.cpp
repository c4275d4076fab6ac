#include "cli/Help.h"

#include "frame/Text.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <vector>

namespace kavelin::cli {

namespace {

struct Row {
    std::string left, right;
};

std::string Section(const std::string& title, const std::vector<Row>& rows)
{
    if (rows.empty())
        return "";
    std::size_t width = 0;
    for (const Row& row : rows)
        width = std::max(width, row.left.size());
    std::string text = "\n" + title + ":\n";
    for (const Row& row : rows)
        text += fmt::format("  {:<{}}  {}\n", row.left, width, row.right);
    return text;
}

// "-h, --help", "--set KEY=VALUE".
std::string OptionLabel(const CLI::Option& option)
{
    std::string label;
    for (const std::string& name : option.get_snames())
        label += (label.empty() ? "-" : ", -") + name;
    for (const std::string& name : option.get_lnames())
        label += (label.empty() ? "--" : ", --") + name;
    if (option.get_expected_max() > 0)
        label += " " + option.get_type_name();
    return label;
}

std::string Usage(const CLI::App& command)
{
    std::string usage = CommandPath(command);
    if (!command.get_subcommands({}).empty())
        return usage + " COMMAND ...";
    for (const CLI::Option* option : command.get_options())
        if (option->get_positional())
            usage += " " + option->get_type_name();
    return usage + " [OPTION]...";
}

}  // namespace

CLI::App* AddCommand(CLI::App& parent, const std::string& name, const std::string& summary,
                     const std::string& examples)
{
    CLI::App* command = parent.add_subcommand(name, summary);
    command->footer(examples);
    AddHelpFlag(*command);
    return command;
}

void OnChosen(CLI::App& command, Action& action, Action run, Action help)
{
    if (!help)
        help = [&command] { std::cout << HelpText(command); };
    command.final_callback([&command, &action, run = std::move(run), help = std::move(help)] {
        action = WantsHelp(command) ? help : run;
    });
}

void AddHelpFlag(CLI::App& command)
{
    command.set_help_flag();  // the library's own would print in its own form
    command.add_flag("-h,--help")->description("Show this help");
}

bool WantsHelp(const CLI::App& command)
{
    return command.count("--help") > 0;
}

std::string CommandPath(const CLI::App& command)
{
    const CLI::App* parent = command.get_parent();
    return parent ? CommandPath(*parent) + " " + command.get_name() : command.get_name();
}

std::string HelpHead(const CLI::App& command)
{
    const CLI::App* program = &command;
    while (program->get_parent())
        program = program->get_parent();

    std::string text = command.get_description() + "\n\nExamples:\n";
    for (const std::string& line : Split(command.get_footer(), "\n"))
        text += "  " + program->get_name() + " " + line + "\n";
    return text + "\nUsage: " + Usage(command) + "\n";
}

std::string HelpOptions(const CLI::App& command)
{
    std::vector<Row> arguments, commands, options;
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_positional())
            arguments.push_back({option->get_type_name(), option->get_description()});
        else
            options.push_back({OptionLabel(*option), option->get_description()});
    }
    for (const CLI::App* sub : command.get_subcommands({}))
        commands.push_back({sub->get_name(), sub->get_description()});
    return Section("Arguments", arguments) + Section("Commands", commands) + Section("Options", options);
}

std::string HelpText(const CLI::App& command)
{
    return HelpHead(command) + HelpOptions(command);
}

}  // namespace kavelin::cli
