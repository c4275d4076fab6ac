#include "embedded/syntax/TreeText.h"

#include "embedded/syntax/Operators.h"
#include "frame/Text.h"

#include <string_view>
#include <utility>

namespace kavelin::embedded {

namespace {

// Visits the nodes of a tree; each operator() writes one kind of node.
class Writer {
  public:
    explicit Writer(TextForm form) : blnAllBrackets(form == TextForm::AllBrackets) {}

    std::string Taken() { return std::move(strText); }

    void Write(const Statement& statement) { std::visit(*this, statement.node); }
    void Write(const Expr& expression) { std::visit(*this, expression.node); }
    void Write(const Query& query)
    {
        for (std::size_t i = 0; i < query.selects.size(); ++i) {
            if (i > 0)
                Put(query.unionAll[i - 1] ? " union all " : " union ");
            Write(query.selects[i]);
        }
        if (!query.orderBy.empty()) {
            Put(" order by ");
            WriteList(query.orderBy);
        }
    }

    // --- expressions
    void operator()(const NumberLiteral& node) { Put(node.text); }
    void operator()(const TextLiteral& node) { PutText(node.value, node.national); }
    void operator()(const NullLiteral&) { Put("null"); }
    void operator()(const ColumnRef& node)
    {
        WriteQualifier(node.table);
        Write(node.column);
    }
    void operator()(const Star& node)
    {
        WriteQualifier(node.table);
        Put("*");
    }
    void operator()(const Brackets& node)
    {
        if (blnAllBrackets)
            Write(*node.inner);
        else
            PutInBrackets([&] { Write(*node.inner); });
    }
    void operator()(const Signed& node)
    {
        Operator([&] {
            Put(node.sign == Sign::Plus ? "+" : "-");
            if (std::holds_alternative<Signed>(node.operand->node) && !blnAllBrackets)
                Put(" ");  // two signs in a row would be a comment
            Write(*node.operand);
        });
    }
    void operator()(const Arithmetic& node) { Binary(*node.left, OperatorText(node.op), *node.right); }
    void operator()(const CaseExpr& node)
    {
        Put("case");
        if (node.operand)
            Put(" ", *node.operand);
        for (const WhenExpr& branch : node.branches) {
            Put(" when ", *branch.condition);
            Put(" then ", *branch.result);
        }
        if (node.otherwise)
            Put(" else ", *node.otherwise);
        Put(" end");
    }
    void operator()(const CastExpr& node)
    {
        Put("cast(", *node.operand);
        Put(" as ");
        Write(node.type);
        Put(")");
    }
    void operator()(const ConvertExpr& node)
    {
        Put("convert(");
        Write(node.type);
        Put(", ", *node.operand);
        if (node.style)
            Put(", " + std::to_string(*node.style));
        Put(")");
    }
    void operator()(const FunctionCall& node)
    {
        Write(node.function);
        PutInBrackets([&] {
            Put(node.distinct ? "distinct " : "");
            WriteList(node.arguments);
        });
    }
    void operator()(const IdentityExpr& node)
    {
        Put("identity(");
        Write(node.type);
        Put(", " + std::to_string(node.seed) + ", " + std::to_string(node.increment) + ")");
    }
    void operator()(const ScalarSubquery& node) { WriteSubquery(*node.query); }

    // --- conditions
    void operator()(const Comparison& node) { Binary(*node.left, OperatorText(node.op), *node.right); }
    void operator()(const Logical& node)
    {
        Binary(*node.left, node.op == LogicalOp::And ? " and " : " or ", *node.right);
    }
    void operator()(const NotExpr& node)
    {
        Operator([&] { Put("not ", *node.operand); });
    }
    void operator()(const IsNullTest& node)
    {
        Operator([&] {
            Write(*node.operand);
            Put(node.negated ? " is not null" : " is null");
        });
    }
    void operator()(const BetweenTest& node)
    {
        Operator([&] {
            Write(*node.operand);
            Put(node.negated ? " not between " : " between ", *node.low);
            Put(" and ", *node.high);
        });
    }
    void operator()(const InListTest& node)
    {
        Operator([&] {
            Write(*node.operand);
            Put(node.negated ? " not in " : " in ");
            PutInBrackets([&] { WriteList(node.items); });
        });
    }
    void operator()(const InQueryTest& node)
    {
        Operator([&] {
            Write(*node.operand);
            Put(node.negated ? " not in " : " in ");
            WriteSubquery(*node.query);
        });
    }
    void operator()(const LikeTest& node)
    {
        Operator([&] {
            Write(*node.operand);
            Put(node.negated ? " not like " : " like ", *node.pattern);
        });
    }
    void operator()(const ExistsTest& node)
    {
        Put("exists ");
        WriteSubquery(*node.query);
    }

