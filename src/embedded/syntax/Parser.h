// The second stage: tokens in, syntax tree out. Recursive descent; a function a construct, a file a family
// of constructs. The entry for everyone else is ParseBatch in embedded/Plan.h.
//
// Every Parse... function begins at the current token, takes what belongs to its construct and leaves the
// first token behind it current. Every failure is a SqlError at the token that cannot stand there.
#pragma once

#include "embedded/syntax/Token.h"
#include "embedded/syntax/Tree.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::embedded {

class Parser {
  public:
    // Deeper texts and deeper trees are refused with error 191, so that no stage runs out of stack.
    static constexpr int kMaxNesting = 200;
    static constexpr int kMaxHeight = 1000;

    explicit Parser(std::string_view text);

    std::vector<StatementPtr> ParseAll();

  private:
    // What may stand where an expression is asked for. Brackets at the begin of a condition may hold
    // either: `(a + b) * 2 = c`, `(a = 1 or b = 2)`.
    enum class Wanted { Value, Condition, Either };

    class Subtree;
    class Level;

    // A name with dots, as it stands: `vossystem..ua_period.iYear` has an empty second part.
    using Parts = std::vector<std::optional<Name>>;

    // --- tokens (Parser.cpp)
    const Token& Here() const { return objTokens[lngHere]; }
    const Token& Ahead(std::size_t count) const;
    const Token& Last() const { return objTokens[lngHere - 1]; }  // the one taken last
    bool At(TokenKind kind) const { return Here().kind == kind; }
    bool At(Keyword keyword) const { return Here().keyword == keyword; }
    const Token& Take();
    bool Accept(TokenKind kind);
    bool Accept(Keyword keyword);
    const Token& Expect(TokenKind kind);
    void Expect(std::initializer_list<Keyword> keywords);  // one after the other
    bool AcceptWord(std::string_view word);                // one that has no part elsewhere: `function`
    void ExpectWord(std::string_view word);
    Place Since(std::uint32_t start) const;  // from there to the token taken last
    [[noreturn]] void Refuse() const;        // the current token cannot stand here
    [[noreturn]] void RefuseName() const;    // a name is asked for, and the current token is none
    [[noreturn]] void RefuseDepth() const;

    template <class Node>
    ExprPtr Make(std::uint32_t start, Node&& node) const
    {
        return std::make_unique<Expr>(Expr{std::forward<Node>(node), Since(start)});
    }

    // One or more items between commas.
    template <class ParseItem>
    void ParseList(ParseItem parseItem)
    {
        do
            parseItem();
        while (Accept(TokenKind::Comma));
    }

    // --- names and types (ParserNames.cpp)
    bool AtName() const { return At(TokenKind::Word) || At(TokenKind::Bracketed); }
    Name ParseName();
    std::vector<Name> ParseNamesInBrackets();
    Parts ParseParts();
    ObjectName ToObjectName(Parts parts) const;
    ObjectName ParseObjectName() { return ToObjectName(ParseParts()); }
    std::pair<std::optional<ObjectName>, Name> ToColumnName(Parts parts) const;
    TypeName ParseType();
    std::int64_t ParseInteger();  // digits, with or without a sign
    template <class Integer>
    Integer ParseWholeNumber();  // digits; int or std::int64_t

    // --- expressions (ParserExpressions.cpp)
    ExprPtr ParseValue() { return ParseSum(Wanted::Value); }
    ExprPtr ParseSum(Wanted wanted);
    ExprPtr ParseProduct(Wanted wanted);
    ExprPtr ParseSigned(Wanted wanted);
    ExprPtr ParsePrimary(Wanted wanted);
    ExprPtr ParseBrackets(Wanted wanted);
    ExprPtr ParseCase();
    ExprPtr ParseNamed();
    ExprPtr ParseCast();
    ExprPtr ParseConvert();
    ExprPtr ParseCall(std::uint32_t start, ObjectName function);
    ExprPtr ParseIdentity();

