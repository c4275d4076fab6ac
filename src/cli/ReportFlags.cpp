#include "cli/ReportFlags.h"

#include "cli/AccountFlags.h"
#include "cli/Help.h"
#include "host/HostErrors.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <iostream>
#include <utility>

namespace kavelin::cli {

void AddReportArgument(CLI::App& command, ReportFlags& flags)
{
    command.add_option("report", flags.report, "Name of the report")->type_name("REPORT");
}

void AddReportFlags(CLI::App& command, ReportFlags& flags, bool withLimit)
{
    AddAccountFlag(command, flags.login);
    AddFilterFlags(command, flags.filter);
    AddLoginFlags(command, flags.login);
    AddOutputFlags(command, flags.output, withLimit);
    command.add_flag("--show-sql", flags.showSql, "Show every statement on stderr");
}

const host::Report& ReportOf(const CLI::App& command, const ReportFlags& flags)
{
    if (flags.report.empty())
        throw host::UsageError(
            fmt::format("{} needs the name of a report. The names: kavelin reports", command.get_name()));
    return host::FindReport(flags.report);
}

void OnReportChosen(CLI::App& command, Action& action, std::shared_ptr<ReportFlags> flags, Action run,
                    std::function<std::string(const host::Report&)> reportHelp)
{
    OnChosen(command, action, std::move(run), [&command, flags, reportHelp = std::move(reportHelp)] {
        if (flags->report.empty())
            std::cout << HelpText(command);
        else
            std::cout << reportHelp(ReportOf(command, *flags)) << HelpOptions(command);
    });
}

}  // namespace kavelin::cli
