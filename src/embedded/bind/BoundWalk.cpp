#include "embedded/bind/BoundWalk.h"

#include <type_traits>

namespace kavelin::embedded {

namespace {

using Visit = std::function<void(BoundExprPtr&)>;

struct OperandWalk {
    const Visit& visit;

    void One(BoundExprPtr& operand) const
    {
        if (operand)
            visit(operand);
    }
    void All(std::vector<BoundExprPtr>& operands) const
    {
        for (BoundExprPtr& operand : operands)
            One(operand);
    }

    void operator()(BoundLiteral&) const {}
    void operator()(BoundColumn&) const {}
    void operator()(BoundGroupKey&) const {}
    void operator()(BoundIdentity&) const {}
    void operator()(BoundScalarSubquery&) const {}
    void operator()(BoundExists&) const {}
    void operator()(BoundConversion& node) const { One(node.operand); }
    void operator()(BoundNegation& node) const { One(node.operand); }
    void operator()(BoundNot& node) const { One(node.operand); }
    void operator()(BoundNullTest& node) const { One(node.operand); }
    void operator()(BoundInQuery& node) const { One(node.operand); }
    void operator()(BoundAggregate& node) const { One(node.argument); }
    void operator()(BoundFunction& node) const { All(node.arguments); }
    void operator()(BoundRunning& node) const
    {
        One(node.aggregate);
        All(node.partition);
        One(node.order);
    }
    void operator()(BoundCase& node) const
    {
        for (BoundWhen& branch : node.branches) {
            One(branch.condition);
            One(branch.result);
        }
        One(node.otherwise);
    }
    void operator()(BoundBetween& node) const
    {
        One(node.operand);
        One(node.low);
        One(node.high);
    }
    void operator()(BoundInList& node) const
    {
        One(node.operand);
        All(node.items);
    }
    void operator()(BoundLike& node) const
    {
        One(node.operand);
        One(node.pattern);
    }
    template <class Binary>  // left and right
    void operator()(Binary& node) const
    {
        One(node.left);
        One(node.right);
    }
};

void WalkSource(BoundSource& source, const Visit& visit)
{
    if (auto* derived = std::get_if<BoundDerived>(&source.node))
        ForEachExpression(*derived->query, visit);
    if (auto* join = std::get_if<BoundJoin>(&source.node)) {
        WalkSource(*join->left, visit);
        WalkSource(*join->right, visit);
        if (join->on)
            visit(join->on);
    }
}

bool SameAll(const std::vector<BoundExprPtr>& a, const std::vector<BoundExprPtr>& b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!SameExpression(*a[i], *b[i]))
            return false;
    return true;
}

bool SameOne(const BoundExprPtr& a, const BoundExprPtr& b)
{
    return a && b ? SameExpression(*a, *b) : !a && !b;
}

// Two nodes of one kind.
struct Same {
    bool operator()(const BoundLiteral& a, const BoundLiteral& b) const
    {
        return a.null == b.null && a.text == b.text;
    }
    bool operator()(const BoundColumn& a, const BoundColumn& b) const
    {
        return a.source == b.source && a.column == b.column;
    }
    bool operator()(const BoundGroupKey& a, const BoundGroupKey& b) const { return a.index == b.index; }
    bool operator()(const BoundConversion& a, const BoundConversion& b) const
    {
        return a.kind == b.kind && a.target == b.target && SameOne(a.operand, b.operand);
    }
    bool operator()(const BoundArithmetic& a, const BoundArithmetic& b) const
    {
        return a.op == b.op && SameOne(a.left, b.left) && SameOne(a.right, b.right);
    }
    bool operator()(const BoundConcat& a, const BoundConcat& b) const
    {
        return SameOne(a.left, b.left) && SameOne(a.right, b.right);
    }
    bool operator()(const BoundNegation& a, const BoundNegation& b) const
    {
        return SameOne(a.operand, b.operand);
    }
    bool operator()(const BoundDayDifference& a, const BoundDayDifference& b) const
    {
        return SameOne(a.left, b.left) && SameOne(a.right, b.right);
    }
    bool operator()(const BoundCase& a, const BoundCase& b) const
    {
        if (a.branches.size() != b.branches.size())
            return false;
        for (std::size_t i = 0; i < a.branches.size(); ++i)
            if (!SameOne(a.branches[i].condition, b.branches[i].condition) ||
                !SameOne(a.branches[i].result, b.branches[i].result))
                return false;
        return SameOne(a.otherwise, b.otherwise);
    }
    bool operator()(const BoundFunction& a, const BoundFunction& b) const
    {
        return a.kind == b.kind && SameAll(a.arguments, b.arguments);
    }
    bool operator()(const BoundAggregate& a, const BoundAggregate& b) const
    {
        return a.kind == b.kind && a.distinct == b.distinct && SameOne(a.argument, b.argument);
    }
    bool operator()(const BoundComparison& a, const BoundComparison& b) const
    {
        return a.op == b.op && SameOne(a.left, b.left) && SameOne(a.right, b.right);
    }
    bool operator()(const BoundLogical& a, const BoundLogical& b) const
    {
        return a.op == b.op && SameOne(a.left, b.left) && SameOne(a.right, b.right);
    }
    bool operator()(const BoundNot& a, const BoundNot& b) const { return SameOne(a.operand, b.operand); }
    bool operator()(const BoundNullTest& a, const BoundNullTest& b) const
    {
        return a.negated == b.negated && SameOne(a.operand, b.operand);
    }
    bool operator()(const BoundBetween& a, const BoundBetween& b) const
    {
        return a.negated == b.negated && SameOne(a.operand, b.operand) && SameOne(a.low, b.low) &&
               SameOne(a.high, b.high);
    }
    bool operator()(const BoundInList& a, const BoundInList& b) const
    {
        return a.negated == b.negated && SameOne(a.operand, b.operand) && SameAll(a.items, b.items);
    }
    bool operator()(const BoundLike& a, const BoundLike& b) const
    {
        return a.negated == b.negated && SameOne(a.operand, b.operand) && SameOne(a.pattern, b.pattern);
    }
    // Subqueries and identities, and nodes of different kinds.
    template <class A, class B>
    bool operator()(const A&, const B&) const
    {
        return false;
    }
};

}  // namespace

