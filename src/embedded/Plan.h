// What one T-SQL statement becomes: the DuckDB statements to run and what they change in the catalogue.
//
// A plan holds for the catalogue that it was made with. A batch is therefore translated statement by
// statement, each after the one before has run.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/SqlError.h"
#include "embedded/SqlType.h"
#include "embedded/syntax/Tree.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kavelin::embedded {

struct ResultColumn {
    std::string name;  // empty for a column without a name
    SqlType type;
};

struct TableMade {
    ObjectInfo object;
};
struct TableDropped {
    Database database;
    std::string name;
};
struct ColumnsChanged {  // after ALTER TABLE: the columns as they are now
    Database database;
    std::string name;
    std::vector<ColumnInfo> columns;
};
using CatalogChange = std::variant<TableMade, TableDropped, ColumnsChanged>;

struct StatementPlan {
    // DuckDB statements, run in order in one transaction. Where `rows` is set the last one gives rows;
    // else, where `countsRows` is set, the last one tells how many rows it changed.
    std::vector<std::string> steps;
    std::optional<std::vector<ResultColumn>> rows;
    bool countsRows = false;
    std::vector<CatalogChange> changes;
    // The statement sets for which table the connection brings identity numbers itself; nothing: for none.
    bool setsIdentityInsert = false;
    std::optional<IdentityInsert> identityInsert;
};

// Parses a batch. Throws SqlError.
std::vector<StatementPtr> ParseBatch(std::string_view text);

// Binds a statement against the catalogue and writes it as DuckDB SQL. `text` is the batch, for views,
// which keep their source. Throws SqlError. An `if exists` is not translated as a whole: the engine
// translates its query with TranslateQuery, and what follows only if a row comes.
StatementPlan Translate(const Statement& statement, std::string_view text, const Catalog& catalog);
StatementPlan TranslateQuery(const Query& query, std::string_view text, const Catalog& catalog);

}  // namespace kavelin::embedded
