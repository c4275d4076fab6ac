// kavelin account copy
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/TextRows.h"
#include "cli/Work.h"
#include "demo/AccountFiles.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/ConnectionString.h"
#include "host/HostErrors.h"
#include "host/output/OutputTable.h"
#include "snapshot/AccountCopy.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace fs = std::filesystem;

namespace {

struct CopyFlags {
    std::string from, to, years;
    std::vector<std::string> tables;
    bool replace = false;
    bool again = false;
    bool dryRun = false;
};

std::string Grouped(std::int64_t number)
{
    return host::GroupThousands(std::to_string(number));
}

std::string Counted(std::int64_t number, const char* what)
{
    return fmt::format("{} {}{}", Grouped(number), what, number == 1 ? "" : "s");
}

int YearOf(std::string_view text)
{
    int year = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), year);
    return error == std::errc() && end == text.data() + text.size() && year >= 1900 && year <= 9998 ? year
                                                                                                    : 0;
}

// "2008-2009" or "2008".
std::optional<std::pair<int, int>> YearsOf(const std::string& text)
{
    if (text.empty())
        return std::nullopt;
    const std::size_t dash = text.find('-');
    const int from = YearOf(std::string_view(text).substr(0, dash));
    const int to = dash == text.npos ? from : YearOf(std::string_view(text).substr(dash + 1));
    if (from == 0 || to == 0 || from > to)
        throw host::UsageError(
            fmt::format("--years takes accounting years as 2008-2009 or 2008, not \"{}\".", text));
    return std::pair(from, to);
}

// Path of an embedded account; empty for one on a server.
std::string PathOf(const host::AccountLogin& login)
{
    return login.IsOnServer() ? "" : embedded::ReadConnectionString(login.connectionString).account;
}

bool AreSame(const host::AccountLogin& from, const host::AccountLogin& to)
{
    if (from.IsOnServer() || to.IsOnServer())
        return from.connectionString == to.connectionString;
    std::error_code ignored;
    return fs::weakly_canonical(PathOf(from), ignored) == fs::weakly_canonical(PathOf(to), ignored);
}

void ShowDifferences(const std::vector<snapshot::Difference>& differences)
{
    std::vector<TextRows::Row> rows;
    for (const snapshot::Difference& each : differences)
        rows.push_back({each.table, each.what, each.source, each.target});
    WriteList({"table", "what", "source", "target"}, std::move(rows));
}

void ShowCounts(Connection& source, const snapshot::CopyPlan& plan)
{
    std::int64_t rows = 0;
    const std::vector<snapshot::TableCount> counts = snapshot::CountRows(source, plan);
    for (const snapshot::TableCount& count : counts) {
        std::cout << fmt::format("{:>13}  {}\n", Grouped(count.rows), count.name);
        rows += count.rows;
    }
    std::cout << fmt::format("{:>13}  in {}\n", Grouped(rows),
                             Counted(static_cast<std::int64_t>(counts.size()), "table"));
}

void Tell(const snapshot::CopyResult& result)
{
    std::int64_t copied = 0, rows = 0, left = 0;
    for (const snapshot::CopiedTable& table : result.tables) {
        if (table.wasThere) {
            ++left;
        } else {
            ++copied;
            rows += table.rows;
        }
    }
    std::string text = fmt::format("Copied {} in {}.", Counted(rows, "row"), Counted(copied, "table"));
    if (left > 0)
        text += fmt::format(" {} had been copied before and {} unchanged.", Counted(left, "table"),
                            left == 1 ? "is" : "are");
    Say(text);
}

std::unique_ptr<snapshot::CopyTarget> OpenTarget(const host::AccountLogin& to,
                                                 const host::ConnectionSource& connections)
{
    auto connection = connections.Open("copy target", to.ConnectionText(), "");
    return to.IsOnServer()
               ? snapshot::ServerTarget(std::move(connection))
               : snapshot::EmbeddedTarget(std::move(connection), embedded::OpenAccount(PathOf(to)));
}