void ForEachOperand(BoundExpr& expression, const Visit& visit)
{
    std::visit(OperandWalk{visit}, expression.node);
}

BoundQuery* QueryWithin(const BoundExpr& expression)
{
    if (const auto* scalar = std::get_if<BoundScalarSubquery>(&expression.node))
        return scalar->query.get();
    if (const auto* in = std::get_if<BoundInQuery>(&expression.node))
        return in->query.get();
    if (const auto* exists = std::get_if<BoundExists>(&expression.node))
        return exists->query.get();
    return nullptr;
}

void ForEachExpression(BoundQuery& query, const Visit& visit)
{
    const auto one = [&](BoundExprPtr& expression) {
        if (expression)
            visit(expression);
    };
    for (BoundSelect& select : query.selects) {
        for (BoundItem& item : select.items)
            one(item.expression);
        for (BoundSourcePtr& source : select.from)
            WalkSource(*source, visit);
        one(select.where);
        for (BoundExprPtr& key : select.groupBy)
            one(key);
        one(select.having);
    }
    for (BoundOrder& order : query.orderBy)
        one(order.expression);
}

void AddConjuncts(const BoundExpr& condition, std::vector<const BoundExpr*>& conjuncts)
{
    const auto* both = std::get_if<BoundLogical>(&condition.node);
    if (!both || both->op != LogicalOp::And) {
        conjuncts.push_back(&condition);
        return;
    }
    AddConjuncts(*both->left, conjuncts);
    AddConjuncts(*both->right, conjuncts);
}

bool SameExpression(const BoundExpr& a, const BoundExpr& b)
{
    return a.type == b.type && std::visit(Same{}, a.node, b.node);
}

}  // namespace kavelin::embedded
