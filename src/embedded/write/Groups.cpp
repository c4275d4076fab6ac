// Rows grouped by texts. T-SQL takes texts for equal that differ in case or trailing blanks, and folding
// the text of every row costs several times the grouping itself. So rows are grouped as they stand first, and
// the few groups that come out are grouped by their folds:
//
//   select name, sum(q) from t group by name
//   SELECT min(v1.k0), sum(v1.a0) FROM (SELECT name AS k0, sum(q) AS a0 FROM t GROUP BY name) AS v1
//    GROUP BY lower(rtrim(v1.k0))
//
// Of the texts of a group the first by its characters is shown, so that it is always the same.
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

bool IsKeyToFold(const BoundExprPtr& key)
{
    return key->type.IsText() && !IsFolded(key->facts);
}

}  // namespace

std::string Writer::Parts::Key(std::size_t index) const
{
    return name + ".\"k" + std::to_string(index) + "\"";
}

std::string Writer::Parts::Aggregate(const std::string& written)
{
    const auto found = std::ranges::find(aggregates, written);
    const auto index = found - aggregates.begin();
    if (found == aggregates.end())
        aggregates.push_back(written);
    return name + ".\"a" + std::to_string(index) + "\"";
}

bool Writer::GroupsInParts(const BoundSelect& select) const
{
    return select.composable && std::ranges::any_of(select.groupBy, IsKeyToFold);
}

std::vector<Writer::GroupKey> Writer::GroupKeys(const BoundSelect& select)
{
    std::vector<GroupKey> keys;
    for (const BoundExprPtr& expression : select.groupBy) {
        std::string value = Value(*expression);
        if (std::holds_alternative<BoundLiteral>(expression->node))
            value = Cast(value, expression->type);  // a bare number would be a position
        if (IsKeyToFold(expression))
            keys.push_back({"min(" + value + ")", FoldAlone(value, expression->facts)});
        else
            keys.push_back({value, value});
    }
    return keys;
}

std::vector<Writer::GroupKey> Writer::GroupKeys(const BoundSelect& select, Parts& parts)
{
    parts.name = objScratch.NextName();
    std::vector<GroupKey> keys = GroupKeys(select);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const BoundExpr& expression = *select.groupBy[i];
        const std::string column = parts.Key(i);
        const bool folds = IsKeyToFold(select.groupBy[i]);
        parts.keys.push_back(folds ? Value(expression) : keys[i].grouped);
        keys[i] = {folds ? "min(" + column + ")" : column,
                   folds ? FoldAlone(column, expression.facts) : column};
    }
    return keys;
}

std::string Writer::PartQuery(const BoundSelect& select, const Parts& parts)
{
    std::string columns, keys;
    for (std::size_t i = 0; i < parts.keys.size(); ++i) {
        columns += (i == 0 ? "" : ", ") + parts.keys[i] + " AS \"k" + std::to_string(i) + "\"";
        keys += (i == 0 ? "" : ", ") + parts.keys[i];
    }
    for (std::size_t i = 0; i < parts.aggregates.size(); ++i)
        columns += ", " + parts.aggregates[i] + " AS \"a" + std::to_string(i) + "\"";
    return "SELECT " + columns + FromWhere(select) + " GROUP BY " + keys;
}

std::string Writer::FromWhere(const BoundSelect& select)
{
    return (select.from.empty() ? "" : " FROM " + Sources(select.from)) +
           (select.where ? " WHERE " + Clause(*select.where) : "");
}

// An aggregate over the rows of a group as written, or `ofParts`, such as sum, over those of its parts.
std::string Writer::Grouped(const std::string& aggregate, std::string_view ofParts)
{
    if (!objState.parts)
        return aggregate;
    return std::string(ofParts) + "(" + objState.parts->Aggregate(aggregate) + ")";
}

}  // namespace kavelin::embedded
