// The texts of --help: what a command does, examples first, then its arguments and options.
#pragma once

#include "cli/Commands.h"

#include <string>

namespace CLI {
class App;
}

namespace kavelin::cli {

// Adds a command with its --help. `examples` are lines of arguments behind the program's name, in which
// "# " begins a remark: "run capital-share --set cNo=10   # the ten largest".
CLI::App* AddCommand(CLI::App& parent, const std::string& name, const std::string& summary,
                     const std::string& examples);

// Makes `run` the action if the command is the one given; `help` in its place, which is the command's help
// unless it is told, if --help is among its arguments.
void OnChosen(CLI::App& command, Action& action, Action run, Action help = {});

// Gives the program or a command its --help, for those that AddCommand has not made.
void AddHelpFlag(CLI::App& command);

// Whether --help stands among the command's arguments.
bool WantsHelp(const CLI::App& command);

// The command's help as parts, so that one that knows more can put it between.
std::string HelpHead(const CLI::App& command);     // summary, examples, usage
std::string HelpOptions(const CLI::App& command);  // arguments, commands, options
std::string HelpText(const CLI::App& command);     // both

// "kavelin account create", by the program's name as the user called it.
std::string CommandPath(const CLI::App& command);

}  // namespace kavelin::cli
