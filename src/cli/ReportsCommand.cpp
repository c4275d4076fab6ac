// kavelin reports
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/TextRows.h"
#include "host/Reports.h"

#include <CLI/CLI.hpp>

namespace kavelin::cli {

namespace {

void ListReports()
{
    std::vector<TextRows::Row> rows;
    for (const host::Report& report : host::AllReports())
        rows.push_back({std::string(report.name), std::string(report.titleChinese),
                        std::string(report.titleEnglish), std::string(report.className),
                        std::string(report.filterId)});
    WriteList({"name", "名称", "title", "class", "filter"}, std::move(rows));
}

}  // namespace

void AddReports(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(program, "reports", "List the reports that run", "reports");
    OnChosen(*command, action, ListReports);
}

}  // namespace kavelin::cli