    // --- sources of rows
    void operator()(const NamedTable& node)
    {
        Write(node.name);
        if (node.alias) {
            Put(" ");
            Write(*node.alias);
        }
    }
    void operator()(const DerivedTable& node)
    {
        WriteSubquery(*node.query);
        Put(" ");
        Write(node.alias);
    }
    void operator()(const JoinedTable& node)
    {
        Write(node.left);
        Put(node.kind == JoinKind::Inner ? " inner join " : " left join ");
        Write(node.right);
        Put(" on ", *node.on);
    }

    // --- statements
    void operator()(const SelectStatement& node) { Write(*node.query); }
    void operator()(const InsertStatement& node)
    {
        Put("insert into ");
        Write(node.target);
        if (!node.columns.empty()) {
            Put(" ");
            WriteNamesInBrackets(node.columns);
        }
        if (node.query) {
            Put(" ");
            Write(*node.query);
            return;
        }
        Put(" values ");
        WriteList(node.values);
    }
    void operator()(const UpdateStatement& node)
    {
        Put("update ");
        Write(node.target);
        Put(" set ");
        WriteList(node.assignments);
        WriteFrom(node.from);
        WriteWhere(node.where);
    }
    void operator()(const DeleteStatement& node)
    {
        Put(node.from.empty() ? "delete from " : "delete ");
        Write(node.target);
        WriteFrom(node.from);
        WriteWhere(node.where);
    }
    void operator()(const CreateTableStatement& node)
    {
        Put("create table ");
        Write(node.table);
        Put(" ");
        PutInBrackets([&] {
            WriteList(node.columns);
            if (!node.primaryKey.empty()) {
                Put(node.columns.empty() ? "primary key " : ", primary key ");
                WriteNamesInBrackets(node.primaryKey);
            }
        });
    }
    void operator()(const CreateViewStatement& node)
    {
        Put("create view ");
        Write(node.view);
        Put(" as ");
        Write(*node.query);
    }
    void operator()(const CreateFunctionStatement& node)
    {
        Put("create function ");
        Write(node.function);
        Put("() returns ");
        Write(node.returns);
        Put(" as begin return ");
        Write(*node.answer);
        Put(" end");
    }
    void operator()(const CreateIndexStatement& node)
    {
        Put(node.unique ? "create unique index " : "create index ");
        Write(node.index);
        Put(" on ");
        Write(node.table);
        Put(" ");
        WriteNamesInBrackets(node.columns);
    }
    void operator()(const AlterColumnStatement& node)
    {
        Put("alter table ");
        Write(node.table);
        Put(" alter column ");
        Write(node.column);
    }
    void operator()(const AddColumnsStatement& node)
    {
        Put("alter table ");
        Write(node.table);
        Put(" add ");
        WriteList(node.columns);
    }
    void operator()(const DropStatement& node)
    {
        Put(node.view ? "drop view " : "drop table ");
        WriteList(node.objects);
    }
    void operator()(const IdentityInsertStatement& node)
    {
        Put("set identity_insert ");
        Write(node.table);
        Put(node.on ? " on" : " off");
    }
    void operator()(const IfExistsStatement& node)
    {
        Put(node.negated ? "if not exists " : "if exists ");
        WriteSubquery(*node.query);
        Put(" ");
        Write(*node.then);
    }

  private:
    void Put(std::string_view text) { strText += text; }
    void Put(std::string_view text, const Expr& expression)
    {
        Put(text);
        Write(expression);
    }
    void PutText(const std::string& value, bool national)
    {
        Put(national ? "N'" : "'");
        Put(ReplaceAll(value, "'", "''"));
        Put("'");
    }
    template <class Inner>
    void PutInBrackets(Inner inner)
    {
        Put("(");
        inner();
        Put(")");
    }
    template <class Inner>
    void Operator(Inner inner)
    {
        if (blnAllBrackets)
            PutInBrackets(inner);
        else
            inner();
    }
    void Binary(const Expr& left, std::string_view op, const Expr& right)
    {
        Operator([&] {
            Write(left);
            Put(op, right);
        });
    }

