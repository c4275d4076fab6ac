#include "cli/Commands.h"

#include <CLI/CLI.hpp>

namespace kavelin::cli {

void AddCommands(CLI::App& program, Action& action)
{
    AddDemo(program, action);
    AddReports(program, action);
    AddFields(program, action);
    AddLookup(program, action);
    AddRun(program, action);
    AddOpen(program, action);
    AddAbcOptions(program, action);
    AddAccount(program, action);
    AddDoctor(program, action);
    AddQuery(program, action);
    AddCompletion(program, action);
}

}  // namespace kavelin::cli
