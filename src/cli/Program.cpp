#include "cli/Program.h"

#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Interrupt.h"
#include "cli/Messages.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/ValueGate.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <csignal>
#include <iostream>
#include <string>
#include <vector>

namespace kavelin::cli {

namespace {

// The command that the arguments reach down to: `account create`, or the program itself.
const CLI::App& Reached(const CLI::App& program)
{
    const CLI::App* command = &program;
    while (!command->get_subcommands().empty())
        command = command->get_subcommands().front();
    return *command;
}

std::vector<std::string> OptionNames(const CLI::App& command)
{
    std::vector<std::string> names;
    for (const CLI::Option* option : command.get_options())
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    return names;
}

std::vector<std::string> CommandNames(const CLI::App& command)
{
    std::vector<std::string> names;
    for (const CLI::App* sub : command.get_subcommands({}))
        names.push_back(sub->get_name());
    return names;
}

bool IsPasswordOption(const std::string& argument)
{
    const std::string name = ToLower(argument.substr(0, argument.find('=')));
    for (const std::string_view refused : {"--password", "--passwd", "--pass", "--pwd"})
        if (name == refused)
            return true;
    return false;
}

// One line on an argument that no command takes.
std::string WrongArgument(const CLI::App& command, const std::string& argument)
{
    if (IsPasswordOption(argument))
        return "A password is not taken on the command line, where others can read it. Put it into the "
               "environment variable KAVELIN_PASSWORD, or one that kavelin.toml names by password_env.";
    if (argument.starts_with("-"))
        return fmt::format("{} has no option {}.{}", CommandPath(command),
                           argument.substr(0, argument.find('=')),
                           host::DidYouMean(argument.substr(0, argument.find('=')), OptionNames(command)));
    const std::vector<std::string> commands = CommandNames(command);
    if (!commands.empty())
        return fmt::format("{} has no command \"{}\".{}", CommandPath(command), argument,
                           host::DidYouMean(argument, commands));
    return fmt::format("{} takes no further argument \"{}\".", CommandPath(command), argument);
}

std::string WrongUse(const CLI::App& program, const CLI::ParseError& error)
{
    const CLI::App& command = Reached(program);
    const std::vector<std::string> remaining = program.remaining(true);
    for (const std::string& argument : remaining)
        if (IsPasswordOption(argument))
            return WrongArgument(command, argument);
    if (!remaining.empty())
        return WrongArgument(command, remaining.front());
    return std::string(error.what()) + ".";
}

int Run(int argc, char** argv)
{
    CLI::App program("Kavelin prepares the reports of inventory accounting from an account database.",
                     argc > 0 && *argv[0] != '\0' ? argv[0] : "kavelin");
    program.footer(
        "demo                                   # a first report on a made-up company\n"
        "reports                                # which reports there are\n"
        "run capital-share --set cNo=10         # the ten largest items\n"
        "run capital-share --help               # what the report can be asked\n"
        "query --account demo.kavelin \"select top 5 * from Inventory\"");
    AddHelpFlag(program);
    program.add_flag("--version")->description("Show the version");

    Action action;
    AddCommands(program, action);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        Complain(fmt::format("{} See {} --help.", WrongUse(program, error), CommandPath(Reached(program))));
        return kWrongUse;
    }

    const CLI::App& command = Reached(program);
    if (program.count("--version") > 0)
        std::cout << "kavelin " KAVELIN_VERSION "\n";
    else if (action)
        action();
    else if (WantsHelp(command))
        std::cout << HelpText(command);
    else
        throw host::UsageError(
            fmt::format("{} needs a command. See {} --help.", CommandPath(command), CommandPath(command)));
    if (!std::cout.flush())
        throw Error("The output takes no more.");
    return kDone;
}

}  // namespace

int RunProgram(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN);  // a closed pipe is an error of the write, so that what runs is cleaned up
    try {
        return Run(argc, argv);
    } catch (...) {
        return ExplainFailure(Interrupt::Happened());
    }
}

}  // namespace kavelin::cli
