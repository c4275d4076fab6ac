// kavelin demo
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/OutputFlags.h"
#include "cli/RunReport.h"
#include "cli/Work.h"
#include "demo/DemoCompany.h"
#include "demo/profiles/Profile.h"
#include "embedded/engine/AccountFiles.h"
#include "frame/Text.h"
#include "host/AccountLogin.h"
#include "host/HostErrors.h"
#include "host/ValueGate.h"
#include "host/output/OutputTable.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::cli {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kReport = "capital-share";

struct DemoFlags {
    std::string account;
    std::string lines;
    std::string profile;
    bool listProfiles = false;
};

// What a demo account says of itself.
struct MadeAs {
    std::string profile;
    std::int64_t lines = 0;
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

const demo::Profile& ChosenProfile(const DemoFlags& flags)
{
    if (flags.profile.empty())
        return demo::Profiles().front();
    if (const demo::Profile* profile = demo::FindProfile(flags.profile))
        return *profile;
    std::vector<std::string> names;
    for (const demo::Profile& profile : demo::Profiles())
        names.emplace_back(profile.name);
    throw host::UsageError(
        fmt::format("There is no profile \"{}\".{} Their names: kavelin demo --list-profiles", flags.profile,
                    host::DidYouMean(flags.profile, names)));
}

// Throws UsageError for an account that is no demo, ConnectionError for a file that is no account.
MadeAs ReadDemo(const fs::path& account, bool atItsPlace)
{
    host::AccountLogin login = LoginTo(account);
    const Work work;
    const auto connection = host::OpenLogin(login, work.Connections(), "demo");
    if (Open(*connection, "select name from sysobjects where name = N'Demo_Profile' and xtype = 'U'")
            ->Eof()) {
        if (!atItsPlace)
            throw host::UsageError(fmt::format(
                "{} holds another account than a demo; it stays as it is. Choose another --account.",
                account.string()));
        throw host::UsageError(
            fmt::format("{} is the demo of an older version. Delete it and {}, and a new one will be made.",
                        account.string(), embedded::SystemFileOf(account.string())));
    }
    MadeAs made;
    for (const auto rows = Open(*connection, "select cName, cValue from Demo_Profile"); !rows->Eof();
         rows->MoveNext()) {
        const std::string name = ToText(rows->Field(0));
        if (name == "profile")
            made.profile = ToText(rows->Field(1));
        else if (name == "lines")
            made.lines = WholeNumber("Demo_Profile", ToText(rows->Field(1)), 0);
    }
    if (made.profile.empty())  // an empty account has the table too
        throw host::UsageError(
            fmt::format("{} holds another account than a demo; it stays as it is. Choose another --account.",
                        account.string()));
    return made;
}

// Throws UsageError if the account was made otherwise than it is asked for now.
void RequireAsAsked(const MadeAs& made, const fs::path& account, const demo::Profile& profile,
                    const DemoFlags& flags, std::int64_t lines)
{
    const bool otherProfile = !flags.profile.empty() && !EqualsNoCase(made.profile, profile.name);
    const bool otherLines = !flags.lines.empty() && made.lines != lines;
    if (otherProfile || otherLines)
        throw host::UsageError(
            fmt::format("{} is there already: profile {}, {} ledger lines. Delete it first, "
                        "or make another with --account PATH.",
                        account.string(), made.profile, Grouped(made.lines)));
}

void MakeDemo(const fs::path& account, const demo::Profile& profile, std::int64_t lines)
{
    Say(fmt::format("Making the demo account {} with {} ledger lines.", account.string(), Grouped(lines)));
    Say(fmt::format("Profile {}: {}.", profile.name, profile.title));
    if (account.has_parent_path())
        fs::create_directories(account.parent_path());
    Work work;
    demo::MakeDemoAccount(account, profile, lines, demo::kDefaultSeed,
                          [&work](std::int64_t done, std::int64_t total) {
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

void SayWhatNext(const std::string& program, const fs::path& account)
{
    const std::string option = account == DemoAccountPath() ? "" : " --account " + Quoted(account.string());
    Say("\nWhat to try next:");
    Say(fmt::format("  {} run {}{} --set cNo=10", program, kReport, option));
    Say(fmt::format("  {} run {}{} --set imonth=2008-01-01..2008-06-30 --format csv", program, kReport,
                    option));
    Say(fmt::format("  {} run {} --help", program, kReport));
    Say(fmt::format("  {} query{} \"select cWhCode, cWhName from Warehouse\"", program, option));
    Say(fmt::format("  {} account check {}", program, Quoted(account.string())));
    Say(fmt::format("  {} demo --list-profiles", program));
    Say(fmt::format("  {} reports", program));
}

void ListProfiles()
{
    for (const demo::Profile& profile : demo::Profiles())
        std::cout << profile.name << '\n';
}

void Demo(const std::string& program, const DemoFlags& flags)
{
    if (flags.listProfiles)
        return ListProfiles();

    const demo::Profile& profile = ChosenProfile(flags);
    const bool atItsPlace = flags.account.empty();
    const fs::path account = atItsPlace ? DemoAccountPath(profile.name) : fs::path(flags.account);
    const std::int64_t lines =
        flags.lines.empty() ? demo::kDefaultLines : WholeNumber("--lines", flags.lines, demo::MinimumLines());
    if (!fs::exists(account))
        MakeDemo(account, profile, lines);
    else
        RequireAsAsked(ReadDemo(account, atItsPlace), account, profile, flags, lines);

    const host::FilterInput input(host::TemplateOf(kReport), host::ValuePolicy::Checked);
    RowsTarget target(OutputFlags{});
    RunReport(host::FindReport(kReport), input, LoginTo(account), target);
    SayWhatNext(program, account);
}

}  // namespace

void AddDemo(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(program, "demo", "Make a made-up company's account and run a report on it",
                                   "demo\n"
                                   "demo --profile trade\n"
                                   "demo --lines 100000 --account big.kavelin");
    const auto flags = std::make_shared<DemoFlags>();
    command->add_option("--profile", flags->profile, "What kind of company it is (industry by default)")
        ->type_name("PROFILE");
    command->add_flag("--list-profiles", flags->listProfiles, "Only put out the names of the profiles");
    command
        ->add_option("--lines", flags->lines,
                     fmt::format("Size of its ledger ({} by default)", demo::kDefaultLines))
        ->type_name("N");
    command->add_option("--account", flags->account, "Make the account here, not in the user's data folder")
        ->type_name("PATH");
    OnChosen(*command, action, [flags, name = program.get_name()] { Demo(name, *flags); });
}

}  // namespace kavelin::cli
