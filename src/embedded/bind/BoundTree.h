// A statement with its meaning settled: what the binder makes and the writer turns into DuckDB SQL.
//
// Every name is resolved to a source and a column, every expression has its T-SQL type, and every
// implicit conversion stands as a node, so that the writer decides nothing about T-SQL and the binder
// nothing about DuckDB. Where the two sides of an operator must have one type, the binder has already
// converted them to it.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/Plan.h"
#include "embedded/SqlType.h"
#include "embedded/syntax/Tree.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kavelin::embedded {

struct BoundExpr;
struct BoundQuery;
using BoundExprPtr = std::unique_ptr<BoundExpr>;
using BoundQueryPtr = std::unique_ptr<BoundQuery>;

// --- expressions -------------------------------------------------------------------------------

// A constant of the node's type: null, a Boolean for bit, digits ("12", "-0.5", "1e3") for numbers, the
// text itself for texts, "2008-07-31 00:00:00.000" for datetime.
struct BoundLiteral {
    bool null = false;
    std::string text;
};

struct BoundColumn {
    int source;          // number of a source of this statement, see BoundTable
    std::string column;  // as the catalogue has it
};

// The n-th expression of GROUP BY, met again in the list, HAVING or ORDER BY.
struct BoundGroupKey {
    std::size_t index;
};

enum class ConversionKind {
    Implicit,    // where two types meet: a text that is no number is an error
    Explicit,    // cast, convert: text is cut to the length without error
    Assignment,  // insert, update: too long a text is an error
    Style121,    // datetime to text by convert(..., 121)
};
struct BoundConversion {  // to the node's type
    ConversionKind kind;
    BoundExprPtr operand;
    std::string target;  // Assignment: the column assigned to, for the message; else empty
};

struct BoundArithmetic {  // + - * / of numbers; the result has the node's type
    ArithmeticOp op;
    BoundExprPtr left, right;
};
struct BoundConcat {
    BoundExprPtr left, right;
};
struct BoundNegation {
    BoundExprPtr operand;
};
struct BoundDayDifference {  // datetime minus datetime, in days with their fraction, as float
    BoundExprPtr left, right;
};

struct BoundWhen {
    BoundExprPtr condition, result;
};
struct BoundCase {  // always searched: a simple case arrives as comparisons
    std::vector<BoundWhen> branches;
    BoundExprPtr otherwise;  // null without else
};

// ObjectId has one text literal, the name as written; LocaleId one text literal, the language, or nothing
// within a view, which asks for it when it is read.
enum class BoundFunctionKind { IsNull, Left, Year, Month, Day, Abs, ObjectId, LocaleId };
struct BoundFunction {
    BoundFunctionKind kind;
    std::vector<BoundExprPtr> arguments;
};

enum class AggregateKind { Sum, Avg, Min, Max, Count, CountRows };
struct BoundAggregate {
    AggregateKind kind;
    bool distinct = false;
    BoundExprPtr argument;  // null for CountRows
};

// An aggregate over the rows of the same partition that come no later in the order; those that tie with the
// row are among them. No T-SQL says it here: the binder puts it in place of costly joins, see RunningSums.h.
struct BoundRunning {
    BoundExprPtr aggregate;
    std::vector<BoundExprPtr> partition;
    BoundExprPtr order;
};

// The number of the row, in the order of the statement; only in a select into.
struct BoundIdentity {
    std::int64_t seed = 1, increment = 1;
};

struct BoundScalarSubquery {
    BoundQueryPtr query;
};

// Conditions: their type is not used.
struct BoundComparison {
    ComparisonOp op;
    BoundExprPtr left, right;
};
struct BoundLogical {
    LogicalOp op;
    BoundExprPtr left, right;
};
struct BoundNot {
    BoundExprPtr operand;
};
struct BoundNullTest {
    BoundExprPtr operand;
    bool negated = false;
};
struct BoundBetween {
    BoundExprPtr operand, low, high;
    bool negated = false;
};
struct BoundInList {
    BoundExprPtr operand;
    std::vector<BoundExprPtr> items;
    bool negated = false;
};
struct BoundInQuery {
    BoundExprPtr operand;
    BoundQueryPtr query;
    bool negated = false;
};
struct BoundLike {
    BoundExprPtr operand, pattern;
    bool negated = false;
};
struct BoundExists {
    BoundQueryPtr query;
};

struct BoundExpr {
    std::variant<BoundLiteral, BoundColumn, BoundGroupKey, BoundConversion, BoundArithmetic, BoundConcat,
                 BoundNegation, BoundDayDifference, BoundCase, BoundFunction, BoundAggregate, BoundRunning,
                 BoundIdentity, BoundScalarSubquery, BoundComparison, BoundLogical, BoundNot, BoundNullTest,
                 BoundBetween, BoundInList, BoundInQuery, BoundLike, BoundExists>
        node;
    SqlType type;
    bool nullable = true;
    TextFacts facts;  // of a text: what is known of all its values
    Place place;
};

