// kavelin query "T-SQL"
#include "cli/AccountFlags.h"
#include "cli/Batch.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Messages.h"
#include "cli/OutputFlags.h"
#include "cli/Work.h"
#include "host/HostErrors.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <memory>

namespace kavelin::cli {

namespace {

struct QueryFlags {
    std::string sql;
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

void Query(const QueryFlags& flags)
{
    if (flags.sql.empty())
        throw host::UsageError("query needs the T-SQL to run, as one argument in quotes.");
    RowsTarget target(flags.output);
    const host::AccountLogin login = ChosenLogin(flags.login);
    const std::vector<BatchPart> parts = SplitBatch(flags.sql);

    Work work({.statements = static_cast<int>(parts.size())});
    const auto connection = work.Connections().Open("query", login.connectionString, login.password);
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
                   "query --account demo.kavelin --format json \"select cWhCode, cWhName from Warehouse\"");
    const auto flags = std::make_shared<QueryFlags>();
    command->add_option("sql", flags->sql, "One or more statements")->type_name("T-SQL");
    AddAccountFlag(*command, flags->login);
    AddOutputFlags(*command, flags->output, false);
    OnChosen(*command, action, [flags] { Query(*flags); });
}

}  // namespace kavelin::cli
