// kavelin run REPORT
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/ReportFlags.h"
#include "cli/RunReport.h"
#include "host/FilterInput.h"
#include "host/HostErrors.h"
#include "host/chart/ReportChart.h"
#include "host/output/DisplayWidth.h"
#include "host/output/OutputFile.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>

namespace kavelin::cli {

namespace {

struct RunFlags : ReportFlags {
    std::string groups;
    bool lines = false;
    std::string chart;
};

// What is to be shown of the result; null for the result itself.
std::unique_ptr<host::ReportView> ViewOf(const host::Report& report, const host::FilterInput& input,
                                         const RunFlags& flags)
{
    if (!report.definition && (flags.lines || !flags.groups.empty()))
        throw host::UsageError(fmt::format(
            "The rows of {} stand as they are: it takes neither --group nor --lines.", report.name));
    if (flags.lines && !flags.groups.empty())
        throw host::UsageError("--lines shows rows that are not grouped, so it goes without --group.");
    return report.definition && !flags.lines ? report.definition->view(input, flags.groups) : nullptr;
}

// Null where no picture is asked for. Before anything is run: throws UsageError for a report that has none,
// Error for a file that cannot be written.
std::unique_ptr<host::OutputFile> ChartFile(const host::Report& report, const RunFlags& flags)
{
    if (flags.chart.empty())
        return nullptr;
    if (!host::HasChart(report))
        throw host::UsageError(fmt::format("There is no chart of {}.", report.name));
    return std::make_unique<host::OutputFile>(flags.chart);
}

void Run(const CLI::App& command, const RunFlags& flags)
{
    const host::Report& report = ReportOf(command, flags);
    const host::FilterInput input = InputOf(report, flags.filter);
    const std::unique_ptr<host::ReportView> view = ViewOf(report, input, flags);
    const std::unique_ptr<host::OutputFile> chart = ChartFile(report, flags);
    RowsTarget target(flags.output);
    RunReport(report, input, ChosenLogin(flags.login), target, {flags.showSql, view.get(), chart.get()});
}

std::string Padded(const std::string& text, int width)
{
    return text + std::string(std::max(0, width - host::DisplayWidth(text)), ' ');
}

// What this report takes, in front of the general options.
std::string ReportHelp(const CLI::App& command, const host::Report& report)
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
    if (host::HasChart(report))
        text += fmt::format("  {0} --chart {1}.svg\n", path, report.name);
    if (report.definition)
        text += fmt::format("  {0} --group {1},{2}\n  {0} --lines\n", path,
                            report.definition->dimensions().at(1), report.definition->dimensions().at(0));
    text += fmt::format("\nUsage: {} [OPTION]...\n\n", path);
    if (report.definition)
        text += fmt::format(
            "Dimensions of --group, any of them with commas between; by default {}:\n  {}\n\n",
            report.definition->dimensions().front(), fmt::join(report.definition->dimensions(), ", "));
    text += "Keys of --set:\n";
    for (const host::FilterField& field : fields)
        text += fmt::format("  {}  {}  {}: {}\n", Padded(field.key, keyWidth),
                            Padded(field.caption.chinese, captionWidth), field.caption.english,
                            host::WhatItTakes(field));
    return text;
}

}  // namespace

void AddRun(CLI::App& program, Action& action)
{
    CLI::App* command =
        AddCommand(program, "run", "Run a report and put out its rows",
                   "run capital-share\n"
                   "run capital-share --set cwhcode=01..03 --set cNo=10\n"
                   "run capital-share --account demo.kavelin --format csv --output shares.csv\n"
                   "run abc --chart abc.svg\n"
                   "run capital-share --help               # its keys");
    const auto flags = std::make_shared<RunFlags>();
    AddReportArgument(*command, *flags);
    command->add_option("--group", flags->groups, "Group a summary by these dimensions, separated by commas")
        ->type_name("DIMENSIONS");
    command->add_flag("--lines", flags->lines, "Put out the lines that a summary groups");
    command->add_option("--chart", flags->chart, "Write a chart of an analysis to a file too, as SVG")
        ->type_name("FILE");
    AddReportFlags(*command, *flags, true);
    OnReportChosen(
        *command, action, flags, [flags, command] { Run(*command, *flags); },
        [command](const host::Report& report) { return ReportHelp(*command, report); });
}

}  // namespace kavelin::cli
