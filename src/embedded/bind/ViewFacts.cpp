// Facts of the columns of views. A view stays while the facts of the columns below it change, so it keeps the
// columns themselves: those whose texts, or parts of them, come out of it. All ways from text to text that
// the binder knows pass a fact on only if all texts that go in have it; so what a column of the view has while
// they all have every fact, it has of each fact as long as they all have that.
#include "embedded/bind/BoundWalk.h"
#include "embedded/bind/Facts.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kavelin::embedded {

namespace {

using Objects = std::map<int, const ObjectInfo*>;

class OriginSearch {
  public:
    OriginSearch(BoundQuery& query, const Objects& objects) : objObjects(objects) { NoteDerived(query); }

    // The columns that the n-th column of the query comes from.
    std::vector<ColumnOrigin> Of(const BoundQuery& query, std::size_t item)
    {
        objFound.clear();
        objSeen.clear();
        AddItem(query, item);
        return std::move(objFound);
    }

  private:
    void NoteDerived(BoundQuery& query)
    {
        for (BoundSelect& select : query.selects)
            for (BoundSourcePtr& source : select.from)
                NoteDerived(*source);
        ForEachExpression(query, [this](BoundExprPtr& expression) { NoteWithin(*expression); });
    }
    void NoteDerived(BoundSource& source)
    {
        if (auto* derived = std::get_if<BoundDerived>(&source.node)) {
            dicDerived.emplace(derived->number, derived->query.get());
            NoteDerived(*derived->query);
        }
        if (auto* join = std::get_if<BoundJoin>(&source.node)) {
            NoteDerived(*join->left);
            NoteDerived(*join->right);
        }
    }
    void NoteWithin(BoundExpr& expression)
    {
        if (BoundQuery* query = QueryWithin(expression))
            NoteDerived(*query);
        ForEachOperand(expression, [this](BoundExprPtr& operand) { NoteWithin(*operand); });
    }

    void AddItem(const BoundQuery& query, std::size_t item)
    {
        for (const BoundSelect& select : query.selects)
            Add(*select.items.at(item).expression, select);
    }

    void Add(BoundExpr& expression, const BoundSelect& select)
    {
        if (const auto* column = std::get_if<BoundColumn>(&expression.node)) {
            if (expression.type.IsText())
                AddColumn(*column);
        } else if (const auto* key = std::get_if<BoundGroupKey>(&expression.node)) {
            Add(*select.groupBy.at(key->index), select);
        } else if (const auto* choice = std::get_if<BoundCase>(&expression.node)) {
            for (const BoundWhen& branch : choice->branches)
                Add(*branch.result, select);
            if (choice->otherwise)
                Add(*choice->otherwise, select);
        } else if (const BoundQuery* query = QueryWithin(expression)) {
            AddItem(*query, 0);
        } else {
            ForEachOperand(expression, [&](BoundExprPtr& operand) { Add(*operand, select); });
        }
    }

    void AddColumn(const BoundColumn& column)
    {
        if (!objSeen.emplace(column.source, column.column).second)
            return;
        if (const auto derived = dicDerived.find(column.source); derived != dicDerived.end()) {
            const std::vector<BoundItem>& items = derived->second->selects.front().items;
            const auto item = std::ranges::find(items, column.column, &BoundItem::name);
            AddItem(*derived->second, static_cast<std::size_t>(item - items.begin()));
        } else {
            const ObjectInfo& object = *objObjects.at(column.source);
            objFound.push_back({object.database, object.name, column.column});
        }
    }

    const Objects& objObjects;
    std::map<int, const BoundQuery*> dicDerived;
    std::set<std::pair<int, std::string>> objSeen;
    std::vector<ColumnOrigin> objFound;
};

// `left` bounds the look-ups through views over views.
TextFacts FactsOf(const ColumnInfo& column, const Catalog& catalog, int& left)
{
    TextFacts facts = column.facts;
    for (const ColumnOrigin& origin : column.origins) {
        if (facts == TextFacts{} || --left < 0)
            return {};
        const ObjectInfo* object = catalog.Find(origin.database, origin.object);
        if (!object)
            return {};
        const auto found = std::ranges::find(object->columns, origin.column, &ColumnInfo::name);
        if (found == object->columns.end() || !found->type.IsText())
            return {};
        facts = Both(facts, FactsOf(*found, catalog, left));
    }
    return facts;
}

}  // namespace

TextFacts FactsNow(const ColumnInfo& column, const Catalog& catalog)
{
    int left = 100;
    return column.origins.empty() ? column.facts : FactsOf(column, catalog, left);
}

void SetOrigins(std::vector<ColumnInfo>& columns, BoundQuery& query, const Objects& objects)
{
    OriginSearch search(query, objects);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        ColumnInfo& column = columns[i];
        if (!column.type.IsText())
            continue;
        column.facts = {true, true};
        for (const BoundSelect& select : query.selects)
            column.facts = Both(column.facts, select.items[i].expression->facts);
        if (column.facts != TextFacts{})
            column.origins = search.Of(query, i);
    }
}

}  // namespace kavelin::embedded
