// kavelin run REPORT
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/FilterFlags.h"
#include "cli/Help.h"
#include "cli/OutputFlags.h"
#include "cli/RunReport.h"
#include "frame/Text.h"
#include "host/FilterInput.h"
#include "host/HostErrors.h"
#include "host/Reports.h"
#include "host/output/DisplayWidth.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace {

struct RunFlags {
    std::string report;
    host::Flags login;
    FilterFlags filter;
    OutputFlags output;
    bool showSql = false;
};

const host::Report& ReportOf(const RunFlags& flags)
{
    if (flags.report.empty())
        throw host::UsageError("run needs the name of a report. The names: kavelin reports");
    return host::FindReport(flags.report);
}

void Run(const RunFlags& flags)
{
    const host::Report& report = ReportOf(flags);
    const host::FilterInput input = InputOf(report, flags.filter);
    RowsTarget target(flags.output);
    RunReport(report, input, ChosenLogin(flags.login), target, flags.showSql);
}

std::string Padded(const std::string& text, int width)
{
    return text + std::string(std::max(0, width - host::DisplayWidth(text)), ' ');
}

// The general help with what this report takes in the middle.
void ShowReportHelp(const CLI::App& command, const host::Report& report)
{
    const std::vector<host::FilterField>& fields = host::TemplateOf(report.name).fields;
    int keyWidth = 0;
    int captionWidth = 0;
    for (const host::FilterField& field : fields) {
        keyWidth = std::max(keyWidth, host::DisplayWidth(field.key));
        captionWidth = std::max(captionWidth, host::DisplayWidth(field.caption.chinese));
    }

    std::string text = fmt::format("{}  {}\n\nExamples:\n", report.titleChinese, report.titleEnglish);
    const std::string path = fmt::format("{} {}", CommandPath(command), report.name);
    text += "  " + path + "\n";
    for (const host::FilterField& field : fields)
        if (!field.example.empty())
            text += fmt::format("  {} --set {}={}\n", path, field.key, field.example);
    text += fmt::format("\nUsage: {} [OPTION]...\n\nKeys of --set:\n", path);
    for (const host::FilterField& field : fields)
        text += fmt::format("  {}  {}  {}: {}\n", Padded(field.key, keyWidth),
                            Padded(field.caption.chinese, captionWidth), field.caption.english,
                            host::WhatItTakes(field));
    std::cout << text << HelpOptions(command);
}

}  // namespace

void AddRun(CLI::App& program, Action& action)
{
    CLI::App* command =
        AddCommand(program, "run", "Run a report and put out its rows",
                   "run capital-share\n"
                   "run capital-share --set cwhcode=01..03 --set cNo=10\n"
                   "run capital-share --account demo.kavelin --format csv --output shares.csv\n"
                   "run capital-share --help               # its keys");
    const auto flags = std::make_shared<RunFlags>();
    command->add_option("report", flags->report, "Name of the report")->type_name("REPORT");
    AddAccountFlag(*command, flags->login);
    AddFilterFlags(*command, flags->filter);
    AddLoginFlags(*command, flags->login);
    AddOutputFlags(*command, flags->output, true);
    command->add_flag("--show-sql", flags->showSql, "Show every statement on stderr");
    OnChosen(
        *command, action, [flags] { Run(*flags); },
        [flags, command] {
            if (flags->report.empty())
                std::cout << HelpText(*command);
            else
                ShowReportHelp(*command, ReportOf(*flags));
        });
}

}  // namespace kavelin::cli
