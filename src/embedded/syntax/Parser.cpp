#include "embedded/syntax/Parser.h"

#include "embedded/Plan.h"
#include "embedded/SqlError.h"
#include "embedded/syntax/Lexer.h"
#include "frame/Text.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

constexpr std::size_t kLongestWordShown = 128;

std::string Shown(const Token& token)
{
    return Left(token.value, kLongestWordShown);
}

}  // namespace

Parser::Parser(std::string_view text) : objTokens(Tokenize(text)) {}

std::vector<StatementPtr> Parser::ParseAll()
{
    std::vector<StatementPtr> statements;
    while (true) {
        while (Accept(TokenKind::Semicolon)) {
        }
        if (At(TokenKind::End))
            return statements;
        statements.push_back(ParseStatement());
    }
}

const Token& Parser::Ahead(std::size_t count) const
{
    return objTokens[std::min(lngHere + count, objTokens.size() - 1)];
}

const Token& Parser::Take()
{
    if (At(TokenKind::End))
        Refuse();
    return objTokens[lngHere++];
}

bool Parser::Accept(TokenKind kind)
{
    if (!At(kind))
        return false;
    ++lngHere;
    return true;
}

bool Parser::Accept(Keyword keyword)
{
    if (!At(keyword))
        return false;
    ++lngHere;
    return true;
}

const Token& Parser::Expect(TokenKind kind)
{
    if (!At(kind))
        Refuse();
    return Take();
}

void Parser::Expect(std::initializer_list<Keyword> keywords)
{
    for (const Keyword keyword : keywords)
        if (!Accept(keyword))
            Refuse();
}

bool Parser::AcceptWord(std::string_view word)
{
    const bool isWord = At(TokenKind::Word) || At(TokenKind::Keyword);
    if (!isWord || !EqualsNoCase(Here().value, word))
        return false;
    ++lngHere;
    return true;
}

void Parser::ExpectWord(std::string_view word)
{
    if (!AcceptWord(word))
        Refuse();
}

Place Parser::Since(std::uint32_t start) const
{
    return {start, Last().place.offset + Last().place.length - start};
}

// As the server does, a text that ends too early is refused at its last word.
void Parser::Refuse() const
{
    if (At(TokenKind::End) && lngHere > 0)
        throw SqlError(102, "Incorrect syntax near '" + Shown(Last()) + "'.", Last().place);
    if (At(Keyword::Foreign))
        throw SqlError(102, "the embedded engine doesn't know " + ToUpper(Here().value), Here().place);
    if (At(TokenKind::Keyword))
        RefuseName();
    throw SqlError(102, "Incorrect syntax near '" + Shown(Here()) + "'.", Here().place);
}

void Parser::RefuseName() const
{
    if (!At(TokenKind::Keyword))
        Refuse();
    throw SqlError(156, "Incorrect syntax near the keyword '" + Here().value + "'.", Here().place);
}

void Parser::RefuseDepth() const
{
    throw SqlError(191,
                   "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up "
                   "into smaller queries.",
                   Here().place);
}

std::vector<StatementPtr> ParseBatch(std::string_view text)
{
    return Parser(text).ParseAll();
}

}  // namespace kavelin::embedded
