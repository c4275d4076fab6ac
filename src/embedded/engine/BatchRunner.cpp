#include "embedded/engine/BatchRunner.h"

#include "embedded/engine/EngineErrors.h"

#include <chrono>
#include <optional>
#include <string_view>
#include <thread>

namespace kavelin::embedded {

namespace {

// Where T-SQL lets a statement wait for another connection's, DuckDB fails it. It is run again then: each
// statement commits by itself, so a failed one has left nothing.
constexpr int kAttempts = 200;
constexpr std::chrono::milliseconds kPause{2};

bool IsConflict(const DuckError& error)
{
    return std::string_view(error.what()).starts_with("TransactionContext Error");
}

// DuckDB's statement that stores in the file what the change says of an object's columns, or nothing.
std::optional<std::string> CommentAfter(const CatalogChange& change, const Catalog& before)
{
    if (const auto* made = std::get_if<TableMade>(&change)) {
        if (IsInFile(made->object))
            return CommentOn(made->object);
    } else if (const auto* changed = std::get_if<ColumnsChanged>(&change)) {
        const ObjectInfo* object = before.Find(changed->database, changed->name);
        if (object != nullptr && IsInFile(*object)) {
            ObjectInfo after = *object;
            after.columns = changed->columns;
            return CommentOn(after);
        }
    }
    return std::nullopt;
}

}  // namespace

bool NeedsTablesInFile(const Statement& statement)
{
    return std::holds_alternative<CreateViewStatement>(statement.node) ||
           std::holds_alternative<CreateIndexStatement>(statement.node);
}

BatchRunner::BatchRunner(Instance& instance, Session& session, ObjectMap& own,
                         std::optional<IdentityInsert>& identityInsert, std::string locale)
    : objInstance(instance),
      objSession(session),
      dicOwn(own),
      objIdentityInsert(identityInsert),
      strLocale(std::move(locale))
{
}

BatchResult BatchRunner::Run(const std::string& batch, KeepRows keep)
{
    strBatch = batch;
    BatchResult result;
    Place current;
    try {
        for (const StatementPtr& statement : ParseBatch(batch)) {
            current = statement->place;
            RunStatement(*statement, keep, result);
        }
    } catch (const SqlError& error) {
        throw DatabaseError(DetailsOf(error, batch));
    } catch (const DuckError& error) {
        if (IsInterrupt(error))
            throw CancelledError(DetailsOf(error, batch, current));
        throw DatabaseError(DetailsOf(error, batch, current));
    }
    return result;
}

void BatchRunner::RunStatement(const Statement& statement, KeepRows keep, BatchResult& result)
{
    if (const auto* test = std::get_if<IfExistsStatement>(&statement.node)) {
        result.rowsChanged = -1;
        if (GivesARow(*test->query) != test->negated)
            RunStatement(*test->then, keep, result);
        return;
    }
    // The tables may lie in several databases, and DuckDB's transaction changes one only.
    const auto* drop = std::get_if<DropStatement>(&statement.node);
    if (drop && drop->objects.size() > 1) {
        for (const ObjectName& object : drop->objects)
            RunStatement({DropStatement{drop->view, {object}}, statement.place}, keep, result);
        return;
    }
    for (int attempt = 1;; ++attempt) {
        try {
            TranslateAndRun(statement, keep, result);
            return;
        } catch (const DuckError& error) {
            if (attempt == kAttempts || !IsConflict(error) || objSession.Interrupted())
                throw;
        }
        std::this_thread::sleep_for(kPause);
    }
}

void BatchRunner::TranslateAndRun(const Statement& statement, KeepRows keep, BatchResult& result)
{
    const bool intoFile = NeedsTablesInFile(statement);
    if (intoFile)
        objInstance.Flush();
    const std::shared_lock lock(objInstance.Placement());
    const CatalogView catalog = View(intoFile);
    RunPlan(Translate(statement, strBatch, catalog), catalog, keep, result);
}

bool BatchRunner::GivesARow(const Query& query)
{
    const std::shared_lock lock(objInstance.Placement());
    const CatalogView catalog = View(false);
    BatchResult result;
    RunPlan(TranslateQuery(query, strBatch, catalog), catalog, KeepRows::Yes, result);
    return result.rows && result.rows->RowCount() > 0;
}

void BatchRunner::RunPlan(const StatementPlan& plan, const Catalog& catalog, KeepRows keep,
                          BatchResult& result)
{
    std::vector<std::string> comments;
    for (const CatalogChange& change : plan.changes)
        if (std::optional<std::string> comment = CommentAfter(change, catalog))
            comments.push_back(std::move(*comment));

    std::optional<Transaction> transaction;
    if (plan.steps.size() + comments.size() > 1)
        transaction.emplace(objSession);
    std::optional<Result> last;
    for (const std::string& step : plan.steps)
        last.emplace(objSession.Run(step));
    for (const std::string& comment : comments)
        objSession.Run(comment);
    if (transaction)
        transaction->Commit();
    TakeOver(plan.changes);
    if (plan.setsIdentityInsert)
        objIdentityInsert = plan.identityInsert;

    result.rowsChanged = plan.countsRows && last ? last->RowsChanged() : -1;
    if (plan.rows && last && keep == KeepRows::Yes && !result.rows)
        result.rows = RowSet{*plan.rows, std::move(*last)};
}

CatalogView BatchRunner::View(bool intoFile) const
{
    return CatalogView(objInstance.Objects().Current(), dicOwn, strLocale, intoFile, objIdentityInsert);
}

void BatchRunner::TakeOver(const std::vector<CatalogChange>& changes)
{
    objInstance.Objects().Apply(changes);
    for (const CatalogChange& change : changes)
        if (DatabaseOf(change) == Database::Connection)
            ApplyChange(dicOwn, change);
}

}  // namespace kavelin::embedded
