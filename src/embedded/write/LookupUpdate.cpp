#include "embedded/write/LookupUpdate.h"

#include "embedded/bind/BoundWalk.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

// What an expression reads.
struct Reading {
    bool target = false, lookup = false,
         other = false;     // other: a subquery, or a source of a statement around
    bool converts = false;  // may fail for a value
};

class Reader {
  public:
    Reader(int target, int lookup) : intTarget(target), intLookup(lookup) {}

    Reading Of(const BoundExpr& expression)
    {
        Reading reading;
        Read(const_cast<BoundExpr&>(expression), reading);  // the walk is not told apart for reading
        return reading;
    }

    std::vector<std::string> Columns() const { return lstColumns; }

  private:
    void Read(BoundExpr& expression, Reading& reading)
    {
        reading.other |= QueryWithin(expression) != nullptr;
        reading.converts |= std::holds_alternative<BoundConversion>(expression.node);
        if (const auto* column = std::get_if<BoundColumn>(&expression.node)) {
            reading.target |= column->source == intTarget;
            reading.lookup |= column->source == intLookup;
            if (column->source == intLookup &&
                std::ranges::find(lstColumns, column->column) == lstColumns.end())
                lstColumns.push_back(column->column);
        }
        ForEachOperand(expression, [&](BoundExprPtr& operand) { Read(*operand, reading); });
    }

    int intTarget, intLookup;
    std::vector<std::string> lstColumns;  // of the lookup, in the order in which they were met
};

// The side of the equality that is a column of the lookup, where the other side is a value of the target that needs
// no conversion to be compared with it; else null.
const BoundExpr* KeyOf(const BoundExpr& condition, Reader& reader)
{
    const auto* equality = std::get_if<BoundComparison>(&condition.node);
    if (!equality || equality->op != ComparisonOp::Equal)
        return nullptr;
    for (const auto& [side, other] : {std::pair(equality->left.get(), equality->right.get()),
                                      std::pair(equality->right.get(), equality->left.get())}) {
        const bool alike = side->type.IsText() ? other->type.IsText() : side->type.kind == other->type.kind;
        if (alike && std::holds_alternative<BoundColumn>(side->node) && reader.Of(*side).lookup &&
            !reader.Of(*other).lookup)
            return side;
    }
    return nullptr;
}

}  // namespace

std::optional<LookupUpdate> FindLookup(const BoundUpdate& update)
{
    const auto* join = update.from.size() == 1 ? std::get_if<BoundJoin>(&update.from.front()->node) : nullptr;
    if (!join || join->kind != JoinKind::Inner)
        return std::nullopt;
    const auto* left = std::get_if<BoundTable>(&join->left->node);
    const auto* right = std::get_if<BoundTable>(&join->right->node);
    if (!left || !right || left->duckName == right->duckName)
        return std::nullopt;

    LookupUpdate lookup{
        .table = left->number == update.target ? right : left, .keys = {}, .conditions = {}, .columns = {}};
    Reader reader(update.target, lookup.table->number);
    std::vector<const BoundExpr*> conjuncts;
    AddConjuncts(*join->on, conjuncts);
    if (update.where)
        AddConjuncts(*update.where, conjuncts);
    for (const BoundExpr* conjunct : conjuncts) {
        const Reading reading = reader.Of(*conjunct);
        if (reading.other)
            return std::nullopt;
        if (reading.lookup && !reading.target) {
            if (reading.converts)
                return std::nullopt;
            lookup.conditions.push_back(conjunct);
        } else if (reading.lookup) {
            const BoundExpr* key = KeyOf(*conjunct, reader);
            if (!key)
                return std::nullopt;
            lookup.keys.push_back(key);
        }
    }
    for (const BoundAssignment& assignment : update.assignments)
        if (reader.Of(*assignment.value).other)
            return std::nullopt;
    if (lookup.keys.empty())
        return std::nullopt;
    lookup.columns = reader.Columns();
    return lookup;
}

}  // namespace kavelin::embedded
