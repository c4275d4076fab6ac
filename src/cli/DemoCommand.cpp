// kavelin demo
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/OutputFlags.h"
#include "cli/RunReport.h"
#include "cli/Work.h"
#include "demo/Company.h"
#include "demo/DemoCompany.h"
#include "host/HostErrors.h"
#include "host/output/OutputTable.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <filesystem>
#include <memory>
#include <set>

namespace kavelin::cli {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kReport = "capital-share";

struct DemoFlags {
    std::string account;
    std::string lines;
};

std::string Grouped(std::int64_t number)
{
    return host::GroupThousands(std::to_string(number));
}

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

host::AccountLogin LoginTo(const fs::path& account)
{
    const host::Config config = host::Config::Load({});
    return host::LoginFor(config, config.Account(account.string()));
}

// Ledger lines of the account if it is the demo company's: one with its warehouses. Throws UsageError for
// any other account, ConnectionError for a file that is none.
std::int64_t LinesOfDemo(const fs::path& account)
{
    const host::AccountLogin login = LoginTo(account);
    const Work work;
    const auto connection = work.Connections().Open("demo", login.connectionString, login.password);

    std::set<std::string> names;
    for (const auto rows = Open(*connection, "select cWhName from Warehouse"); !rows->Eof(); rows->MoveNext())
        names.insert(ToText(rows->Field(0)));
    for (const demo::Warehouse& warehouse : demo::Warehouses())
        if (!names.contains(std::string(warehouse.name)))
            throw host::UsageError(fmt::format(
                "{} holds another account than the demo; it stays as it is. Choose another --account.",
                account.string()));
    return ToInt32(Open(*connection, "select count(*) from IA_Subsidiary")->Field(0));
}

void MakeDemo(const fs::path& account, std::int64_t lines)
{
    Say(fmt::format("Making the demo account {} with {} ledger lines.", account.string(), Grouped(lines)));
    if (account.has_parent_path())
        fs::create_directories(account.parent_path());
    Work work;
    demo::MakeDemoAccount(account, lines, demo::kDefaultSeed, [&work](std::int64_t done, std::int64_t total) {
        work.StopIfInterrupted();
        work.Show(fmt::format("{} of {} ledger lines", Grouped(done), Grouped(total)));
    });
}

std::string Quoted(const std::string& argument)
{
    if (argument.find_first_of(" \t'\"\\$&;()<>|*?[]#~`!{}") == argument.npos)
        return argument;
    std::string quoted = "'";
    for (const char character : argument)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}

void SayWhatNext(const std::string& program, const DemoFlags& flags)
{
    const std::string account = flags.account.empty() ? "" : " --account " + Quoted(flags.account);
    Say("\nWhat to try next:");
    Say(fmt::format("  {} run {}{} --set cNo=10", program, kReport, account));
    Say(fmt::format("  {} run {}{} --set imonth=2008-01-01..2008-06-30 --format csv", program, kReport,
                    account));
    Say(fmt::format("  {} run {} --help", program, kReport));
    Say(fmt::format("  {} query{} \"select cWhCode, cWhName from Warehouse\"", program, account));
    Say(fmt::format("  {} reports", program));
}

void Demo(const std::string& program, const DemoFlags& flags)
{
    const fs::path account = flags.account.empty() ? DemoAccountPath() : fs::path(flags.account);
    const std::int64_t lines =
        flags.lines.empty() ? demo::kDefaultLines : WholeNumber("--lines", flags.lines, demo::MinimumLines());
    if (!fs::exists(account)) {
        MakeDemo(account, lines);
    } else if (const std::int64_t present = LinesOfDemo(account); !flags.lines.empty() && present != lines) {
        throw host::UsageError(fmt::format(
            "{} is there already with {} ledger lines. Delete it first, or make another with --account PATH.",
            account.string(), Grouped(present)));
    }

    const host::FilterInput input(host::TemplateOf(kReport), host::ValuePolicy::Checked);
    RowsTarget target(OutputFlags{});
    RunReport(host::FindReport(kReport), input, LoginTo(account), target, false);
    SayWhatNext(program, flags);
}

}  // namespace

void AddDemo(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(program, "demo", "Make a made-up company's account and run a report on it",
                                   "demo\n"
                                   "demo --lines 100000 --account big.kavelin");
    const auto flags = std::make_shared<DemoFlags>();
    command
        ->add_option("--lines", flags->lines,
                     fmt::format("Size of its ledger ({} by default)", demo::kDefaultLines))
        ->type_name("N");
    command->add_option("--account", flags->account, "Make the account here, not in the user's data folder")
        ->type_name("PATH");
    OnChosen(*command, action, [flags, name = program.get_name()] { Demo(name, *flags); });
}

}  // namespace kavelin::cli