// --- queries -----------------------------------------------------------------------------------

struct BoundSource;
using BoundSourcePtr = std::unique_ptr<BoundSource>;

// `number` is unique in the whole statement, subqueries included; the writer makes its alias of it.
struct BoundTable {
    int number;
    std::string duckName;
};
struct BoundDerived {
    int number;
    BoundQueryPtr query;
};
struct BoundJoin {
    JoinKind kind;
    BoundSourcePtr left, right;
    BoundExprPtr on;
};
struct BoundSource {
    std::variant<BoundTable, BoundDerived, BoundJoin> node;
};

struct BoundItem {
    std::string name;  // empty for a column without a name
    BoundExprPtr expression;
};

struct BoundSelect {
    bool distinct = false;
    std::optional<std::int64_t> top;
    std::vector<BoundItem> items;
    std::vector<BoundSourcePtr> from;
    BoundExprPtr where;
    bool grouped = false;  // GROUP BY, or aggregates without one
    // Groups may be put together from smaller ones: no aggregate is DISTINCT, and no subquery of the list,
    // HAVING or ORDER BY reads the grouped rows.
    bool composable = false;
    std::vector<BoundExprPtr> groupBy;
    BoundExprPtr having;
};

struct BoundOrder {
    std::optional<std::size_t> item;  // position in the list, from 0, or
    BoundExprPtr expression;          // an expression over the sources (of a single select)
    bool descending = false;
};

struct BoundQuery {
    std::vector<BoundSelect> selects;
    std::vector<bool> unionAll;
    std::vector<BoundOrder> orderBy;
};

// --- statements --------------------------------------------------------------------------------

struct BoundRows {
    BoundQueryPtr query;
    std::vector<ResultColumn> columns;
};

// select ... into: the table with all it is to hold, and the rows, one item a column in order.
struct BoundSelectInto {
    ObjectInfo made;
    BoundQueryPtr query;
};

// insert: one item a column, converted to the columns' types. Of the columns that the statement leaves out
// only those stand here that may not be null and have no default: their item is an assigned null, which
// fails with the first row. The identity column is not among `columns`.
struct BoundInsert {
    std::string duckName;
    std::vector<std::string> columns;
    std::optional<std::string>
        identityColumn;   // numbered by the order of the query, going on from the highest
    BoundQueryPtr query;  // null for values
    std::vector<std::vector<BoundExprPtr>> values;
    std::optional<ObjectInfo> weakened;  // the table, if the new values take facts away from its columns
};

struct BoundAssignment {
    std::string column;
    BoundExprPtr value;
};
// update and delete: `target` is the number of the source that is changed; `from` holds it.
struct BoundUpdate {
    std::string duckName;
    int target;
    std::vector<BoundAssignment> assignments;
    std::vector<BoundSourcePtr> from;
    BoundExprPtr where;
    std::optional<ObjectInfo> weakened;  // as in BoundInsert
};
struct BoundDelete {
    std::string duckName;
    int target;
    std::vector<BoundSourcePtr> from;
    BoundExprPtr where;
};

struct BoundCreateTable {
    ObjectInfo made;  // defaults already as DuckDB's text
};
struct BoundCreateView {
    ObjectInfo made;
    BoundQueryPtr query;
};
// The declaration of a function that the engine has anyhow.
struct BoundCreateFunction {
    std::string name;
};
struct BoundCreateIndex {
    std::string duckName;  // of the table
    std::string index;
    bool unique = false;
    std::vector<ColumnInfo> columns;
};
struct BoundAlterColumn {
    ObjectInfo table;  // as it is afterwards
    std::string column;
};
struct BoundAddColumns {
    ObjectInfo table;  // as it is afterwards
    std::vector<std::string> added;
};
struct BoundDrop {
    std::vector<ObjectInfo> objects;
};

struct BoundIdentityInsert {
    IdentityInsert table;
    bool on = false;
};

using BoundStatement = std::variant<BoundRows, BoundSelectInto, BoundInsert, BoundUpdate, BoundDelete,
                                    BoundCreateTable, BoundCreateView, BoundCreateFunction, BoundCreateIndex,
                                    BoundAlterColumn, BoundAddColumns, BoundDrop, BoundIdentityInsert>;

// The binder's entry. Throws SqlError. `text` is the batch that the tree was made of.
BoundStatement Bind(const Statement& statement, std::string_view text, const Catalog& catalog);
BoundStatement BindRows(const Query& query, std::string_view text, const Catalog& catalog);

// The writer's entry: a bound statement as DuckDB SQL with the catalogue changes that follow from it.
StatementPlan Write(const BoundStatement& statement);

}  // namespace kavelin::embedded
