// kavelin lookup REPORT KEY [TEXT]
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/ReportFlags.h"
#include "cli/TextRows.h"
#include "cli/Work.h"
#include "host/Dialog.h"
#include "host/HostErrors.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <memory>

namespace kavelin::cli {

namespace {

constexpr std::int64_t kLargestPage = 10'000;

struct LookupFlags : ReportFlags {
    std::string key;
    std::string text;
    std::string page = "1";
    std::string pageSize = "50";
};

void Look(const CLI::App& command, const LookupFlags& flags)
{
    const host::Report& report = ReportOf(command, flags);
    if (flags.key.empty())
        throw host::UsageError(
            fmt::format("lookup needs the key of a field. The keys: kavelin fields {}", report.name));
    const std::int64_t page = WholeNumber("--page", flags.page, 1);
    const std::int64_t size = WholeNumber("--page-size", flags.pageSize, 1);
    if (size > kLargestPage || page > kLargestPage)
        throw host::UsageError(fmt::format("--page and --page-size end at {}.", kLargestPage));
    const host::FilterInput input = InputOf(report, flags.filter);
    input.RequireKey(flags.key);
    RowsTarget target(flags.output);

    Work work({.showSql = flags.showSql});
    host::Session session(ChosenLogin(flags.login), work.Connections(), work.Messages());
    host::Dialog dialog(session, report);
    dialog.Set(input);
    host::OfferedRows offered = dialog.Offer(flags.key, flags.text, page, size);
    work.EndProgress();
    const bool none = offered.rows.empty();
    TextRows rows(std::move(offered.captions), std::move(offered.rows));
    target.WriteWhole(rows);
    target.Finish();
    if (none)
        Say("Nothing found.");
    if (offered.more)
        Say(fmt::format("There are more: --page {}", page + 1));
}

}  // namespace

void AddLookup(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(
        program, "lookup", "List what a field of a report's filter offers, or what of it a text finds",
        "lookup journal cWhCode\n"
        "lookup journal Inventory.cInvCode PMP --page 2\n"
        "lookup standard-cost-journal cInvCode --set cInvCCode=01");
    const auto flags = std::make_shared<LookupFlags>();
    AddReportArgument(*command, *flags);
    command->add_option("key", flags->key, "Key of the field")->type_name("KEY");
    command->add_option("text", flags->text, "The beginning of a code, or a part of a name")
        ->type_name("TEXT");
    command->add_option("--page", flags->page, "Which page, from 1")->type_name("N");
    command->add_option("--page-size", flags->pageSize, "Rows on a page, 50 by default")->type_name("N");
    AddReportFlags(*command, *flags, false);
    OnChosen(*command, action, [flags, command] { Look(*command, *flags); });
}

}  // namespace kavelin::cli
