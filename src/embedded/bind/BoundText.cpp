#include "embedded/bind/BoundText.h"

#include <string_view>
#include <vector>

namespace kavelin::embedded {

namespace {

// A statement has a clause a line and an item a line; a query within an expression is one line.
enum class Layout { Lines, TypesBehind, OneLine };

std::string QueryText(const BoundQuery& query, Layout layout);

std::string Joined(const std::vector<std::string>& pieces, std::string_view between)
{
    std::string text;
    for (const std::string& piece : pieces)
        text += (text.empty() ? "" : std::string(between)) + piece;
    return text;
}

std::string AllText(const std::vector<BoundExprPtr>& expressions)
{
    std::vector<std::string> pieces;
    for (const BoundExprPtr& expression : expressions)
        pieces.push_back(ToText(*expression));
    return Joined(pieces, ", ");
}

// --- expressions -------------------------------------------------------------------------------

std::string_view Sign(ArithmeticOp op)
{
    constexpr std::string_view signs[] = {" + ", " - ", " * ", " / "};
    return signs[static_cast<std::size_t>(op)];
}

std::string_view Sign(ComparisonOp op)
{
    constexpr std::string_view signs[] = {" = ", " <> ", " < ", " <= ", " > ", " >= "};
    return signs[static_cast<std::size_t>(op)];
}

std::string_view NameOf(ConversionKind kind)
{
    constexpr std::string_view names[] = {"convert", "cast", "assign", "style121"};
    return names[static_cast<std::size_t>(kind)];
}

std::string_view NameOf(BoundFunctionKind kind)
{
    constexpr std::string_view names[] = {"isnull", "left", "year",      "month",
                                          "day",    "abs",  "object_id", "locale"};
    return names[static_cast<std::size_t>(kind)];
}

std::string_view NameOf(AggregateKind kind)
{
    constexpr std::string_view names[] = {"sum", "avg", "min", "max", "count", "count"};
    return names[static_cast<std::size_t>(kind)];
}

std::string Not(bool negated)
{
    return negated ? " not" : "";
}

struct ExpressionText {
    const SqlType& type;

    std::string Typed(const std::string& text) const { return text + ":" + ToText(type); }

