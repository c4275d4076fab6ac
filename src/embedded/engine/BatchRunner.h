// Runs a batch of T-SQL statement by statement: translate, run on DuckDB, take over what changed in the
// catalogue, go on to the next.
#pragma once

#include "embedded/Plan.h"
#include "embedded/engine/DuckDb.h"
#include "embedded/engine/Instance.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavelin::embedded {

// Without rows and columns: what a batch gives that has no statement with rows.
struct RowSet {
    std::vector<ResultColumn> columns;
    std::optional<Result> rows;

    std::int64_t RowCount() const { return rows ? rows->RowCount() : 0; }
};

struct BatchResult {
    std::optional<RowSet> rows;     // of the first statement that gave some
    std::int64_t rowsChanged = -1;  // by the last statement; -1 if it changes none
};

enum class KeepRows { No, Yes };

// Views and indexes lie in the account's file, and so must what they stand on.
bool NeedsTablesInFile(const Statement& statement);

class BatchRunner {
  public:
    // All must outlive the runner. `own` are the connection's own tables, `identityInsert` is what it set.
    BatchRunner(Instance& instance, Session& session, ObjectMap& own,
                std::optional<IdentityInsert>& identityInsert, std::string locale);

    // Each statement commits by itself. The batch stops at its first error: DatabaseError, or CancelledError
    // if the session was interrupted.
    BatchResult Run(const std::string& batch, KeepRows keep);

  private:
    void RunStatement(const Statement& statement, KeepRows keep, BatchResult& result);
    void TranslateAndRun(const Statement& statement, KeepRows keep, BatchResult& result);
    void RunPlan(const StatementPlan& plan, const Catalog& catalog, KeepRows keep, BatchResult& result);
    bool GivesARow(const Query& query);
    CatalogView View(bool intoFile) const;
    void TakeOver(const std::vector<CatalogChange>& changes);

    Instance& objInstance;
    Session& objSession;
    ObjectMap& dicOwn;
    std::optional<IdentityInsert>& objIdentityInsert;
    std::string strLocale;
    std::string strBatch;
};

}  // namespace kavelin::embedded
