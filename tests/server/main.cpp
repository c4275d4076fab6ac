// Compares the reports on an SQL Server with those of embedded accounts; see README.md.
#include "demo/DemoCompany.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "server/ServerSuite.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace {

using namespace kavelin;
using namespace kavelin::test::server;

std::string Variable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

struct Flags {
    std::string folder;
    std::vector<std::string> profiles;
    std::int64_t lines = demo::MinimumLines();
    bool yes = false;
};

void SayWhatWillBeDone(const SuiteOptions& options, const std::vector<std::string>& profiles)
{
    const std::string place =
        options.access.database.empty()
            ? "For each company it makes a database KavelinTest_... and drops it at the end."
            : "It uses the database " + options.access.database +
                  ", which must be empty, and drops everything in it at the end.";
    std::cout << fmt::format(
        "This runs the reports of {} made-up companies on the server of KAVELIN_TEST_SERVER and compares\n"
        "them with embedded accounts in {}.\n{}\n"
        "In the database VosSystem, made and dropped if the server has none, it adds rows to UA_Period under an\n"
        "account number of its own, K..., and deletes them. Reports make work tables in tempdb and drop them.\n"
        "Nothing else on the server is read or changed.\n\n",
        profiles.size(), options.folder.string(), place);
}

bool Agreed()
{
    std::cout << "Go on? [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return EqualsNoCase(answer, "y") || EqualsNoCase(answer, "yes");
}

int Run(const Flags& flags)
{
    SuiteOptions options;
    options.access = {Variable("KAVELIN_TEST_SERVER"), Variable("KAVELIN_PASSWORD"),
                      Variable("KAVELIN_TEST_DATABASE")};
    if (options.access.connectionString.empty())
        throw Error(
            "KAVELIN_TEST_SERVER names no server: a connection string without database and password.");
    options.lines = flags.lines;
    options.folder = flags.folder;
    options.say = [](const std::string& text) { std::cout << text << std::endl; };

    std::vector<std::string> profiles = flags.profiles;
    if (profiles.empty())
        for (const demo::Profile& profile : demo::Profiles())
            profiles.emplace_back(profile.name);
    for (const std::string& name : profiles)
        if (demo::FindProfile(name) == nullptr)
            throw Error("There is no company \"" + name + "\".");

    SayWhatWillBeDone(options, profiles);
    if (!flags.yes && !Agreed())
        return 2;
    std::filesystem::create_directories(options.folder);
    SuiteResult all;
    for (const std::string& name : profiles) {
        const SuiteResult result = RunSuite(*demo::FindProfile(name), options);
        all.runs += result.runs;
        all.statements += result.statements;
        all.rows += result.rows;
        all.differences += result.differences;
        all.refusals += result.refusals;
    }
    std::cout << fmt::format("\n{} runs ({} refused by both), {} rows, {} statements on the server: {}\n",
                             all.runs, all.refusals, all.rows, all.statements,
                             all.differences == 0 ? std::string("no difference.")
                                                  : std::to_string(all.differences) + " differences.");
    return all.differences == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    CLI::App app("Compares the reports on an SQL Server with those of embedded accounts.");
    Flags flags;
    app.add_option("--folder", flags.folder, "For embedded accounts and statement logs")->required();
    app.add_option("--profiles", flags.profiles, "Companies, all if left out")->delimiter(',');
    app.add_option("--lines", flags.lines, "Ledger lines of each company");
    app.add_flag("--yes", flags.yes, "Don't ask");
    CLI11_PARSE(app, argc, argv);
    try {
        return Run(flags);
    } catch (const std::exception& error) {
        std::cerr << "server-suite: " << error.what() << "\n";
        return 2;
    }
}