    // --- conditions (ParserConditions.cpp)
    ExprPtr ParseCondition() { return ParseOr(Wanted::Condition); }
    ExprPtr ParseOr(Wanted wanted);
    ExprPtr ParseAnd(Wanted wanted);
    ExprPtr ParseNot(Wanted wanted);
    ExprPtr ParsePredicate(Wanted wanted);
    ExprPtr ParseIn(ExprPtr operand, bool negated);
    ExprPtr ParseExists();
    void RequireCondition(const Expr& expression) const;

    // --- queries (ParserQueries.cpp)
    enum class Into { Allowed, Refused };
    QueryPtr ParseQuery(Into into);
    QueryPtr ParseSubquery();  // between brackets
    Select ParseSelect(Into into);
    SelectItem ParseSelectItem();
    bool AtStarItem() const;
    void ParseItemAlias(SelectItem& item);
    std::vector<TableSourcePtr> ParseFrom();
    TableSourcePtr ParseJoins();
    TableSourcePtr ParseTable();
    std::vector<OrderItem> ParseOrderBy();

    // --- statements (ParserStatements.cpp)
    StatementPtr ParseStatement();
    Statement ParseStatementBody();
    IfExistsStatement ParseIf();
    InsertStatement ParseInsert();
    UpdateStatement ParseUpdate();
    Assignment ParseAssignment();
    DeleteStatement ParseDelete();

    // --- definitions (ParserDefinitions.cpp)
    Statement ParseCreate();
    CreateTableStatement ParseCreateTable();
    void RequireFirst(std::size_t statement, const std::string& what) const;
    void RequireLast();
    CreateViewStatement ParseCreateView();
    CreateFunctionStatement ParseCreateFunction();
    CreateIndexStatement ParseCreateIndex(bool unique);
    Statement ParseAlter();
    ColumnDefinition ParseColumnDefinition();
    void ParseIdentityOption(ColumnDefinition& column);
    DropStatement ParseDrop();
    IdentityInsertStatement ParseIdentityInsert();

    std::vector<Token> objTokens;
    std::size_t lngHere = 0;
    int intNesting = 0;  // constructs that stand in one another here
    int intHeight = 0;   // of the tree in the making; see Subtree
};

// The height of one tree in the making. `1 + 1 + 1 ...` nests nothing in the text, and yet each sign puts
// one more level on the tree, which later stages walk down by recursion. A Subtree measures what is parsed
// in its life, and hands it on to the one around it as the height of a child.
class Parser::Subtree {
  public:
    explicit Subtree(Parser& owner) : objParser(owner), intOuter(std::exchange(owner.intHeight, 0)) {}
    ~Subtree()
    {
        if (objParser.intHeight < intOuter)
            objParser.intHeight = intOuter;
    }
    Subtree(const Subtree&) = delete;
    Subtree& operator=(const Subtree&) = delete;

    // A node was put on top of all that was parsed.
    void Grow()
    {
        if (++objParser.intHeight > kMaxHeight)
            objParser.RefuseDepth();
    }

  protected:
    Parser& objParser;

  private:
    int intOuter;
};

// A construct that may stand in itself: one level in the text and one in the tree.
class Parser::Level : public Subtree {
  public:
    explicit Level(Parser& owner) : Subtree(owner)
    {
        if (owner.intNesting == kMaxNesting)
            owner.RefuseDepth();
        ++owner.intNesting;
    }
    ~Level()
    {
        --objParser.intNesting;
        ++objParser.intHeight;
    }
};

// Whether the expression is a condition and not a value.
bool IsCondition(const Expr& expression);

// The rows of a view, a derived table or a subquery have no order; ORDER BY may stand there only to say
// which rows TOP takes. Throws 1033.
void RequireTopWithOrder(const Query& query);

}  // namespace kavelin::embedded
