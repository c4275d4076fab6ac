#include "embedded/SqlError.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/TypeRules.h"

namespace kavelin::embedded {

namespace {

// `case x when 1 then ...` compares x anew in every branch.
BoundExprPtr BindBranchCondition(const CaseExpr& expression, const WhenExpr& branch, Scope& scope)
{
    if (!expression.operand)
        return BindCondition(*branch.condition, scope);
    BoundExprPtr operand = BindValue(*expression.operand, scope);
    return BindComparison(ComparisonOp::Equal, std::move(operand), BindValue(*branch.condition, scope),
                          branch.condition->place);
}

}  // namespace

BoundExprPtr BindCase(const CaseExpr& expression, Place place, Scope& scope)
{
    BoundCase bound;
    for (const WhenExpr& branch : expression.branches) {
        BoundExprPtr condition = BindBranchCondition(expression, branch, scope);
        bound.branches.push_back({std::move(condition), BindValue(*branch.result, scope)});
    }
    if (expression.otherwise)
        bound.otherwise = BindValue(*expression.otherwise, scope);

    std::vector<BoundExprPtr*> results;
    for (BoundWhen& branch : bound.branches)
        results.push_back(&branch.result);
    if (bound.otherwise)
        results.push_back(&bound.otherwise);
    const SqlType type = AlignForChoice(results);
    if (type.kind == TypeKind::Null)
        throw SqlError(8133,
                       "At least one of the results of a CASE must be an "
                       "expression other than the NULL constant.",
                       place);
    TextFacts facts{true, true};
    for (const BoundExprPtr* result : results)
        facts = Both(facts, (*result)->facts);
    return MakeBound(std::move(bound), type, true, place, type.IsText() ? facts : TextFacts{});
}

}  // namespace kavelin::embedded
