// Queries, clause by clause.
#include "embedded/SqlError.h"
#include "embedded/syntax/Parser.h"

namespace kavelin::embedded {

void RequireTopWithOrder(const Query& query)
{
    const bool top = query.selects.size() == 1 && query.selects.front().top;
    if (!query.orderBy.empty() && !top) {
        throw SqlError(
            1033,
            "The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, "
            "and common table expressions, unless TOP or FOR XML is also specified.",
            query.orderBy.front().expression->place);
    }
}

QueryPtr Parser::ParseQuery(Into into)
{
    Level level(*this);
    const std::uint32_t start = Here().place.offset;
    auto query = std::make_unique<Query>();
    query->selects.push_back(ParseSelect(into));
    while (Accept(Keyword::Union)) {
        query->unionAll.push_back(Accept(Keyword::All));
        query->selects.push_back(ParseSelect(Into::Refused));
    }
    if (At(Keyword::Order))
        query->orderBy = ParseOrderBy();
    query->place = Since(start);
    return query;
}

QueryPtr Parser::ParseSubquery()
{
    Expect(TokenKind::OpenBracket);
    QueryPtr query = ParseQuery(Into::Refused);
    RequireTopWithOrder(*query);
    Expect(TokenKind::CloseBracket);
    return query;
}

Select Parser::ParseSelect(Into into)
{
    const std::uint32_t start = Here().place.offset;
    Select select;
    Expect({Keyword::Select});
    select.distinct = Accept(Keyword::Distinct);
    if (Accept(Keyword::Top))
        select.top = ParseWholeNumber<std::int64_t>();
    ParseList([&] { select.items.push_back(ParseSelectItem()); });
    if (into == Into::Allowed && Accept(Keyword::Into))
        select.into = ParseObjectName();
    if (At(Keyword::From))
        select.from = ParseFrom();
    if (Accept(Keyword::Where))
        select.where = ParseCondition();
    if (Accept(Keyword::Group)) {
        Expect({Keyword::By});
        ParseList([&] { select.groupBy.push_back(ParseValue()); });
    }
    if (Accept(Keyword::Having))
        select.having = ParseCondition();
    select.place = Since(start);
    return select;
}

SelectItem Parser::ParseSelectItem()
{
    SelectItem item;
    const std::uint32_t start = Here().place.offset;
    if (AtStarItem()) {
        Star star;
        if (!At(TokenKind::Star)) {
            star.table = ParseObjectName();
            Expect(TokenKind::Dot);
        }
        Expect(TokenKind::Star);
        item.expression = Make(start, std::move(star));
        return item;
    }
    item.expression = At(Keyword::Identity) ? ParseIdentity() : ParseValue();
    ParseItemAlias(item);
    return item;
}

// At `*` or at the name in front of `.*`.
bool Parser::AtStarItem() const
{
    std::size_t ahead = 0;
    if (AtName())
        while (Ahead(ahead).kind == TokenKind::Word || Ahead(ahead).kind == TokenKind::Bracketed ||
               Ahead(ahead).kind == TokenKind::Dot)
            ++ahead;
    return Ahead(ahead).kind == TokenKind::Star && (ahead == 0 || Ahead(ahead - 1).kind == TokenKind::Dot);
}

void Parser::ParseItemAlias(SelectItem& item)
{
    if (!Accept(Keyword::As)) {
        if (AtName()) {
            item.form = AliasForm::Bare;
            item.alias = ParseName();
        }
    } else if (At(TokenKind::Text) || At(TokenKind::NationalText)) {
        if (Here().value.empty())
            throw SqlError(1038, "An object or column name is missing or empty.", Here().place);
        const Token& token = Take();
        item.form = AliasForm::Text;
        item.alias = Name{token.value, false, token.place};
    } else {
        item.form = AliasForm::As;
        item.alias = ParseName();
    }
}

std::vector<TableSourcePtr> Parser::ParseFrom()
{
    std::vector<TableSourcePtr> sources;
    Expect({Keyword::From});
    ParseList([&] { sources.push_back(ParseJoins()); });
    return sources;
}

TableSourcePtr Parser::ParseJoins()
{
    Subtree subtree(*this);
    const std::uint32_t start = Here().place.offset;
    TableSourcePtr left = ParseTable();
    while (At(Keyword::Inner) || At(Keyword::Left)) {
        JoinedTable join;
        join.kind = Take().keyword == Keyword::Inner ? JoinKind::Inner : JoinKind::Left;
        Expect({Keyword::Join});
        join.left = std::move(left);
        join.right = ParseTable();
        Expect({Keyword::On});
        join.on = ParseCondition();
        left = std::make_unique<TableSource>(TableSource{std::move(join), Since(start)});
        subtree.Grow();
    }
    return left;
}

TableSourcePtr Parser::ParseTable()
{
    const std::uint32_t start = Here().place.offset;
    if (At(TokenKind::OpenBracket)) {
        DerivedTable derived;
        derived.query = ParseSubquery();
        Accept(Keyword::As);
        derived.alias = ParseName();
        return std::make_unique<TableSource>(TableSource{std::move(derived), Since(start)});
    }
    NamedTable table;
    table.name = ParseObjectName();
    if (Accept(Keyword::As) || AtName())
        table.alias = ParseName();
    return std::make_unique<TableSource>(TableSource{std::move(table), Since(start)});
}

std::vector<OrderItem> Parser::ParseOrderBy()
{
    std::vector<OrderItem> items;
    Expect({Keyword::Order, Keyword::By});
    ParseList([&] {
        OrderItem item;
        item.expression = ParseValue();
        item.descending = Accept(Keyword::Desc);
        if (!item.descending)
            Accept(Keyword::Asc);
        items.push_back(std::move(item));
    });
    return items;
}

}  // namespace kavelin::embedded
