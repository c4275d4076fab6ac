#include "embedded/write/LeftJoin.h"

#include "embedded/bind/BoundWalk.h"

#include <set>
#include <vector>

namespace kavelin::embedded {

namespace {

// What a value reads.
struct Reading {
    bool left = false, right = false;
    bool other = false;  // a subquery, or a source of a statement around

    bool LeftAlone() const { return left && !right && !other; }
    bool RightAlone() const { return right && !left && !other; }
};

void AddNumbers(const BoundSource& source, std::set<int>& numbers)
{
    if (const auto* table = std::get_if<BoundTable>(&source.node)) {
        numbers.insert(table->number);
    } else if (const auto* derived = std::get_if<BoundDerived>(&source.node)) {
        numbers.insert(derived->number);
    } else {
        const auto& join = std::get<BoundJoin>(source.node);
        AddNumbers(*join.left, numbers);
        AddNumbers(*join.right, numbers);
    }
}

class Reader {
  public:
    explicit Reader(const BoundJoin& join)
    {
        AddNumbers(*join.left, setLeft);
        AddNumbers(*join.right, setRight);
    }

    Reading Of(const BoundExpr& expression) const
    {
        Reading reading;
        Read(const_cast<BoundExpr&>(expression), reading);  // the walk is not told apart for reading
        return reading;
    }

  private:
    void Read(BoundExpr& expression, Reading& reading) const
    {
        reading.other |= QueryWithin(expression) != nullptr;
        if (const auto* column = std::get_if<BoundColumn>(&expression.node)) {
            const bool left = setLeft.contains(column->source), right = setRight.contains(column->source);
            reading.left |= left;
            reading.right |= right;
            reading.other |= !left && !right;
        }
        ForEachOperand(expression, [&](BoundExprPtr& operand) { Read(*operand, reading); });
    }

    std::set<int> setLeft, setRight;
};

// The comparison of a value of each side; else null.
const BoundComparison* SidesCompared(const BoundExpr& condition, const Reader& reader)
{
    const auto* comparison = std::get_if<BoundComparison>(&condition.node);
    if (!comparison)
        return nullptr;
    const Reading a = reader.Of(*comparison->left), b = reader.Of(*comparison->right);
    return (a.LeftAlone() && b.RightAlone()) || (a.RightAlone() && b.LeftAlone()) ? comparison : nullptr;
}

}  // namespace

bool NeedsInnerJoin(const BoundJoin& join)
{
    if (join.kind != JoinKind::Left || std::holds_alternative<BoundJoin>(join.right->node))
        return false;
    const Reader reader(join);
    if (reader.Of(*join.on).other)
        return false;

    std::vector<const BoundExpr*> conjuncts;
    AddConjuncts(*join.on, conjuncts);
    bool equality = false, mixed = false;
    for (const BoundExpr* conjunct : conjuncts) {
        if (const BoundComparison* comparison = SidesCompared(*conjunct, reader))
            equality |= comparison->op == ComparisonOp::Equal;
        else
            mixed |= reader.Of(*conjunct).left;
    }
    return equality && mixed;
}

}  // namespace kavelin::embedded
