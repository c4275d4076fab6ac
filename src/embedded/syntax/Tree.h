// The syntax tree of a T-SQL batch: plain data, made by the parser, read by the binder.
//
// Every node keeps its place in the batch text, so that an error found three stages later still
// points at the word that caused it. Names are kept as they were written, without brackets; comparing
// them without regard to case is the reader's business. Brackets around an expression are kept as a
// node of their own: `select (a) from t` names its column `a`, and a written tree reads like its source.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kavelin::embedded {

// Bytes of the batch text, counted from 0.
struct Place {
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
};

struct Name {
    std::string text;        // without brackets, "]]" already made "]"
    bool bracketed = false;  // written as [x]
    Place place;
};

// `x`, `dbo.x`, `tempdb..x`, `tempdb.dbo.x`. `database` without `schema` is the form with two dots.
struct ObjectName {
    std::optional<Name> database;
    std::optional<Name> schema;
    Name object;
    Place place;
};

// A type as written: `decimal(38, 6)`, `nvarchar (30)`, `int`, `nvarchar(max)`.
struct TypeName {
    std::string name;
    std::optional<int> first;   // length or precision; -1 is `max`
    std::optional<int> second;  // scale
    Place place;
};

struct Expr;
struct Query;
using ExprPtr = std::unique_ptr<Expr>;
using QueryPtr = std::unique_ptr<Query>;

// --- expressions -------------------------------------------------------------------------------

struct NumberLiteral {
    std::string text;  // as written, without a sign: `07`, `0.5`, `1e3`
};

struct TextLiteral {
    std::string value;      // doubled quotes already made single
    bool national = false;  // written N'...'
};

struct NullLiteral {};

// `c`, `t.c`, `[t].c`, `vossystem..ua_period.iYear`.
struct ColumnRef {
    std::optional<ObjectName> table;
    Name column;
};

// `*`, `t.*`; only in a select list, in `count(*)` and in `exists(select * ...)`.
struct Star {
    std::optional<ObjectName> table;
};

struct Brackets {
    ExprPtr inner;
};

enum class Sign { Plus, Minus };
struct Signed {
    Sign sign;
    ExprPtr operand;
};

enum class ArithmeticOp { Add, Subtract, Multiply, Divide };
struct Arithmetic {
    ArithmeticOp op;
    ExprPtr left, right;
};

struct WhenExpr {  // one branch of a case; `condition` is a value in a simple case
    ExprPtr condition, result;
};
struct CaseExpr {
    ExprPtr operand;  // null in a searched case
    std::vector<WhenExpr> branches;
    ExprPtr otherwise;  // null without else
};

struct CastExpr {  // cast(x as t)
    ExprPtr operand;
    TypeName type;
};
struct ConvertExpr {  // convert(t, x) and convert(t, x, style)
    TypeName type;
    ExprPtr operand;
    std::optional<int> style;
};

// A function, an aggregate, or a function of the schema: `isnull(a, b)`, `sum(x)`, `count(*)`,
// `count(distinct x)`, `DBO.UDF_GetLocaleID()`.
struct FunctionCall {
    ObjectName function;
    bool distinct = false;
    std::vector<ExprPtr> arguments;
};

// `IDENTITY(int, 1, 1)` in the list of a select into.
struct IdentityExpr {
    TypeName type;
    std::int64_t seed = 1, increment = 1;
};

struct ScalarSubquery {
    QueryPtr query;
};

// Conditions. They are expressions in the tree; that none stands where a value is asked for is the
// parser's to see to.
enum class ComparisonOp { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };
struct Comparison {
    ComparisonOp op;
    ExprPtr left, right;
};

enum class LogicalOp { And, Or };
struct Logical {
    LogicalOp op;
    ExprPtr left, right;
};

struct NotExpr {
    ExprPtr operand;
};
struct IsNullTest {
    ExprPtr operand;
    bool negated = false;
};
struct BetweenTest {
    ExprPtr operand, low, high;
    bool negated = false;
};
struct InListTest {
    ExprPtr operand;
    std::vector<ExprPtr> items;
    bool negated = false;
};
struct InQueryTest {
    ExprPtr operand;
    QueryPtr query;
    bool negated = false;
};
struct LikeTest {
    ExprPtr operand, pattern;
    bool negated = false;
};
struct ExistsTest {
    QueryPtr query;
};

