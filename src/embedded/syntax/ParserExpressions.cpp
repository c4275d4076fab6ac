// Values: operators from the weakest to the strongest, then what they stand between.
#include "embedded/syntax/Parser.h"
#include "frame/Text.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace kavelin::embedded {

namespace {

constexpr std::string_view kAggregates[] = {"count", "sum", "avg", "min", "max"};

bool IsAggregate(const ObjectName& function)
{
    return !function.schema && std::any_of(std::begin(kAggregates), std::end(kAggregates), [&](auto name) {
        return EqualsNoCase(function.object.text, name);
    });
}

}  // namespace

ExprPtr Parser::ParseSum(Wanted wanted)
{
    Subtree subtree(*this);
    ExprPtr left = ParseProduct(wanted);
    while ((At(TokenKind::Plus) || At(TokenKind::Minus)) && !IsCondition(*left)) {
        const auto op = Take().kind == TokenKind::Plus ? ArithmeticOp::Add : ArithmeticOp::Subtract;
        ExprPtr right = ParseProduct(Wanted::Value);
        const std::uint32_t start = left->place.offset;
        left = Make(start, Arithmetic{op, std::move(left), std::move(right)});
        subtree.Grow();
    }
    return left;
}

ExprPtr Parser::ParseProduct(Wanted wanted)
{
    Subtree subtree(*this);
    ExprPtr left = ParseSigned(wanted);
    while ((At(TokenKind::Star) || At(TokenKind::Slash)) && !IsCondition(*left)) {
        const auto op = Take().kind == TokenKind::Star ? ArithmeticOp::Multiply : ArithmeticOp::Divide;
        ExprPtr right = ParseSigned(Wanted::Value);
        const std::uint32_t start = left->place.offset;
        left = Make(start, Arithmetic{op, std::move(left), std::move(right)});
        subtree.Grow();
    }
    return left;
}

ExprPtr Parser::ParseSigned(Wanted wanted)
{
    if (!At(TokenKind::Plus) && !At(TokenKind::Minus))
        return ParsePrimary(wanted);
    Level level(*this);
    const Token& token = Take();
    const Sign sign = token.kind == TokenKind::Plus ? Sign::Plus : Sign::Minus;
    ExprPtr operand = ParseSigned(Wanted::Value);
    return Make(token.place.offset, Signed{sign, std::move(operand)});
}

ExprPtr Parser::ParsePrimary(Wanted wanted)
{
    Level level(*this);
    const Token& token = Here();
    const std::uint32_t start = token.place.offset;
    switch (token.kind) {
        case TokenKind::Number: Take(); return Make(start, NumberLiteral{token.value});
        case TokenKind::Text:
        case TokenKind::NationalText:
            Take();
            return Make(start, TextLiteral{token.value, token.kind == TokenKind::NationalText});
        case TokenKind::OpenBracket: return ParseBrackets(wanted);
        case TokenKind::Word:
        case TokenKind::Bracketed: return ParseNamed();
        default: break;
    }
    switch (token.keyword) {
        case Keyword::Null: Take(); return Make(start, NullLiteral{});
        case Keyword::Case: return ParseCase();
        case Keyword::Convert: return ParseConvert();
        case Keyword::Left: {  // reserved for joins, and a function all the same
            Take();
            ObjectName function;
            function.object = {token.value, false, token.place};
            function.place = token.place;
            return ParseCall(start, std::move(function));
        }
        default: Refuse();
    }
}

ExprPtr Parser::ParseBrackets(Wanted wanted)
{
    const std::uint32_t start = Here().place.offset;
    if (Ahead(1).keyword == Keyword::Select) {
        QueryPtr query = ParseSubquery();
        return Make(start, ScalarSubquery{std::move(query)});
    }
    Expect(TokenKind::OpenBracket);
    ExprPtr inner = wanted == Wanted::Value ? ParseValue() : ParseOr(Wanted::Either);
    Expect(TokenKind::CloseBracket);
    return Make(start, Brackets{std::move(inner)});
}

ExprPtr Parser::ParseCase()
{
    const std::uint32_t start = Here().place.offset;
    Expect({Keyword::Case});
    CaseExpr made;
    if (!At(Keyword::When))
        made.operand = ParseValue();
    do {
        Expect({Keyword::When});
        WhenExpr branch;
        branch.condition = made.operand ? ParseValue() : ParseCondition();
        Expect({Keyword::Then});
        branch.result = ParseValue();
        made.branches.push_back(std::move(branch));
    } while (At(Keyword::When));
    if (Accept(Keyword::Else))
        made.otherwise = ParseValue();
    Expect({Keyword::End});
    return Make(start, std::move(made));
}

// A column, or a function if an opening bracket follows.
ExprPtr Parser::ParseNamed()
{
    const Token& first = Here();
    if (first.kind == TokenKind::Word && Ahead(1).kind == TokenKind::OpenBracket &&
        EqualsNoCase(first.value, "cast"))
        return ParseCast();
    Parts parts = ParseParts();
    if (At(TokenKind::OpenBracket))
        return ParseCall(first.place.offset, ToObjectName(std::move(parts)));
    auto [table, column] = ToColumnName(std::move(parts));
    return Make(first.place.offset, ColumnRef{std::move(table), std::move(column)});
}

ExprPtr Parser::ParseCast()
{
    const std::uint32_t start = Take().place.offset;
    Expect(TokenKind::OpenBracket);
    CastExpr made;
    made.operand = ParseValue();
    Expect({Keyword::As});
    made.type = ParseType();
    Expect(TokenKind::CloseBracket);
    return Make(start, std::move(made));
}

ExprPtr Parser::ParseConvert()
{
    const std::uint32_t start = Take().place.offset;
    Expect(TokenKind::OpenBracket);
    ConvertExpr made;
    made.type = ParseType();
    Expect(TokenKind::Comma);
    made.operand = ParseValue();
    if (Accept(TokenKind::Comma))
        made.style = ParseWholeNumber<int>();
    Expect(TokenKind::CloseBracket);
    return Make(start, std::move(made));
}

ExprPtr Parser::ParseCall(std::uint32_t start, ObjectName function)
{
    FunctionCall call;
    Expect(TokenKind::OpenBracket);
    const bool aggregate = IsAggregate(function);
    if (aggregate && EqualsNoCase(function.object.text, "count") && At(TokenKind::Star)) {
        const std::uint32_t star = Take().place.offset;
        call.arguments.push_back(Make(star, Star{}));
    } else if (!At(TokenKind::CloseBracket)) {
        call.distinct = aggregate && Accept(Keyword::Distinct);
        ParseList([&] { call.arguments.push_back(ParseValue()); });
    }
    Expect(TokenKind::CloseBracket);
    call.function = std::move(function);
    return Make(start, std::move(call));
}

// `IDENTITY(int, 1, 1)`, an item of a select list and nothing else.
ExprPtr Parser::ParseIdentity()
{
    const std::uint32_t start = Take().place.offset;
    Expect(TokenKind::OpenBracket);
    IdentityExpr made;
    made.type = ParseType();
    if (Accept(TokenKind::Comma)) {
        made.seed = ParseInteger();
        Expect(TokenKind::Comma);
        made.increment = ParseInteger();
    }
    Expect(TokenKind::CloseBracket);
    return Make(start, std::move(made));
}

}  // namespace kavelin::embedded