    template <class Item>
    void WriteList(const std::vector<Item>& items)
    {
        std::string_view separator;
        for (const Item& item : items) {
            Put(separator);
            Write(item);
            separator = ", ";
        }
    }
    void Write(const ExprPtr& expression) { Write(*expression); }
    void Write(const TableSourcePtr& source) { std::visit(*this, source->node); }

    void Write(const Name& name)
    {
        if (name.bracketed)
            Put("[" + ReplaceAll(name.text, "]", "]]") + "]");
        else
            Put(name.text);
    }
    void WriteNamesInBrackets(const std::vector<Name>& names)
    {
        PutInBrackets([&] { WriteList(names); });
    }
    void Write(const ObjectName& name)
    {
        if (name.database) {
            Write(*name.database);
            Put(".");
        }
        if (name.schema)
            Write(*name.schema);
        if (name.database || name.schema)
            Put(".");
        Write(name.object);
    }
    void WriteQualifier(const std::optional<ObjectName>& table)
    {
        if (table) {
            Write(*table);
            Put(".");
        }
    }
    void Write(const TypeName& type)
    {
        Put(type.name);
        if (!type.first)
            return;
        PutInBrackets([&] {
            Put(*type.first < 0 ? "max" : std::to_string(*type.first));
            if (type.second)
                Put(", " + std::to_string(*type.second));
        });
    }

    void WriteSubquery(const Query& query)
    {
        PutInBrackets([&] { Write(query); });
    }
    void Write(const Select& select)
    {
        Put(select.distinct ? "select distinct " : "select ");
        if (select.top)
            Put("top " + std::to_string(*select.top) + " ");
        WriteList(select.items);
        if (select.into) {
            Put(" into ");
            Write(*select.into);
        }
        WriteFrom(select.from);
        WriteWhere(select.where);
        if (!select.groupBy.empty()) {
            Put(" group by ");
            WriteList(select.groupBy);
        }
        if (select.having)
            Put(" having ", *select.having);
    }
    void Write(const SelectItem& item)
    {
        Write(*item.expression);
        if (!item.alias)
            return;
        Put(item.form == AliasForm::Bare ? " " : " as ");
        if (item.form == AliasForm::Text)
            PutText(item.alias->text, true);
        else
            Write(*item.alias);
    }
    void Write(const OrderItem& item)
    {
        Write(*item.expression);
        Put(item.descending ? " desc" : "");
    }
    void WriteFrom(const std::vector<TableSourcePtr>& sources)
    {
        if (sources.empty())
            return;
        Put(" from ");
        WriteList(sources);
    }
    void WriteWhere(const ExprPtr& condition)
    {
        if (condition)
            Put(" where ", *condition);
    }
    void Write(const Assignment& assignment)
    {
        WriteQualifier(assignment.table);
        Write(assignment.column);
        Put(" = ", *assignment.value);
    }
    void Write(const std::vector<ExprPtr>& row)
    {
        PutInBrackets([&] { WriteList(row); });
    }
    void Write(const ColumnDefinition& column)
    {
        Write(column.name);
        Put(" ");
        Write(column.type);
        if (column.identity)
            Put(" identity(" + std::to_string(column.seed) + ", " + std::to_string(column.increment) + ")");
        if (column.nullable)
            Put(*column.nullable ? " null" : " not null");
        if (column.defaultValue)
            Put(" default ", *column.defaultValue);
        if (column.primaryKey)
            Put(" primary key");
    }

    std::string strText;
    bool blnAllBrackets;
};

template <class Node>
std::string Written(const Node& node, TextForm form)
{
    Writer writer(form);
    writer.Write(node);
    return writer.Taken();
}

}  // namespace

std::string WriteText(const Statement& statement, TextForm form)
{
    return Written(statement, form);
}

std::string WriteText(const Query& query, TextForm form)
{
    return Written(query, form);
}

std::string WriteText(const Expr& expression, TextForm form)
{
    return Written(expression, form);
}

}  // namespace kavelin::embedded
