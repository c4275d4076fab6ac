#include "embedded/syntax/Operators.h"
#include "embedded/write/Kept.h"
#include "embedded/write/Like.h"
#include "embedded/write/Quote.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

bool IsEquality(ComparisonOp op)
{
    return op == ComparisonOp::Equal || op == ComparisonOp::NotEqual;
}

// a and b and c lean to the left: the operands of a chain of one operator, in order.
std::vector<const BoundExpr*> Chain(const BoundExpr& node, LogicalOp op)
{
    std::vector<const BoundExpr*> operands;
    const BoundExpr* at = &node;
    const auto* logical = std::get_if<BoundLogical>(&at->node);
    while (logical && logical->op == op) {
        operands.push_back(logical->right.get());
        at = logical->left.get();
        logical = std::get_if<BoundLogical>(&at->node);
    }
    operands.push_back(at);
    std::reverse(operands.begin(), operands.end());
    return operands;
}

// The bit in `cast(bit as int) = 1`, if `expression` is the left and `other` the right of such a test.
const BoundExpr* ComparedBit(const BoundExpr& expression, const BoundExpr& other)
{
    const auto* conversion = std::get_if<BoundConversion>(&expression.node);
    const auto* literal = std::get_if<BoundLiteral>(&other.node);
    const bool bit = conversion && expression.type.IsInteger() &&
                     conversion->operand->type.kind == TypeKind::Bit && literal && !literal->null &&
                     other.type.IsInteger() && (literal->text == "0" || literal->text == "1");
    return bit ? conversion->operand.get() : nullptr;
}

}  // namespace

std::string Writer::Condition(const BoundExpr& expression)
{
    if (const auto* comparison = std::get_if<BoundComparison>(&expression.node))
        return Comparison(*comparison);
    if (std::holds_alternative<BoundLogical>(expression.node))
        return Logical(expression);
    if (const auto* negation = std::get_if<BoundNot>(&expression.node)) {
        const Kept kept(objState);
        objState.negated = true;
        return "(NOT " + Condition(*negation->operand) + ")";
    }
    if (const auto* test = std::get_if<BoundNullTest>(&expression.node))
        return "(" + Value(*test->operand, Fit::Loose) + (test->negated ? " IS NOT NULL)" : " IS NULL)");
    if (const auto* between = std::get_if<BoundBetween>(&expression.node)) {
        const auto sides = Sides({between->operand.get(), between->low.get(), between->high.get()}, true);
        return "(" + sides[0] + (between->negated ? " NOT BETWEEN " : " BETWEEN ") + sides[1] + " AND " +
               sides[2] + ")";
    }
    if (const auto* list = std::get_if<BoundInList>(&expression.node))
        return InList(*list);
    if (const auto* inQuery = std::get_if<BoundInQuery>(&expression.node))
        return InQuery(*inQuery);
    if (const auto* like = std::get_if<BoundLike>(&expression.node))
        return Like(*like);
    if (const auto* exists = std::get_if<BoundExists>(&expression.node))
        return "EXISTS " + Subquery(*exists->query);
    return Value(expression);
}

std::string Writer::Clause(const BoundExpr& expression)
{
    const Kept kept(objState);
    objState.forgiving = Chain(expression, LogicalOp::And).size() > 1;
    objState.negated = false;
    return Condition(expression);
}

std::string Writer::Comparison(const BoundComparison& comparison)
{
    if (IsEquality(comparison.op)) {
        for (const auto& [side, other] : {std::pair(comparison.left.get(), comparison.right.get()),
                                          std::pair(comparison.right.get(), comparison.left.get())}) {
            if (const BoundExpr* bit = ComparedBit(*side, *other))
                return "(" + Value(*bit) + std::string(OperatorText(comparison.op)) +
                       (std::get<BoundLiteral>(other->node).text == "1" ? "TRUE)" : "FALSE)");
        }
    }
    const auto sides = Sides({comparison.left.get(), comparison.right.get()}, !IsEquality(comparison.op));
    return "(" + sides[0] + std::string(OperatorText(comparison.op)) + sides[1] + ")";
}

