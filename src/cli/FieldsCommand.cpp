// kavelin fields REPORT
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/TextRows.h"
#include "host/FilterTemplate.h"
#include "host/HostErrors.h"
#include "host/Reports.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace kavelin::cli {

namespace {

// What the kind alone doesn't tell: "range", "several", the entries of a list.
std::string Extent(const host::FilterField& field)
{
    std::string text = field.range ? "range" : "";
    if (field.multiple)
        text += text.empty() ? "several" : ", several";
    for (const host::ListEntry& entry : field.entries)
        text += (text.empty() ? "" : ", ") + entry.value;
    return text;
}

void ListFields(const std::string& name)
{
    if (name.empty())
        throw host::UsageError("fields needs the name of a report. The names: kavelin reports");
    std::vector<TextRows::Row> rows;
    for (const host::FilterField& field : host::TemplateOf(host::FindReport(name).name).fields)
        rows.push_back({field.key, field.caption.chinese, field.caption.english,
                        std::string(host::KindName(field.kind)), Extent(field), field.byDefault});
    WriteList({"key", "名称", "caption", "kind", "range or list", "default"}, std::move(rows));
}

}  // namespace

void AddFields(CLI::App& program, Action& action)
{
    CLI::App* command =
        AddCommand(program, "fields", "List the fields of a report's filter", "fields capital-share");
    const auto report = std::make_shared<std::string>();
    command->add_option("report", *report, "Name of the report")->type_name("REPORT");
    OnChosen(*command, action, [report] { ListFields(*report); });
}

}  // namespace kavelin::cli
