// kavelin open REPORT --row N
#include "cli/AbcOptionsCommand.h"
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/ReportFlags.h"
#include "cli/RunReport.h"
#include "cli/Work.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/ReportRun.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <memory>

namespace kavelin::cli {

namespace {

struct OpenFlags : ReportFlags {
    std::string row;
    std::string action;
};

const host::Report& OpeningReport(const CLI::App& command, const OpenFlags& flags)
{
    const host::Report& report = ReportOf(command, flags);
    if (report.actions.empty())
        throw host::UsageError(fmt::format("Behind the rows of {} is nothing to open.", report.name));
    return report;
}

// What is to be done. A name that the host doesn't know is the report's to judge.
host::RowAction ActionOf(const host::Report& report, const OpenFlags& flags)
{
    if (flags.action.empty())
        return report.actions.front();
    for (const host::RowAction& action : report.actions)
        if (EqualsNoCase(action.name, flags.action))
            return {flags.action, action.opens, action.kind};
    return {flags.action, "", report.actions.front().kind};
}

void OpenRow(const host::Report& report, const OpenFlags& flags, const std::string& action)
{
    if (flags.row.empty())
        throw host::UsageError("open needs --row: the number of a row of the result, from 1.");
    const std::int64_t row = WholeNumber("--row", flags.row, 1);
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

void DrawAgain(const host::Report& report, const OpenFlags& flags, const std::string& action)
{
    const host::FilterInput input = InputOf(report, flags.filter);
    RowsTarget target(flags.output);
    Work work({flags.showSql, report.statements * 2});
    host::ReportRun run(ChosenLogin(flags.login), work.Connections(), work.Messages());
    run.RunAndDrawAgain(report, input, action);
    WriteResult(report, run, target, work);
    target.Finish();
}

void Open(const CLI::App& command, const OpenFlags& flags)
{
    const host::Report& report = OpeningReport(command, flags);
    const host::RowAction chosen = ActionOf(report, flags);
    const std::string action(chosen.name);
    if (chosen.kind == host::ActionKind::OpensRow) {
        OpenRow(report, flags, action);
        return;
    }
    if (!flags.row.empty())
        throw host::UsageError(fmt::format("{} is about the whole report, so it takes no --row.", action));
    if (chosen.kind == host::ActionKind::DrawsAgain) {
        DrawAgain(report, flags, action);
        return;
    }
    if (!flags.filter.values.empty() || !flags.filter.file.empty())
        throw host::UsageError(fmt::format("{} shows {} and takes no filter. abc-options --set changes them.",
                                           action, chosen.opens));
    ShowAbcOptions(flags.login, {}, flags.output);
}

// What this report opens, in front of the general options.
std::string ReportHelp(const CLI::App& command, const host::Report& report)
{
    const std::string path = fmt::format("{} {}", CommandPath(command), report.name);
    const bool byRow = report.actions.front().kind == host::ActionKind::OpensRow;
    std::string text = fmt::format("{}  {}\n\nUsage: {}{} [OPTION]...\n\nWhat --action opens:\n",
                                   report.titleChinese, report.titleEnglish, path, byRow ? " --row N" : "");
    for (const host::RowAction& action : report.actions)
        text += fmt::format("  {:<10}  {}\n", action.name, action.opens);
    return text;
}

}  // namespace

void AddOpen(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(program, "open", "Show what is behind a report or a row of it",
                                   "open journal --row 3\n"
                                   "open journal --row 3 --action Voucher --set vouEstate=已记账单据\n"
                                   "open abc --action ActB\n"
                                   "open journal --help                    # its actions");
    const auto flags = std::make_shared<OpenFlags>();
    AddReportArgument(*command, *flags);
    command->add_option("--row", flags->row, "Number of the row in the report's result, from 1")
        ->type_name("N");
    command->add_option("--action", flags->action, "What to open; by default the first that --help names")
        ->type_name("ACTION");
    AddReportFlags(*command, *flags, false);
    OnReportChosen(
        *command, action, flags, [flags, command] { Open(*command, *flags); },
        [flags, command](const host::Report&) {
            return ReportHelp(*command, OpeningReport(*command, *flags));
        });
}

}  // namespace kavelin::cli
