// Binding: names get their source and column, expressions their type.
//
// All functions here have one shape. In go a piece of the syntax tree and the scope in which its names
// are looked up; out comes the bound piece. A scope grows while its FROM is bound and is only read after
// that, but for its notes on what was met (aggregates, columns). What T-SQL refuses is thrown as
// SqlError with the place of the word, where the clause that forbids it is bound.
//
// One file binds one clause or one kind of node; BindStatement.cpp holds the entry.
#pragma once

#include "embedded/bind/BoundTree.h"
#include "embedded/bind/Scope.h"

#include <memory>
#include <vector>

namespace kavelin::embedded {

// --- expressions -------------------------------------------------------------------------------

BoundExprPtr BindValue(const Expr& expression, Scope& scope);
BoundExprPtr BindCondition(const Expr& expression, Scope& scope);

BoundExprPtr BindColumn(const ColumnRef& column, Place place, Scope& scope);

// A column of a source that is known already.
BoundExprPtr ColumnOf(const Source& source, const ColumnInfo& column, Place place, const Scope& scope);

BoundExprPtr BindArithmetic(const Arithmetic& arithmetic, Place place, Scope& scope);
BoundExprPtr BindSigned(const Signed& expression, Place place, Scope& scope);
BoundExprPtr BindCase(const CaseExpr& expression, Place place, Scope& scope);
BoundExprPtr BindCast(const CastExpr& expression, Place place, Scope& scope);
BoundExprPtr BindConvert(const ConvertExpr& expression, Place place, Scope& scope);
BoundExprPtr BindFunction(const FunctionCall& call, Place place, Scope& scope);

// `left = right` and its like, converted to one type: also what a simple case compares.
BoundExprPtr BindComparison(ComparisonOp op, BoundExprPtr left, BoundExprPtr right, Place place);

// The expression inside brackets, however many.
const Expr& WithoutBrackets(const Expr& expression);

// --- queries -----------------------------------------------------------------------------------

// Where a query stands, which decides what it may hold.
enum class QueryUse {
    Rows,
    Into,
    Insert,
    View,
    Derived,
    Scalar,
    In,
    Exists,
};

// Binds a query whose surroundings are `outer`, null for that of a statement.
BoundQueryPtr BindQuery(const Query& query, QueryUse use, BindContext& context, Scope* outer);

// A query within an expression.
BoundQueryPtr BindSubquery(const Query& query, QueryUse use, Place place, Scope& scope);

// The columns that a query gives: names as written (maybe empty), types, nullability, facts.
std::vector<ColumnInfo> OutputColumns(const BoundQuery& query);

// As OutputColumns, for a table, view or derived table made of them. Throws through `refuse`, which is
// asked for the error of a column without a name (empty) and of a name that stands twice.
using NameError = SqlError (*)(const std::string& column, std::size_t position, const std::string& object,
                               Place place);
std::vector<ColumnInfo> NamedColumns(const BoundQuery& query, const std::string& object, Place place,
                                     NameError refuse);

// The FROM of a statement: fills the scope.
std::vector<BoundSourcePtr> BindFrom(const std::vector<TableSourcePtr>& from, Scope& scope);

// Adds a table to the scope.
BoundSourcePtr BindNamedTable(const NamedTable& table, Place place, Scope& scope);

// WHERE; null stays null.
BoundExprPtr BindWhere(const ExprPtr& where, Scope& scope);

// The items of a select list, stars expanded.
std::vector<BoundItem> BindSelectList(const Select& select, QueryUse use, Scope& scope);

std::vector<BoundExprPtr> BindGroupBy(const std::vector<ExprPtr>& groupBy, Scope& scope);

// Puts group keys in place of the expressions that were grouped by. Throws SqlError 8120, 8121 or 8127, as
// `clause` tells, for a column that is neither grouped nor aggregated. False if groups of the expression
// cannot be put together from smaller ones, see BoundSelect.
bool UseGroupKeys(BoundExprPtr& expression, const std::vector<BoundExprPtr>& keys, const Scope& scope,
                  Clause clause);

// ORDER BY of a single select: what names an item of the list refers to it, the rest is bound over the
// sources. What turns out to equal an item is referred to it by SettleOrder, once groups are settled.
std::vector<BoundOrder> BindOrderBy(const std::vector<OrderItem>& orderBy, const BoundSelect& select,
                                    Scope& scope);
void SettleOrder(std::vector<BoundOrder>& orderBy, const BoundSelect& select);

// ORDER BY of a union: names and positions of its columns only.
std::vector<BoundOrder> BindUnionOrder(const std::vector<OrderItem>& orderBy, const BoundSelect& first);

// --- rows that go somewhere --------------------------------------------------------------------

// Converts what a query gives: each column to the type of `targets`, by Assign where `kind` is
// Assignment, else by Convert. A query whose rows or their order would change with the values
// (distinct, union, order by a converted item) is put inside another select that converts.
void ConvertOutput(BoundQueryPtr& query, const std::vector<ColumnInfo>& targets, ConversionKind kind,
                   BindContext& context);

// --- statements --------------------------------------------------------------------------------

BoundRows BindRowsOf(const Query& query, BindContext& context);
BoundSelectInto BindSelectInto(const Query& query, BindContext& context);
BoundInsert BindInsert(const InsertStatement& insert, BindContext& context);
BoundUpdate BindUpdate(const UpdateStatement& update, BindContext& context);
BoundDelete BindDelete(const DeleteStatement& statement, BindContext& context);
BoundCreateTable BindCreateTable(const CreateTableStatement& create, BindContext& context);
BoundCreateView BindCreateView(const CreateViewStatement& create, BindContext& context);
// A server needs the declaration of DBO.UDF_GetLocaleID(); here it is taken and changes nothing, since the
// function answers the connection's language. Any other function is refused.
BoundCreateFunction BindCreateFunction(const CreateFunctionStatement& create, BindContext& context);
BoundCreateIndex BindCreateIndex(const CreateIndexStatement& create, BindContext& context);
BoundAlterColumn BindAlterColumn(const AlterColumnStatement& alter, BindContext& context);
BoundAddColumns BindAddColumns(const AddColumnsStatement& add, BindContext& context);
BoundDrop BindDrop(const DropStatement& drop, BindContext& context);
BoundIdentityInsert BindIdentityInsert(const IdentityInsertStatement& set, BindContext& context);

}  // namespace kavelin::embedded
