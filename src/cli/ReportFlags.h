// What the commands on a report share: its name, the account and login, the filter's values, the output.
#pragma once

#include "cli/Commands.h"
#include "cli/FilterFlags.h"
#include "cli/OutputFlags.h"
#include "host/Config.h"
#include "host/Reports.h"

#include <functional>
#include <memory>
#include <string>

namespace CLI {
class App;
}

namespace kavelin::cli {

struct ReportFlags {
    std::string report;
    host::Flags login;
    FilterFlags filter;
    OutputFlags output;
    bool showSql = false;
};

// The positional REPORT, which a command adds before arguments of its own.
void AddReportArgument(CLI::App& command, ReportFlags& flags);

// All the others. `flags` must live as long as the command. `withLimit`: with --columns and --limit.
void AddReportFlags(CLI::App& command, ReportFlags& flags, bool withLimit);

// The report of the flags. Throws UsageError, also if none is named.
const host::Report& ReportOf(const CLI::App& command, const ReportFlags& flags);

// Makes `run` the command's action; --help shows `reportHelp` if a report is named, else the command's help.
void OnReportChosen(CLI::App& command, Action& action, std::shared_ptr<ReportFlags> flags, Action run,
                    std::function<std::string(const host::Report&)> reportHelp);

}  // namespace kavelin::cli
