// Conditions: or, and, not, and the tests that stand between them.
#include "embedded/SqlError.h"
#include "embedded/syntax/Parser.h"

#include <optional>
#include <type_traits>

namespace kavelin::embedded {

namespace {

std::optional<ComparisonOp> ComparisonOf(TokenKind kind)
{
    switch (kind) {
        case TokenKind::Equal: return ComparisonOp::Equal;
        case TokenKind::NotEqual: return ComparisonOp::NotEqual;
        case TokenKind::Less: return ComparisonOp::Less;
        case TokenKind::LessOrEqual: return ComparisonOp::LessOrEqual;
        case TokenKind::Greater: return ComparisonOp::Greater;
        case TokenKind::GreaterOrEqual: return ComparisonOp::GreaterOrEqual;
        default: return std::nullopt;
    }
}

template <class Node, class... Candidates>
constexpr bool kIsOneOf = (std::is_same_v<Node, Candidates> || ...);

}  // namespace

bool IsCondition(const Expr& expression)
{
    const Expr* bare = &expression;
    while (const auto* brackets = std::get_if<Brackets>(&bare->node))
        bare = brackets->inner.get();
    return std::visit(
        [](const auto& node) {
            return kIsOneOf<std::decay_t<decltype(node)>, Comparison, Logical, NotExpr, IsNullTest,
                            BetweenTest, InListTest, InQueryTest, LikeTest, ExistsTest>;
        },
        bare->node);
}

void Parser::RequireCondition(const Expr& expression) const
{
    if (IsCondition(expression))
        return;
    if (At(Keyword::Foreign))
        Refuse();
    const Token& near = At(TokenKind::End) ? Last() : Here();
    throw SqlError(4145,
                   "An expression of non-boolean type specified in a context where a condition is expected, "
                   "near '" +
                       near.value + "'.",
                   near.place);
}

ExprPtr Parser::ParseOr(Wanted wanted)
{
    Subtree subtree(*this);
    ExprPtr left = ParseAnd(wanted);
    while (At(Keyword::Or)) {
        RequireCondition(*left);
        Take();
        ExprPtr right = ParseAnd(Wanted::Condition);
        const std::uint32_t start = left->place.offset;
        left = Make(start, Logical{LogicalOp::Or, std::move(left), std::move(right)});
        subtree.Grow();
    }
    return left;
}

ExprPtr Parser::ParseAnd(Wanted wanted)
{
    Subtree subtree(*this);
    ExprPtr left = ParseNot(wanted);
    while (At(Keyword::And)) {
        RequireCondition(*left);
        Take();
        ExprPtr right = ParseNot(Wanted::Condition);
        const std::uint32_t start = left->place.offset;
        left = Make(start, Logical{LogicalOp::And, std::move(left), std::move(right)});
        subtree.Grow();
    }
    return left;
}

ExprPtr Parser::ParseNot(Wanted wanted)
{
    if (!At(Keyword::Not))
        return ParsePredicate(wanted);
    Level level(*this);
    const std::uint32_t start = Take().place.offset;
    ExprPtr operand = ParseNot(Wanted::Condition);
    return Make(start, NotExpr{std::move(operand)});
}

// The tests stand below the comparisons and take sums as operands; `a = 1 is null` is no condition.
ExprPtr Parser::ParsePredicate(Wanted wanted)
{
    if (At(Keyword::Exists))
        return ParseExists();

    Subtree subtree(*this);
    ExprPtr operand = ParseSum(Wanted::Either);
    if (IsCondition(*operand))
        return operand;
    const std::uint32_t start = operand->place.offset;
    subtree.Grow();

    if (const auto op = ComparisonOf(Here().kind)) {
        Take();
        ExprPtr right = ParseValue();
        return Make(start, Comparison{*op, std::move(operand), std::move(right)});
    }
    if (Accept(Keyword::Is)) {
        const bool negated = Accept(Keyword::Not);
        Expect({Keyword::Null});
        return Make(start, IsNullTest{std::move(operand), negated});
    }

    const bool negated = Accept(Keyword::Not);
    if (Accept(Keyword::Between)) {
        ExprPtr low = ParseValue();
        Expect({Keyword::And});
        ExprPtr high = ParseValue();
        return Make(start, BetweenTest{std::move(operand), std::move(low), std::move(high), negated});
    }
    if (Accept(Keyword::Like)) {
        ExprPtr pattern = ParseValue();
        return Make(start, LikeTest{std::move(operand), std::move(pattern), negated});
    }
    if (At(Keyword::In))
        return ParseIn(std::move(operand), negated);

    if (negated)
        Refuse();
    if (wanted == Wanted::Condition)
        RequireCondition(*operand);
    return operand;
}

ExprPtr Parser::ParseIn(ExprPtr operand, bool negated)
{
    const std::uint32_t start = operand->place.offset;
    Expect({Keyword::In});
    if (At(TokenKind::OpenBracket) && Ahead(1).keyword == Keyword::Select) {
        QueryPtr query = ParseSubquery();
        return Make(start, InQueryTest{std::move(operand), std::move(query), negated});
    }
    std::vector<ExprPtr> items;
    Expect(TokenKind::OpenBracket);
    ParseList([&] { items.push_back(ParseValue()); });
    Expect(TokenKind::CloseBracket);
    return Make(start, InListTest{std::move(operand), std::move(items), negated});
}

ExprPtr Parser::ParseExists()
{
    const std::uint32_t start = Here().place.offset;
    Expect({Keyword::Exists});
    QueryPtr query = ParseSubquery();
    return Make(start, ExistsTest{std::move(query)});
}

}  // namespace kavelin::embedded
