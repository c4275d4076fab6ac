// Statements that read and change rows, and the choice between all kinds of statements.
#include "embedded/syntax/Parser.h"

namespace kavelin::embedded {

StatementPtr Parser::ParseStatement()
{
    Level level(*this);
    const std::uint32_t start = Here().place.offset;
    auto statement = std::make_unique<Statement>(ParseStatementBody());
    statement->place = Since(start);
    return statement;
}

Statement Parser::ParseStatementBody()
{
    switch (Here().keyword) {
        case Keyword::Select: return {SelectStatement{ParseQuery(Into::Allowed)}, {}};
        case Keyword::Insert: return {ParseInsert(), {}};
        case Keyword::Update: return {ParseUpdate(), {}};
        case Keyword::Delete: return {ParseDelete(), {}};
        case Keyword::Create: return ParseCreate();
        case Keyword::Alter: return ParseAlter();
        case Keyword::Drop: return {ParseDrop(), {}};
        case Keyword::If: return {ParseIf(), {}};
        case Keyword::Set: return {ParseIdentityInsert(), {}};
        default: Refuse();
    }
}

IfExistsStatement Parser::ParseIf()
{
    IfExistsStatement made;
    Expect({Keyword::If});
    made.negated = Accept(Keyword::Not);
    Expect({Keyword::Exists});
    made.query = ParseSubquery();
    made.then = ParseStatement();
    return made;
}

InsertStatement Parser::ParseInsert()
{
    InsertStatement made;
    Expect({Keyword::Insert, Keyword::Into});
    made.target = ParseObjectName();
    if (At(TokenKind::OpenBracket))
        made.columns = ParseNamesInBrackets();
    if (!Accept(Keyword::Values)) {
        made.query = ParseQuery(Into::Refused);
        return made;
    }
    ParseList([&] {
        std::vector<ExprPtr>& row = made.values.emplace_back();
        Expect(TokenKind::OpenBracket);
        ParseList([&] { row.push_back(ParseValue()); });
        Expect(TokenKind::CloseBracket);
    });
    return made;
}

UpdateStatement Parser::ParseUpdate()
{
    UpdateStatement made;
    Expect({Keyword::Update});
    made.target = ParseObjectName();
    Expect({Keyword::Set});
    ParseList([&] { made.assignments.push_back(ParseAssignment()); });
    if (At(Keyword::From))
        made.from = ParseFrom();
    if (Accept(Keyword::Where))
        made.where = ParseCondition();
    return made;
}

Assignment Parser::ParseAssignment()
{
    Assignment made;
    auto [table, column] = ToColumnName(ParseParts());
    made.table = std::move(table);
    made.column = std::move(column);
    Expect(TokenKind::Equal);
    made.value = ParseValue();
    return made;
}

// `delete T ...`, `delete from T ...`, `delete T from T a inner join ...`.
DeleteStatement Parser::ParseDelete()
{
    DeleteStatement made;
    Expect({Keyword::Delete});
    Accept(Keyword::From);
    made.target = ParseObjectName();
    if (At(Keyword::From))
        made.from = ParseFrom();
    if (Accept(Keyword::Where))
        made.where = ParseCondition();
    return made;
}

}  // namespace kavelin::embedded
