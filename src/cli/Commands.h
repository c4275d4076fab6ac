// The commands, one file each. Every function adds its command and the options to the parser; if the
// command is the one given, `action` is what it does. Nothing but the parser is made before that is known.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace kavelin::cli {

using Action = std::function<void()>;

void AddDemo(CLI::App& program, Action& action);
void AddReports(CLI::App& program, Action& action);
void AddFields(CLI::App& program, Action& action);
void AddLookup(CLI::App& program, Action& action);
void AddRun(CLI::App& program, Action& action);
void AddOpen(CLI::App& program, Action& action);
void AddAbcOptions(CLI::App& program, Action& action);
void AddAccount(CLI::App& program, Action& action);
void AddAccountCheck(CLI::App& account, Action& action);  // below the one above
void AddAccountCopy(CLI::App& account, Action& action);   // likewise
void AddDoctor(CLI::App& program, Action& action);
void AddQuery(CLI::App& program, Action& action);
void AddCompletion(CLI::App& program, Action& action);

// All of them, in the order in which the help lists them.
void AddCommands(CLI::App& program, Action& action);

}  // namespace kavelin::cli
