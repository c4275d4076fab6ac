#include "embedded/write/DuckTypes.h"
#include "embedded/write/Kept.h"
#include "embedded/write/LeftJoin.h"
#include "embedded/write/Quote.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

std::string PositionalName(std::size_t index)
{
    return "c" + std::to_string(index);
}

std::string ItemName(const BoundItem& item, std::size_t index, bool positional)
{
    return positional || item.name.empty() ? PositionalName(index) : item.name;
}

bool IsIdentity(const BoundItem& item)
{
    return std::holds_alternative<BoundIdentity>(item.expression->node);
}

// Whether one select can be written as one select. A DISTINCT over texts that may be equal without being
// the same, and one whose rows are numbered, need a derived table.
bool IsPlain(const BoundQuery& query, bool numbered)
{
    if (query.selects.size() > 1)
        return false;
    const BoundSelect& select = query.selects.front();
    return !select.distinct ||
           (!numbered && std::all_of(select.items.begin(), select.items.end(), [](const auto& item) {
               const BoundExpr& expression = *item.expression;
               return !IsIdentity(item) && (!expression.type.IsText() || IsFolded(expression.facts) ||
                                            std::holds_alternative<BoundLiteral>(expression.node));
           }));
}

std::string Directed(const std::string& key, bool descending)
{
    return key + (descending ? " DESC NULLS LAST" : " ASC NULLS FIRST");
}

std::string OrderBy(const std::vector<std::string>& keys)
{
    return keys.empty() ? "" : "ORDER BY " + Join(keys, ", ");
}

std::string Numbered(const std::string& from, const std::string& order)
{
    return "CAST(" + from + " + row_number() OVER (" + order + ") AS INTEGER) AS \"number\"";
}

std::string Limit(const std::optional<std::int64_t>& top)
{
    return top ? " LIMIT " + std::to_string(*top) : "";
}

std::string Spaced(const std::string& clause)
{
    return clause.empty() ? "" : " " + clause;
}

}  // namespace

std::string Writer::Alias(int source)
{
    return "\"s" + std::to_string(source) + "\"";
}

std::string Writer::Query(const BoundQuery& query, const QueryForm& form)
{
    const Kept kept(objState);
    objState = {};
    return IsPlain(query, form.numberFrom.has_value())
               ? PlainQuery(query.selects.front(), query.orderBy, form)
               : WrappedQuery(query, form);
}

std::string Writer::PlainQuery(const BoundSelect& select, const std::vector<BoundOrder>& order,
                               const QueryForm& form)
{
    Parts parts;
    const bool inParts = GroupsInParts(select);
    const std::vector<GroupKey> keys = inParts ? GroupKeys(select, parts) : GroupKeys(select);
    const Kept kept(objState);
    objState.keys = &keys;
    objState.parts = inParts ? &parts : nullptr;
    const bool numbered = form.numberFrom || std::ranges::any_of(select.items, IsIdentity);
    objState.order = OrderKeys(select, order, numbered || select.top);

    std::vector<std::string> items;
    if (form.numberFrom)
        items.push_back(Numbered(*form.numberFrom, objState.order));
    for (std::size_t i = 0; i < select.items.size(); ++i)
        items.push_back(
            (form.bare && IsIdentity(select.items[i]) ? "NULL" : Value(*select.items[i].expression)) +
            " AS " + QuoteName(ItemName(select.items[i], i, form.positional)));
    if (items.empty())
        items.push_back("1 AS \"c0\"");  // exists(select * ...)

    std::string text = (select.distinct && !form.bare ? "SELECT DISTINCT " : "SELECT ") + Join(items, ", ");
    std::string groups;
    for (const GroupKey& key : keys)
        groups += (groups.empty() ? " GROUP BY " : ", ") + key.grouped;
    if (select.having)
        groups += " HAVING " + Clause(*select.having);
    text += inParts ? " FROM (" + PartQuery(select, parts) + ") AS " + parts.name : FromWhere(select);

    // A window has its rows in order already, and hands them on so.
    const bool ordered = !form.numberFrom || select.top;
    return text + groups + (ordered ? Spaced(objState.order) : "") + (form.bare ? "" : Limit(select.top));
}

// "ORDER BY ..." of a plain select. Where the order decides which rows come or which numbers they get,
// `breakTies`, rows that tie follow each other by their first columns, so that two runs give the same.
std::string Writer::OrderKeys(const BoundSelect& select, const std::vector<BoundOrder>& order, bool breakTies)
{
    std::vector<std::string> keys;
    for (const BoundOrder& by : order) {
        const BoundExpr& expression = by.item ? *select.items.at(*by.item).expression : *by.expression;
        // A constant orders nothing, and DuckDB would take a number for a position.
        if (std::holds_alternative<BoundLiteral>(expression.node) ||
            std::holds_alternative<BoundIdentity>(expression.node))
            continue;
        if (select.distinct && by.item)
            keys.push_back(Directed(std::to_string(*by.item + 1), by.descending));
        else
            keys.push_back(
                Directed(expression.type.IsText() ? Folded(expression) : Value(expression, Fit::Loose),
                         by.descending));
    }
    if (breakTies && !keys.empty() && !select.distinct)
        for (std::string& key : TieKeys(select))
            keys.push_back(std::move(key));
    return OrderBy(keys);
}

// A few columns tell rows apart; a list may have a hundred.
std::vector<std::string> Writer::TieKeys(const BoundSelect& select)
{
    constexpr std::size_t kMost = 3;
    std::vector<std::string> keys;
    for (const BoundItem& item : select.items) {
        if (keys.size() == kMost)
            break;
        if (std::holds_alternative<BoundColumn>(item.expression->node) ||
            std::holds_alternative<BoundGroupKey>(item.expression->node))
            keys.push_back(Directed(Value(*item.expression), false));
    }
    return keys;
}

