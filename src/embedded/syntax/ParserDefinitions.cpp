// Statements that make, change and drop tables, views and indexes.
#include "embedded/SqlError.h"
#include "embedded/syntax/Parser.h"
#include "frame/Text.h"

namespace kavelin::embedded {

Statement Parser::ParseCreate()
{
    const std::size_t first = lngHere;
    Expect({Keyword::Create});
    if (Accept(Keyword::Table))
        return {ParseCreateTable(), {}};
    if (Accept(Keyword::View)) {
        RequireFirst(first, "CREATE VIEW");
        Statement made{ParseCreateView(), {}};
        RequireLast();
        return made;
    }
    if (AcceptWord("function")) {
        RequireFirst(first, "CREATE FUNCTION");
        Statement made{ParseCreateFunction(), {}};
        RequireLast();
        return made;
    }
    const bool unique = Accept(Keyword::Unique);
    Expect({Keyword::Index});
    return {ParseCreateIndex(unique), {}};
}

// Views and functions are alone in their batch. `statement` is the place of the first token.
void Parser::RequireFirst(std::size_t statement, const std::string& what) const
{
    if (statement > 0)
        throw SqlError(111, "'" + what + "' must be the first statement in a query batch.",
                       objTokens[statement].place);
}

void Parser::RequireLast()
{
    const std::size_t end = lngHere;
    while (Accept(TokenKind::Semicolon)) {
    }
    if (!At(TokenKind::End))
        Refuse();
    lngHere = end;
}

CreateViewStatement Parser::ParseCreateView()
{
    CreateViewStatement made;
    made.view = ParseObjectName();
    Expect({Keyword::As});
    made.query = ParseQuery(Into::Refused);
    RequireTopWithOrder(*made.query);
    return made;
}

// Columns, and at most one `primary key (a, b)` among them.
CreateTableStatement Parser::ParseCreateTable()
{
    CreateTableStatement made;
    made.table = ParseObjectName();
    Expect(TokenKind::OpenBracket);
    ParseList([&] {
        if (At(Keyword::Primary) && made.primaryKey.empty()) {
            Expect({Keyword::Primary, Keyword::Key});
            made.primaryKey = ParseNamesInBrackets();
        } else {
            made.columns.push_back(ParseColumnDefinition());
        }
    });
    Expect(TokenKind::CloseBracket);
    return made;
}

CreateFunctionStatement Parser::ParseCreateFunction()
{
    CreateFunctionStatement made;
    made.function = ParseObjectName();
    Expect(TokenKind::OpenBracket);
    Expect(TokenKind::CloseBracket);
    ExpectWord("returns");
    made.returns = ParseType();
    Accept(Keyword::As);
    ExpectWord("begin");
    ExpectWord("return");
    if (!At(TokenKind::Text) && !At(TokenKind::NationalText) && !At(TokenKind::Number) && !At(Keyword::Null))
        Refuse();
    made.answer = ParsePrimary(Wanted::Value);
    Accept(TokenKind::Semicolon);
    Expect({Keyword::End});
    return made;
}

CreateIndexStatement Parser::ParseCreateIndex(bool unique)
{
    CreateIndexStatement made;
    made.unique = unique;
    made.index = ParseName();
    Expect({Keyword::On});
    made.table = ParseObjectName();
    made.columns = ParseNamesInBrackets();
    return made;
}

Statement Parser::ParseAlter()
{
    Expect({Keyword::Alter, Keyword::Table});
    ObjectName table = ParseObjectName();
    if (Accept(Keyword::Alter)) {
        AlterColumnStatement made;
        made.table = std::move(table);
        Expect({Keyword::Column});
        made.column.name = ParseName();
        made.column.type = ParseType();
        const bool notNull = Accept(Keyword::Not);
        if (notNull)
            Expect({Keyword::Null});
        if (notNull || Accept(Keyword::Null))
            made.column.nullable = !notNull;
        return {std::move(made), {}};
    }
    AddColumnsStatement made;
    made.table = std::move(table);
    Expect({Keyword::Add});
    ParseList([&] { made.columns.push_back(ParseColumnDefinition()); });
    return {std::move(made), {}};
}

// Name, type, then the options in any order, each once.
ColumnDefinition Parser::ParseColumnDefinition()
{
    ColumnDefinition column;
    column.name = ParseName();
    column.type = ParseType();
    while (true) {
        if ((At(Keyword::Null) || At(Keyword::Not)) && !column.nullable) {
            column.nullable = !Accept(Keyword::Not);
            Expect({Keyword::Null});
        } else if (At(Keyword::Identity) && !column.identity) {
            ParseIdentityOption(column);
        } else if (At(Keyword::Default) && !column.defaultValue) {
            Take();
            column.defaultValue = ParseSigned(Wanted::Value);
        } else if (At(Keyword::Primary) && !column.primaryKey) {
            Expect({Keyword::Primary, Keyword::Key});
            column.primaryKey = true;
        } else {
            return column;
        }
    }
}

void Parser::ParseIdentityOption(ColumnDefinition& column)
{
    Expect({Keyword::Identity});
    column.identity = true;
    if (!Accept(TokenKind::OpenBracket))
        return;
    column.seed = ParseInteger();
    Expect(TokenKind::Comma);
    column.increment = ParseInteger();
    Expect(TokenKind::CloseBracket);
}

// `drop table a, b` and `drop view a, b`.
DropStatement Parser::ParseDrop()
{
    DropStatement made;
    Expect({Keyword::Drop});
    made.view = Accept(Keyword::View);
    if (!made.view)
        Expect({Keyword::Table});
    ParseList([&] { made.objects.push_back(ParseObjectName()); });
    return made;
}

// `set identity_insert T on`; no other option is known.
IdentityInsertStatement Parser::ParseIdentityInsert()
{
    if (!EqualsNoCase(Ahead(1).value, "identity_insert"))
        Refuse();
    IdentityInsertStatement made;
    Expect({Keyword::Set});
    ExpectWord("identity_insert");
    made.table = ParseObjectName();
    made.on = Accept(Keyword::On);
    if (!made.on)
        ExpectWord("off");
    return made;
}

}  // namespace kavelin::embedded