    std::string operator()(const BoundLiteral& node) const
    {
        if (node.null)
            return Typed("null");
        const bool quoted = type.IsText() || type.kind == TypeKind::Datetime;
        return Typed(quoted ? "'" + node.text + "'" : node.text);
    }
    std::string operator()(const BoundColumn& node) const
    {
        return "s" + std::to_string(node.source) + "." + node.column;
    }
    std::string operator()(const BoundGroupKey& node) const
    {
        return "key " + std::to_string(node.index + 1);
    }
    std::string operator()(const BoundConversion& node) const
    {
        return std::string(NameOf(node.kind)) + "(" + ToText(*node.operand) + " as " + ToText(type) +
               (node.target.empty() ? "" : " to " + node.target) + ")";
    }
    std::string operator()(const BoundArithmetic& node) const
    {
        return Typed("(" + ToText(*node.left) + std::string(Sign(node.op)) + ToText(*node.right) + ")");
    }
    std::string operator()(const BoundConcat& node) const
    {
        return Typed("(" + ToText(*node.left) + " || " + ToText(*node.right) + ")");
    }
    std::string operator()(const BoundNegation& node) const
    {
        return Typed("-(" + ToText(*node.operand) + ")");
    }
    std::string operator()(const BoundDayDifference& node) const
    {
        return "days(" + ToText(*node.left) + " - " + ToText(*node.right) + ")";
    }
    std::string operator()(const BoundCase& node) const
    {
        std::string text = "case";
        for (const BoundWhen& branch : node.branches)
            text += " when " + ToText(*branch.condition) + " then " + ToText(*branch.result);
        if (node.otherwise)
            text += " else " + ToText(*node.otherwise);
        return Typed(text + " end");
    }
    std::string operator()(const BoundFunction& node) const
    {
        return Typed(std::string(NameOf(node.kind)) + "(" + AllText(node.arguments) + ")");
    }
    std::string operator()(const BoundAggregate& node) const
    {
        const std::string argument = node.argument ? ToText(*node.argument) : "*";
        return Typed(std::string(NameOf(node.kind)) + "(" + (node.distinct ? "distinct " : "") + argument +
                     ")");
    }
    std::string operator()(const BoundRunning& node) const
    {
        return Typed("running(" + ToText(*node.aggregate) +
                     (node.partition.empty() ? "" : " by " + AllText(node.partition)) + " up to " +
                     ToText(*node.order) + ")");
    }
    std::string operator()(const BoundIdentity&) const { return Typed("identity"); }
    std::string operator()(const BoundScalarSubquery& node) const
    {
        return "(" + QueryText(*node.query, Layout::OneLine) + ")";
    }
    std::string operator()(const BoundComparison& node) const
    {
        return "(" + ToText(*node.left) + std::string(Sign(node.op)) + ToText(*node.right) + ")";
    }
    std::string operator()(const BoundLogical& node) const
    {
        const char* word = node.op == LogicalOp::And ? " and " : " or ";
        return "(" + ToText(*node.left) + word + ToText(*node.right) + ")";
    }
    std::string operator()(const BoundNot& node) const { return "not " + ToText(*node.operand); }
    std::string operator()(const BoundNullTest& node) const
    {
        return "(" + ToText(*node.operand) + " is" + Not(node.negated) + " null)";
    }
    std::string operator()(const BoundBetween& node) const
    {
        return "(" + ToText(*node.operand) + Not(node.negated) + " between " + ToText(*node.low) + " and " +
               ToText(*node.high) + ")";
    }
    std::string operator()(const BoundInList& node) const
    {
        return "(" + ToText(*node.operand) + Not(node.negated) + " in (" + AllText(node.items) + "))";
    }
    std::string operator()(const BoundInQuery& node) const
    {
        return "(" + ToText(*node.operand) + Not(node.negated) + " in (" +
               QueryText(*node.query, Layout::OneLine) + "))";
    }
    std::string operator()(const BoundLike& node) const
    {
        return "(" + ToText(*node.operand) + Not(node.negated) + " like " + ToText(*node.pattern) + ")";
    }
    std::string operator()(const BoundExists& node) const
    {
        return "exists(" + QueryText(*node.query, Layout::OneLine) + ")";
    }
};

// --- queries -----------------------------------------------------------------------------------

std::string SourceText(const BoundSource& source)
{
    if (const auto* table = std::get_if<BoundTable>(&source.node))
        return table->duckName + " s" + std::to_string(table->number);
    if (const auto* derived = std::get_if<BoundDerived>(&source.node))
        return "(" + QueryText(*derived->query, Layout::OneLine) + ") s" + std::to_string(derived->number);
    const auto& join = std::get<BoundJoin>(source.node);
    const bool nested = std::holds_alternative<BoundJoin>(join.right->node);
    const std::string right = SourceText(*join.right);
    return SourceText(*join.left) + (join.kind == JoinKind::Left ? " left join " : " inner join ") +
           (nested ? "(" + right + ")" : right) + " on " + ToText(*join.on);
}

std::string TypeText(const SqlType& type, bool nullable, const TextFacts& facts)
{
    return ToText(type) + (nullable ? "" : " not null") +
           (type.IsText() && facts.noTrailingBlanks ? " trimmed" : "") +
           (type.IsText() && facts.noCase ? " caseless" : "");
}

std::string ItemText(const BoundItem& item, Layout layout)
{
    const BoundExpr& expression = *item.expression;
    if (layout == Layout::OneLine)
        return ToText(expression) + (item.name.empty() ? "" : " as " + item.name);
    const std::string name = "  " + (item.name.empty() ? "-" : item.name);
    const std::string type = TypeText(expression.type, expression.nullable, expression.facts);
    return layout == Layout::TypesBehind ? name + " = " + ToText(expression) + "\t" + type
                                         : name + ": " + type + " = " + ToText(expression);
}

std::string FromText(const std::vector<BoundSourcePtr>& from)
{
    std::vector<std::string> sources;
    for (const BoundSourcePtr& source : from)
        sources.push_back(SourceText(*source));
    return "from " + Joined(sources, ", ");
}

std::string OrderText(const std::vector<BoundOrder>& orderBy)
{
    std::vector<std::string> pieces;
    for (const BoundOrder& order : orderBy)
        pieces.push_back(
            (order.item ? "item " + std::to_string(*order.item + 1) : ToText(*order.expression)) +
            (order.descending ? " desc" : ""));
    return "order by " + Joined(pieces, ", ");
}

std::string SelectText(const BoundSelect& select, Layout layout)
{
    const std::string between = layout == Layout::OneLine ? " " : "\n";
    std::string text = "select";
    if (select.distinct)
        text += " distinct";
    if (select.top)
        text += " top " + std::to_string(*select.top);
    std::vector<std::string> items;
    for (const BoundItem& item : select.items)
        items.push_back(ItemText(item, layout));
    text += between + Joined(items, layout == Layout::OneLine ? ", " : "\n");
    if (!select.from.empty())
        text += between + FromText(select.from);
    if (select.where)
        text += between + "where " + ToText(*select.where);
    if (select.grouped)
        text += between + "group by " + (select.groupBy.empty() ? "all rows" : AllText(select.groupBy));
    if (select.having)
        text += between + "having " + ToText(*select.having);
    return text;
}

std::string QueryText(const BoundQuery& query, Layout layout)
{
    const std::string between = layout == Layout::OneLine ? " " : "\n";
    std::string text;
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        if (i > 0)
            text += between + (query.unionAll[i - 1] ? "union all" : "union") + between;
        text += SelectText(query.selects[i], layout);
    }
    if (!query.orderBy.empty())
        text += between + OrderText(query.orderBy);
    return text;
}

// --- statements --------------------------------------------------------------------------------

std::string OriginsText(const ColumnInfo& column)
{
    std::vector<std::string> origins;
    for (const ColumnOrigin& origin : column.origins)
        origins.push_back(origin.object + "." + origin.column);
    return origins.empty() ? "" : " as " + Joined(origins, ", ");
}

std::string ObjectText(const ObjectInfo& object, Layout layout)
{
    std::string text = object.duckName;
    for (const ColumnInfo& column : object.columns)
        text += "\n  " + column.name + (layout == Layout::TypesBehind ? "\t" : ": ") +
                TypeText(column.type, column.nullable, column.facts) + OriginsText(column) +
                (column.identity ? " identity" : "") +
                (column.defaultSql ? " default " + *column.defaultSql : "");
    return text;
}

std::string WeakenedText(const std::optional<ObjectInfo>& weakened, Layout layout)
{
    return weakened ? "\nweakens " + ObjectText(*weakened, layout) : "";
}

struct StatementText {
    Layout layout;

