// kavelin account create|load|export|check|copy
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "demo/AccountFiles.h"
#include "host/HostErrors.h"
#include "host/output/OutputTable.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <memory>

namespace kavelin::cli {

namespace {

struct Paths {
    std::string account, folder;
};

void Require(const std::string& path, const char* command, const char* what)
{
    if (path.empty())
        throw host::UsageError(
            fmt::format("account {} needs {}. See kavelin account {} --help.", command, what, command));
}

std::string Told(const demo::RowCounts& counts)
{
    std::int64_t rows = 0;
    for (const auto& [table, count] : counts)
        rows += count;
    return fmt::format("{} {} in {} {}", host::GroupThousands(std::to_string(rows)),
                       rows == 1 ? "row" : "rows", counts.size(), counts.size() == 1 ? "table" : "tables");
}

void Create(const Paths& paths)
{
    Require(paths.account, "create", "the path of the new account");
    demo::CreateEmptyAccount(paths.account);
    Say(fmt::format("Made the empty account {}.", paths.account));
}

void Load(const Paths& paths)
{
    Require(paths.account, "load", "the path of the account");
    Require(paths.folder, "load", "the folder with the CSV files");
    Say(fmt::format("Loaded {}.", Told(demo::LoadFolder(paths.account, paths.folder))));
}

void Export(const Paths& paths)
{
    Require(paths.account, "export", "the path of the account");
    Require(paths.folder, "export", "the folder for the CSV files");
    Say(fmt::format("Exported {}.", Told(demo::ExportFolder(paths.account, paths.folder))));
}

CLI::App* AddPathCommand(CLI::App& account, const std::string& name, const std::string& summary,
                         const std::string& example, Paths& paths)
{
    CLI::App* command = AddCommand(account, name, summary, example);
    command->add_option("path", paths.account, "File of the account")->type_name("PATH");
    return command;
}

}  // namespace

void AddAccount(CLI::App& program, Action& action)
{
    CLI::App* account = AddCommand(program, "account",
                                   "Make an account, fill it from CSV files, write it out, check its books",
                                   "account create books.kavelin\n"
                                   "account load books.kavelin tables/\n"
                                   "account export books.kavelin copy/\n"
                                   "account check books.kavelin\n"
                                   "account copy company books.kavelin");
    const auto paths = std::make_shared<Paths>();
    CLI::App* create = AddPathCommand(*account, "create", "Make an empty account with all tables",
                                      "account create books.kavelin", *paths);
    CLI::App* load =
        AddPathCommand(*account, "load", "Add the rows of a folder of CSV files, one a table, or none",
                       "account load books.kavelin tables/", *paths);
    CLI::App* exported = AddPathCommand(*account, "export", "Write every table to a folder of CSV files",
                                        "account export books.kavelin copy/", *paths);
    load->add_option("folder", paths->folder, "Folder with TABLE.csv files")->type_name("FOLDER");
    exported->add_option("folder", paths->folder, "Folder for the files, made if absent")
        ->type_name("FOLDER");

    AddAccountCheck(*account, action);
    AddAccountCopy(*account, action);

    OnChosen(*create, action, [paths] { Create(*paths); });
    OnChosen(*load, action, [paths] { Load(*paths); });
    OnChosen(*exported, action, [paths] { Export(*paths); });
}

}  // namespace kavelin::cli
