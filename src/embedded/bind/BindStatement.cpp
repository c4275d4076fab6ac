#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"

namespace kavelin::embedded {

namespace {

struct StatementBinder {
    BindContext& context;

    BoundStatement operator()(const SelectStatement& node) const
    {
        if (node.query->selects.front().into)
            return BindSelectInto(*node.query, context);
        return BindRowsOf(*node.query, context);
    }
    BoundStatement operator()(const InsertStatement& node) const { return BindInsert(node, context); }
    BoundStatement operator()(const UpdateStatement& node) const { return BindUpdate(node, context); }
    BoundStatement operator()(const DeleteStatement& node) const { return BindDelete(node, context); }
    BoundStatement operator()(const CreateTableStatement& node) const
    {
        return BindCreateTable(node, context);
    }
    BoundStatement operator()(const CreateViewStatement& node) const { return BindCreateView(node, context); }
    BoundStatement operator()(const CreateFunctionStatement& node) const
    {
        return BindCreateFunction(node, context);
    }
    BoundStatement operator()(const CreateIndexStatement& node) const
    {
        return BindCreateIndex(node, context);
    }
    BoundStatement operator()(const AlterColumnStatement& node) const
    {
        return BindAlterColumn(node, context);
    }
    BoundStatement operator()(const AddColumnsStatement& node) const { return BindAddColumns(node, context); }
    BoundStatement operator()(const DropStatement& node) const { return BindDrop(node, context); }
    BoundStatement operator()(const IdentityInsertStatement& node) const
    {
        return BindIdentityInsert(node, context);
    }
    BoundStatement operator()(const IfExistsStatement& node) const
    {
        throw SqlError(156, "IF EXISTS is bound in its parts, not as a whole.", node.then->place);
    }
};

}  // namespace

BoundRows BindRowsOf(const Query& query, BindContext& context)
{
    BoundRows bound;
    bound.query = BindQuery(query, QueryUse::Rows, context, nullptr);
    for (const ColumnInfo& column : OutputColumns(*bound.query))
        bound.columns.push_back({column.name, column.type});
    return bound;
}

BoundStatement Bind(const Statement& statement, std::string_view, const Catalog& catalog)
{
    BindContext context(catalog);
    return std::visit(StatementBinder{context}, statement.node);
}

BoundStatement BindRows(const Query& query, std::string_view, const Catalog& catalog)
{
    BindContext context(catalog);
    return BindRowsOf(query, context);
}

}  // namespace kavelin::embedded