struct Expr {
    std::variant<NumberLiteral, TextLiteral, NullLiteral, ColumnRef, Star, Brackets, Signed, Arithmetic,
                 CaseExpr, CastExpr, ConvertExpr, FunctionCall, IdentityExpr, ScalarSubquery, Comparison,
                 Logical, NotExpr, IsNullTest, BetweenTest, InListTest, InQueryTest, LikeTest, ExistsTest>
        node;
    Place place;
};

// --- queries -----------------------------------------------------------------------------------

enum class AliasForm { None, As, Bare, Text };  // `x as a`, `x a`, `x as N'a'`
struct SelectItem {
    ExprPtr expression;
    AliasForm form = AliasForm::None;
    std::optional<Name> alias;
};

struct TableSource;
using TableSourcePtr = std::unique_ptr<TableSource>;

struct NamedTable {
    ObjectName name;
    std::optional<Name> alias;
};
struct DerivedTable {
    QueryPtr query;
    Name alias;
};
enum class JoinKind { Inner, Left };
struct JoinedTable {
    JoinKind kind;
    TableSourcePtr left, right;
    ExprPtr on;
};
struct TableSource {
    std::variant<NamedTable, DerivedTable, JoinedTable> node;
    Place place;
};

struct Select {
    bool distinct = false;
    std::optional<std::int64_t> top;
    std::vector<SelectItem> items;
    std::optional<ObjectName> into;    // of the first select of a statement only
    std::vector<TableSourcePtr> from;  // several: joined by commas; none: a select without FROM
    ExprPtr where;                     // null when absent, so are the next ones
    std::vector<ExprPtr> groupBy;
    ExprPtr having;
    Place place;
};

struct OrderItem {
    ExprPtr expression;
    bool descending = false;
};

// One select, or several joined by UNION, with the order of the whole.
struct Query {
    std::vector<Select> selects;  // at least one
    std::vector<bool> unionAll;   // one fewer than selects
    std::vector<OrderItem> orderBy;
    Place place;
};

// --- statements --------------------------------------------------------------------------------

struct Statement;
using StatementPtr = std::unique_ptr<Statement>;

struct SelectStatement {
    QueryPtr query;
};

struct InsertStatement {
    ObjectName target;
    std::vector<Name> columns;                 // empty: by position
    QueryPtr query;                            // null for values
    std::vector<std::vector<ExprPtr>> values;  // rows of `values (...), (...)`
};

struct Assignment {
    std::optional<ObjectName> table;  // the qualifier in front of the column, if there is one
    Name column;
    ExprPtr value;
};
struct UpdateStatement {
    ObjectName target;  // a table, or an alias of `from`
    std::vector<Assignment> assignments;
    std::vector<TableSourcePtr> from;
    ExprPtr where;
};

struct DeleteStatement {
    ObjectName target;  // a table, or an alias of `from`
    std::vector<TableSourcePtr> from;
    ExprPtr where;
};

struct ColumnDefinition {
    Name name;
    TypeName type;
    std::optional<bool> nullable;  // written NULL or NOT NULL
    bool identity = false;
    std::int64_t seed = 1, increment = 1;
    ExprPtr defaultValue;
    bool primaryKey = false;
};
struct CreateTableStatement {
    ObjectName table;
    std::vector<ColumnDefinition> columns;
    std::vector<Name> primaryKey;  // of `primary key (a, b)` as a table constraint
};
struct CreateViewStatement {
    ObjectName view;
    QueryPtr query;
};
// `create function f() returns t as begin return LITERAL end`: one that takes nothing and answers a literal.
struct CreateFunctionStatement {
    ObjectName function;
    TypeName returns;
    ExprPtr answer;
};
struct CreateIndexStatement {
    Name index;
    bool unique = false;
    ObjectName table;
    std::vector<Name> columns;
};
struct AlterColumnStatement {
    ObjectName table;
    ColumnDefinition column;
};
struct AddColumnsStatement {
    ObjectName table;
    std::vector<ColumnDefinition> columns;
};
struct DropStatement {
    bool view = false;  // drop view, else drop table
    std::vector<ObjectName> objects;
};
// `set identity_insert T on`: what is inserted into T brings its numbers.
struct IdentityInsertStatement {
    ObjectName table;
    bool on = false;
};
struct IfExistsStatement {
    QueryPtr query;
    bool negated = false;
    StatementPtr then;
};

struct Statement {
    std::variant<SelectStatement, InsertStatement, UpdateStatement, DeleteStatement, CreateTableStatement,
                 CreateViewStatement, CreateFunctionStatement, CreateIndexStatement, AlterColumnStatement,
                 AddColumnsStatement, DropStatement, IdentityInsertStatement, IfExistsStatement>
        node;
    Place place;
};

}  // namespace kavelin::embedded
