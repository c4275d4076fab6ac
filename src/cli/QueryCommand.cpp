// kavelin query "T-SQL"
#include "cli/AccountFlags.h"
#include "cli/Batch.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/OutputFlags.h"
#include "cli/Work.h"
#include "embedded/EmbeddedAccount.h"
#include "host/HostErrors.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace {

struct QueryFlags {
    std::string sql;
    bool explain = false;
    host::Flags login;
    OutputFlags output;
};

void RunPart(Connection& connection, const BatchPart& part, const Work& work, RowsTarget& target)
{
    if (!part.givesRows) {
        const std::int64_t changed = connection.Execute(part.text);
        work.HideProgress();
        if (changed >= 0)
            Say(fmt::format("{} {} changed.", changed, changed == 1 ? "row" : "rows"));
        return;
    }
    const auto rows = connection.OpenRecordset(part.text, CursorLocation::Client, CursorType::ForwardOnly,
                                               LockType::ReadOnly);
    work.HideProgress();
    if (rows->FieldCount() > 0)
        target.Write(*work.Stoppable(*rows));
}

void Explain(const QueryFlags& flags)
{
    const host::AccountLogin login = ChosenLogin(flags.login);
    if (login.IsOnServer())
        throw host::UsageError(
            "--explain shows what an embedded account makes of T-SQL; a server runs it as it is.");
    const auto connection = embedded::NewConnection();
    connection->SetConnectionString(login.connectionString);
    connection->Open("", "", 0);
    std::cout << connection->Explain(flags.sql) << std::flush;
}

void Query(const QueryFlags& flags)
{
    if (flags.sql.empty())
        throw host::UsageError("query needs the T-SQL to run, as one argument in quotes.");
    if (flags.explain) {
        Explain(flags);
        return;
    }
    RowsTarget target(flags.output);
    host::AccountLogin login = ChosenLogin(flags.login);
    const std::vector<BatchPart> parts =
        login.IsOnServer() ? SplitForServer(flags.sql) : SplitBatch(flags.sql);

    Work work({.statements = static_cast<int>(parts.size())});
    const auto connection = host::OpenLogin(login, work.Connections(), "query");
    for (const BatchPart& part : parts) {
        try {
            RunPart(*connection, part, work, target);
        } catch (const CancelledError&) {
            throw;
        } catch (const DatabaseError& error) {
            throw DatabaseError(InBatch(error.Get(), flags.sql, part));
        }
    }
    work.EndProgress();
    connection->Close();
    target.Finish();
}

}  // namespace

void AddQuery(CLI::App& program, Action& action)
{
    CLI::App* command =
        AddCommand(program, "query", "Run T-SQL on an account and put out the rows of each statement",
                   "query \"select top 5 * from IA_Subsidiary\"\n"
                   "query --account demo.kavelin --format json \"select cWhCode, cWhName from Warehouse\"\n"
                   "query --explain \"select 7 / 2\"");
    const auto flags = std::make_shared<QueryFlags>();
    command->add_option("sql", flags->sql, "One or more statements")->type_name("T-SQL");
    command->add_flag("--explain", flags->explain,
                      "Show what an embedded account makes of the T-SQL, and run nothing");
    AddAccountFlag(*command, flags->login);
    AddOutputFlags(*command, flags->output, false);
    OnChosen(*command, action, [flags] { Query(*flags); });
}

}  // namespace kavelin::cli