    std::string operator()(const BoundRows& node) const { return QueryText(*node.query, layout); }
    std::string operator()(const BoundSelectInto& node) const
    {
        return "make " + ObjectText(node.made, layout) + "\n" + QueryText(*node.query, layout);
    }
    std::string operator()(const BoundInsert& node) const
    {
        std::string text = "insert " + node.duckName + " (" + Joined(node.columns, ", ") + ")";
        if (node.identityColumn)
            text += " numbering " + *node.identityColumn;
        if (node.query)
            text += "\n" + QueryText(*node.query, layout);
        for (const auto& row : node.values)
            text += "\nvalues " + AllText(row);
        return text + WeakenedText(node.weakened, layout);
    }
    std::string operator()(const BoundUpdate& node) const
    {
        std::string text = "update " + node.duckName + " s" + std::to_string(node.target);
        for (const BoundAssignment& assignment : node.assignments)
            text += "\n  " + assignment.column + " = " + ToText(*assignment.value);
        text += "\n" + FromText(node.from);
        if (node.where)
            text += "\nwhere " + ToText(*node.where);
        return text + WeakenedText(node.weakened, layout);
    }
    std::string operator()(const BoundDelete& node) const
    {
        return "delete " + node.duckName + " s" + std::to_string(node.target) + "\n" + FromText(node.from) +
               (node.where ? "\nwhere " + ToText(*node.where) : "");
    }
    std::string operator()(const BoundCreateTable& node) const
    {
        return "create " + ObjectText(node.made, layout) +
               (node.made.primaryKey.empty() ? "" : "\nprimary key " + Joined(node.made.primaryKey, ", "));
    }
    std::string operator()(const BoundCreateView& node) const
    {
        return "create view " + ObjectText(node.made, layout) + "\n" + QueryText(*node.query, layout);
    }
    std::string operator()(const BoundCreateFunction& node) const { return "function " + node.name; }
    std::string operator()(const BoundCreateIndex& node) const
    {
        std::vector<std::string> names;
        for (const ColumnInfo& column : node.columns)
            names.push_back(column.name);
        return std::string("create ") + (node.unique ? "unique " : "") + "index " + node.index + " on " +
               node.duckName + " (" + Joined(names, ", ") + ")";
    }
    std::string operator()(const BoundAlterColumn& node) const
    {
        return "alter column " + node.column + " of " + ObjectText(node.table, layout);
    }
    std::string operator()(const BoundAddColumns& node) const
    {
        return "add " + Joined(node.added, ", ") + " to " + ObjectText(node.table, layout);
    }
    std::string operator()(const BoundDrop& node) const
    {
        std::vector<std::string> names;
        for (const ObjectInfo& object : node.objects)
            names.push_back(object.duckName);
        return "drop " + Joined(names, ", ");
    }
    std::string operator()(const BoundIdentityInsert& node) const
    {
        return std::string("identity insert ") + (node.on ? "on " : "off ") + node.table.name;
    }
};

}  // namespace

std::string ToText(const BoundExpr& expression)
{
    return std::visit(ExpressionText{expression.type}, expression.node);
}

std::string ToText(const BoundStatement& statement)
{
    return std::visit(StatementText{Layout::Lines}, statement);
}

std::string ToTextWithTypesBehind(const BoundStatement& statement)
{
    return std::visit(StatementText{Layout::TypesBehind}, statement);
}

}  // namespace kavelin::embedded