std::string Writer::Logical(const BoundExpr& node)
{
    const LogicalOp op = std::get<BoundLogical>(node.node).op;
    std::vector<std::string> operands;
    for (const BoundExpr* operand : Chain(node, op))
        operands.push_back(Condition(*operand));
    return "(" + Join(operands, op == LogicalOp::And ? " AND " : " OR ") + ")";
}

// The sides of one comparison, texts folded to meet in one form.
std::vector<std::string> Writer::Sides(const std::vector<const BoundExpr*>& sides, bool ordered)
{
    const bool text =
        std::any_of(sides.begin(), sides.end(), [](const BoundExpr* side) { return side->type.IsText(); });
    const CaseForm form = text ? CommonCase(sides, ordered) : CaseForm::AsIs;
    std::vector<std::string> written;
    for (const BoundExpr* side : sides) {
        const BoundLiteral* literal = text ? ConstantText(*side) : nullptr;
        if (literal)
            written.push_back(FoldLiteral(literal->text, form, true));
        else if (text && side->type.IsText())
            written.push_back(FoldText(Value(*side), side->facts, form));
        else
            written.push_back(Value(*side, Fit::Loose));
    }
    return written;
}

std::string Writer::Folded(const BoundExpr& expression)
{
    if (const auto* key = std::get_if<BoundGroupKey>(&expression.node))
        return objState.keys->at(key->index).grouped;
    return FoldAlone(Value(expression), expression.facts);
}

std::string Writer::InList(const BoundInList& test)
{
    std::vector<const BoundExpr*> all{test.operand.get()};
    for (const BoundExprPtr& item : test.items)
        all.push_back(item.get());
    std::vector<std::string> sides = Sides(all, false);
    const std::string operand = sides.front();
    sides.erase(sides.begin());
    return "(" + operand + (test.negated ? " NOT IN (" : " IN (") + Join(sides, ", ") + "))";
}

std::string Writer::InQuery(const BoundInQuery& test)
{
    const std::string in = test.negated ? " NOT IN " : " IN ";
    if (!test.operand->type.IsText())
        return "(" + Value(*test.operand, Fit::Loose) + in + Subquery(*test.query) + ")";

    std::vector<const BoundExpr*> sides{test.operand.get()};
    bool trimmed = true;
    for (const BoundSelect& select : test.query->selects) {
        sides.push_back(select.items.at(0).expression.get());
        trimmed = trimmed && sides.back()->facts.noTrailingBlanks;
    }
    // A literal in a list of its own isn't folded to capitals.
    const bool plain = std::all_of(sides.begin(), sides.end(), [](const BoundExpr* side) {
        return side->facts.noCase && !ConstantText(*side);
    });
    const CaseForm form = plain ? CaseForm::AsIs : CaseForm::Lower;
    const BoundLiteral* literal = ConstantText(*test.operand);
    const std::string operand = literal ? FoldLiteral(literal->text, form, true)
                                        : FoldText(Value(*test.operand), test.operand->facts, form);
    if (plain && trimmed)
        return "(" + operand + in + Subquery(*test.query) + ")";

    const std::string name = objScratch.NextName();
    return "(" + operand + in + "(SELECT " + FoldText(name + ".\"c0\"", {.noTrailingBlanks = trimmed}, form) +
           " FROM " + Subquery(*test.query) + " AS " + name + "))";
}

std::string Writer::Like(const BoundLike& test)
{
    const std::string operand = Value(*test.operand);
    const BoundLiteral* pattern = ConstantText(*test.pattern);
    const std::string like =
        pattern ? WriteLike(operand, test.operand->facts, pattern->text, !objState.negated && !test.negated)
                : WriteLikeExpression(operand, Value(*test.pattern), objScratch);
    return test.negated ? "(NOT " + like + ")" : like;
}

}  // namespace kavelin::embedded
