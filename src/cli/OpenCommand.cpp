// kavelin open REPORT --row N
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/FilterFlags.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/OutputFlags.h"
#include "cli/Work.h"
#include "host/HostErrors.h"
#include "host/ReportRun.h"
#include "host/Reports.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace {

struct OpenFlags {
    std::string report;
    std::string row;
    std::string action;
    host::Flags login;
    FilterFlags filter;
    OutputFlags output;
    bool showSql = false;
};

const host::Report& ReportOf(const OpenFlags& flags)
{
    if (flags.report.empty())
        throw host::UsageError("open needs the name of a report. The names: kavelin reports");
    const host::Report& report = host::FindReport(flags.report);
    if (report.actions.empty())
        throw host::UsageError(fmt::format("Behind the rows of {} is nothing to open.", report.name));
    return report;
}

void Open(const OpenFlags& flags)
{
    const host::Report& report = ReportOf(flags);
    if (flags.row.empty())
        throw host::UsageError("open needs --row: the number of a row of the result, from 1.");
    const std::int64_t row = WholeNumber("--row", flags.row, 1);
    const std::string action = flags.action.empty() ? std::string(report.actions.front().name) : flags.action;
    const host::FilterInput input = InputOf(report, flags.filter);
    RowsTarget target(flags.output);

    Work work({flags.showSql, report.statements});
    host::ReportRun run(ChosenLogin(flags.login), work.Connections(), work.Messages());
    bool shown = false;
    run.RunAndOpen(report, input, row, action, [&](const std::string& title, Recordset& rows) {
        shown = true;
        work.HideProgress();
        Say(title);
        target.Write(*work.Stoppable(rows));
    });
    work.EndProgress();
    work.StopIfInterrupted();  // the report passes every error over, and this one too
    if (!shown && run.Messages().empty())
        throw host::ReportError(fmt::format("Nothing was opened behind row {}.", row));
    target.Finish();
}

// The general help with what this report opens.
void ShowReportHelp(const CLI::App& command, const host::Report& report)
{
    const std::string path = fmt::format("{} {}", CommandPath(command), report.name);
    std::string text = fmt::format("{}  {}\n\nUsage: {} --row N [OPTION]...\n\nWhat --action opens:\n",
                                   report.titleChinese, report.titleEnglish, path);
    for (const host::RowAction& action : report.actions)
        text += fmt::format("  {:<10}  {}\n", action.name, action.opens);
    std::cout << text << HelpOptions(command);
}

}  // namespace

void AddOpen(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(program, "open", "Show the document or voucher behind a row of a report",
                                   "open journal --row 3\n"
                                   "open journal --row 3 --action Voucher --set vouEstate=已记账单据\n"
                                   "open journal --help                    # its actions");
    const auto flags = std::make_shared<OpenFlags>();
    command->add_option("report", flags->report, "Name of the report")->type_name("REPORT");
    command->add_option("--row", flags->row, "Number of the row in the report's result, from 1")
        ->type_name("N");
    command->add_option("--action", flags->action, "What to open; by default the document")
        ->type_name("NAME");
    AddAccountFlag(*command, flags->login);
    AddFilterFlags(*command, flags->filter);
    AddLoginFlags(*command, flags->login);
    AddOutputFlags(*command, flags->output, false);
    command->add_flag("--show-sql", flags->showSql, "Show every statement on stderr");
    OnChosen(
        *command, action, [flags] { Open(*flags); },
        [flags, command] {
            if (flags->report.empty())
                std::cout << HelpText(*command);
            else
                ShowReportHelp(*command, ReportOf(*flags));
        });
}

}  // namespace kavelin::cli
