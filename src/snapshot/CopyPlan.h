// What a copy takes: tables, their columns and rows, found out without anything being written.
#pragma once

#include "frame/Connection.h"
#include "frame/Text.h"
#include "snapshot/Schema.h"
#include "snapshot/TableFigures.h"

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::snapshot {

// The tables and views of an account and its system database.
struct AccountObjects {
    using Names = std::set<std::string, LessNoCase>;

    Names tables, views, functions;  // of the account
    Names systemTables;
    std::string systemProblem;  // why the system database cannot be read; empty if it can

    bool HasTable(const SchemaObject& object) const;
    bool HasView(const SchemaObject& object) const;
    bool Has(const SchemaObject& object) const;
};

// Throws DatabaseError if the account cannot be read; the system database may lack.
AccountObjects ReadObjects(Connection& connection);

struct CopyChoice {
    std::vector<std::string> tables = {};            // names of the schema; none: all
    std::optional<std::pair<int, int>> years = {};   // first and last accounting year; nothing: all
    std::string sourceId = "001", targetId = "001";  // cAcc_ID in the system database of each
};

struct PlannedColumn {
    const embedded::ColumnInfo* info = nullptr;
    FigureColumn figures;
};

struct PlannedTable {
    const SchemaObject* object = nullptr;
    std::vector<PlannedColumn> columns;
    std::string sourceCondition;  // of the rows to copy; empty: all
    std::string targetCondition;  // of the rows of the target that are this account's; empty: all
    std::vector<std::string> notes;

    // What the schema has as a view lies in a table of the target: the source has no tables below it, or a
    // table of that name itself.
    bool IsSnapshotOfView() const { return object->kind == SchemaKind::View; }
    std::vector<FigureColumn> Figures() const;
};

struct CopyPlan {
    std::vector<PlannedTable> tables;  // in the schema's order
    std::vector<std::string> notes;
};

// `targetObjects`, `target`: null for an account that is still to be made. Throws host::UsageError for a
// table that the schema doesn't have; Error for a table that lacks a column which may not be null; DatabaseError.
CopyPlan PlanCopy(Connection& source, Connection* target, const AccountObjects* targetObjects,
                  const CopyChoice& choice);

}  // namespace kavelin::snapshot