void Copy(const CopyFlags& flags)
{
    if (flags.from.empty() || flags.to.empty())
        throw host::UsageError(
            "account copy needs two accounts, FROM and TO. See kavelin account copy --help.");
    const auto years = YearsOf(flags.years);
    const host::Config config = LoadConfig({});
    const host::AccountLogin from = host::LoginFor(config, config.Account(flags.from));
    const host::AccountLogin to = host::LoginFor(config, config.Account(flags.to));
    if (AreSame(from, to))
        throw host::UsageError("FROM and TO are the same account.");
    const bool isNew = !to.IsOnServer() && !fs::exists(PathOf(to));

    Work work;
    const host::ConnectionSource connections = work.Connections();
    const auto source = connections.Open("copy source", from.ConnectionText(), "");
    auto target = isNew ? nullptr : OpenTarget(to, connections);

    snapshot::CopyOptions options;
    options.choice = {flags.tables, years, from.accountId, to.accountId};
    options.replace = flags.replace;
    options.again = flags.again;
    options.onProgress = [&](const std::string& text) {
        work.StopIfInterrupted();
        work.Show(text);
    };
    options.onCleanUp = [&] { connections.Resume(); };

    std::optional<snapshot::AccountObjects> objects;
    if (target)
        objects = snapshot::ReadObjects(target->Account());
    const snapshot::CopyPlan plan = snapshot::PlanCopy(*source, target ? &target->Account() : nullptr,
                                                       objects ? &*objects : nullptr, options.choice);
    work.HideProgress();
    for (const std::string& note : plan.notes)
        Say(note);
    for (const snapshot::PlannedTable& table : plan.tables)
        std::ranges::for_each(table.notes, Say);
    if (flags.dryRun) {
        ShowCounts(*source, plan);
        return;
    }
    if (isNew) {
        demo::CreateEmptyAccount(PathOf(to));
        target = OpenTarget(to, connections);
    }

    const snapshot::CopyResult result = snapshot::CopyAccount(*source, *target, plan, options);
    work.EndProgress();
    target->Account().Close();
    source->Close();
    Tell(result);
    if (result.differences.empty()) {
        Say("Rows and sums of all tables are those of the source.");
        return;
    }
    ShowDifferences(result.differences);
    throw Error(
        "The copy differs from the source, which may have changed meanwhile. The same command copies "
        "the tables again that differ.");
}

}  // namespace

void AddAccountCopy(CLI::App& account, Action& action)
{
    CLI::App* command = AddCommand(
        account, "copy", "Copy what the reports read from one account into another",
        "account copy company books.kavelin                 # from a server, to run reports beside it\n"
        "account copy company books.kavelin --years 2008-2009\n"
        "account copy company books.kavelin --dry-run\n"
        "account copy demo.kavelin test-server              # fills an empty database");
    const auto flags = std::make_shared<CopyFlags>();
    command->add_option("from", flags->from, "A name of kavelin.toml, a path, or a connection string")
        ->type_name("FROM");
    command->add_option("to", flags->to, "Likewise; an embedded account is made if it isn't there")
        ->type_name("TO");
    command->add_option("--tables", flags->tables, "Only these, with commas between them")
        ->delimiter(',')
        ->type_name("LIST");
    command
        ->add_option("--years", flags->years,
                     "Only these accounting years of ledgers and documents: 2008-2009, or 2008")
        ->type_name("YEARS");
    command->add_flag("--replace", flags->replace, "Delete what other rows the target's tables hold");
    command->add_flag("--again", flags->again, "Copy the tables too whose rows and sums are unchanged");
    command->add_flag("--dry-run", flags->dryRun, "Only put out how many rows each table has to copy");
    OnChosen(*command, action, [flags] { Copy(*flags); });
}

}  // namespace kavelin::cli