// The rows of a union or a distinct as a derived table, and around it names, order, numbers and TOP.
std::string Writer::WrappedQuery(const BoundQuery& query, const QueryForm& form)
{
    const BoundSelect& first = query.selects.front();
    const std::string name = objScratch.NextName();
    std::vector<Column> columns;
    const std::string core = Union(query, columns);
    for (Column& column : columns)
        column.name = name + "." + QuoteName(column.name);

    std::vector<std::string> keys;
    for (const BoundOrder& by : query.orderBy) {
        const Column& column = columns.at(by.item.value());
        keys.push_back(
            Directed(column.text ? FoldAlone(column.name, column.facts) : column.name, by.descending));
    }
    const Kept kept(objState);
    objState.order = OrderBy(keys);

    std::vector<std::string> items;
    if (form.numberFrom)
        items.push_back(Numbered(*form.numberFrom, objState.order));
    for (std::size_t i = 0; i < first.items.size(); ++i)
        items.push_back((IsIdentity(first.items[i]) ? Value(*first.items[i].expression) : columns[i].name) +
                        " AS " + QuoteName(ItemName(first.items[i], i, form.positional)));
    return "SELECT " + Join(items, ", ") + " FROM (" + core + ") AS " + name + Spaced(objState.order) +
           (query.selects.size() == 1 ? Limit(first.top) : "");
}

// The selects of a union one behind the other; a single distinct select is a union of one. `columns` gets
// what is known of the result's columns, named c0, c1 ...
std::string Writer::Union(const BoundQuery& query, std::vector<Column>& columns)
{
    for (const BoundSelect& select : query.selects) {
        const std::vector<Column> part = ColumnsOf(select);
        columns.resize(part.size(), {"", false, {true, true}});
        for (std::size_t k = 0; k < part.size(); ++k)
            columns[k] = {part[k].name, columns[k].text || part[k].text,
                          Both(columns[k].facts, part[k].facts)};
    }
    if (query.selects.size() == 1)
        return Distinct("(" + PlainQuery(query.selects[0], {}, {.positional = true, .bare = true}) + ")",
                        columns);

    // A UNION without ALL leaves nothing to do for those before it.
    const auto last = std::find(query.unionAll.rbegin(), query.unionAll.rend(), false);
    const auto distinctAt = static_cast<std::size_t>(query.unionAll.rend() - last);

    std::string core;
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        core += (i == 0 ? "" : " UNION ALL ") + UnionPart(query.selects[i]);
        if (i == distinctAt && i > 0)
            core = "(" + Distinct(core, columns) + ")";
    }
    return core;
}

std::string Writer::UnionPart(const BoundSelect& select)
{
    if (!select.distinct)
        return "(" + PlainQuery(select, {}, {.positional = true}) + ")";
    const std::string rows = "(" + PlainQuery(select, {}, {.positional = true, .bare = true}) + ")";
    return "(" + Distinct(rows, ColumnsOf(select)) + Limit(select.top) + ")";
}

std::vector<Writer::Column> Writer::ColumnsOf(const BoundSelect& select)
{
    std::vector<Column> columns;
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const BoundExpr& expression = *select.items[i].expression;
        columns.push_back({PositionalName(i), expression.type.IsText(), expression.facts});
    }
    return columns;
}

// Of rows whose texts T-SQL takes for equal, one: the first by its characters, so that it is always the same.
std::string Writer::Distinct(const std::string& core, const std::vector<Column>& columns)
{
    const std::string name = objScratch.NextName();
    std::vector<std::string> shown, grouped;
    for (const Column& column : columns) {
        const std::string value = name + "." + QuoteName(column.name);
        const bool folds = column.text && !IsFolded(column.facts);
        shown.push_back((folds ? "min(" + value + ")" : value) + " AS " + QuoteName(column.name));
        grouped.push_back(folds ? FoldAlone(value, column.facts) : value);
    }
    return "SELECT " + Join(shown, ", ") + " FROM (" + core + ") AS " + name + " GROUP BY " +
           Join(grouped, ", ");
}

// --- FROM --------------------------------------------------------------------------------------

std::string Writer::Sources(const std::vector<BoundSourcePtr>& sources)
{
    std::vector<std::string> written;
    for (const BoundSourcePtr& source : sources)
        written.push_back(Source(*source));
    return Join(written, ", ");
}

namespace {

// Of a table or derived table.
int NumberOf(const BoundSource& source)
{
    const auto* table = std::get_if<BoundTable>(&source.node);
    return table ? table->number : std::get<BoundDerived>(source.node).number;
}

}  // namespace

std::string Writer::Source(const BoundSource& source)
{
    if (const auto* table = std::get_if<BoundTable>(&source.node))
        return table->duckName + " AS " + Alias(table->number);
    if (const auto* derived = std::get_if<BoundDerived>(&source.node))
        return "(" + Query(*derived->query) + ") AS " + Alias(derived->number);

    const auto& join = std::get<BoundJoin>(source.node);
    if (NeedsInnerJoin(join) && NumberOf(*join.right) != intRowsOf)
        return Source(*join.left) + " LEFT JOIN LATERAL (SELECT * FROM " + Source(*join.right) + " WHERE " +
               Clause(*join.on) + ") AS " + Alias(NumberOf(*join.right)) + " ON TRUE";
    const bool nested = std::holds_alternative<BoundJoin>(join.right->node);
    const std::string right = nested ? "(" + Source(*join.right) + ")" : Source(*join.right);
    return Source(*join.left) + (join.kind == JoinKind::Left ? " LEFT JOIN " : " INNER JOIN ") + right +
           " ON " + Clause(*join.on);
}

}  // namespace kavelin::embedded
