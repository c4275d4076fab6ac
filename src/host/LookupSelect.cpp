#include "host/LookupSelect.h"

#include "embedded/syntax/Lexer.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/FieldCondition.h"
#include "host/FieldValues.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <span>
#include <utility>

namespace kavelin::host {

namespace {

using embedded::Keyword;
using embedded::Token;
using embedded::TokenKind;
using Tokens = std::span<const Token>;

constexpr std::string_view kSource = "Lookup";  // alias of the derived table

std::size_t Begin(const Token& token)
{
    return token.place.offset;
}

std::size_t End(const Token& token)
{
    return token.place.offset + token.place.length;
}

bool IsName(const Token& token)
{
    return token.kind == TokenKind::Word || token.kind == TokenKind::Bracketed;
}

// The place of the first `keyword` outside of brackets, the number of tokens if there is none.
std::size_t FindOutside(Tokens tokens, Keyword keyword, std::size_t from)
{
    int depth = 0;
    for (std::size_t i = from; i < tokens.size(); ++i) {
        depth += tokens[i].kind == TokenKind::OpenBracket;
        depth -= tokens[i].kind == TokenKind::CloseBracket;
        if (depth == 0 && tokens[i].keyword == keyword)
            return i;
    }
    return tokens.size();
}

// The parts between commas outside of brackets.
std::vector<Tokens> Parts(Tokens tokens)
{
    std::vector<Tokens> parts;
    int depth = 0;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        depth += tokens[i].kind == TokenKind::OpenBracket;
        depth -= tokens[i].kind == TokenKind::CloseBracket;
        if (depth == 0 && tokens[i].kind == TokenKind::Comma) {
            parts.push_back(tokens.subspan(begin, i - begin));
            begin = i + 1;
        }
    }
    parts.push_back(tokens.subspan(begin));
    return parts;
}

// "WareHouse.cWhCode" and "[warehouse].[cwhcode]" as one text.
std::string Flattened(Tokens tokens)
{
    std::string text;
    for (const Token& token : tokens)
        text += ToLower(token.kind == TokenKind::Dot ? "." : token.value);
    return text;
}

std::string Flattened(std::string_view text)
{
    const std::vector<Token> tokens = embedded::Tokenize(text);
    return Flattened(Tokens(tokens).first(tokens.size() - 1));
}

// "Inventory.cInvCode" -> "cInvCode".
std::string BareName(std::string_view column)
{
    const auto dot = column.rfind('.');
    return std::string(dot == column.npos ? column : column.substr(dot + 1));
}

std::string Bracketed(std::string_view name)
{
    return "[" + ReplaceAll(name, "]", "]]") + "]";
}

// What stands in front of a column's name, which is its last token: "a as [b]", "a b"; the name itself where
// it is that of a column, "t.a". Nothing if it has none.
std::optional<Tokens> ExpressionOf(Tokens item)
{
    if (item.empty() || !IsName(item.back()))
        return std::nullopt;
    if (item.size() == 1)
        return item;
    const Token& before = item[item.size() - 2];
    if (before.kind == TokenKind::Dot)
        return item;
    if (before.keyword == Keyword::As)
        return item.first(item.size() - 2);
    const bool ends = IsName(before) || before.kind == TokenKind::CloseBracket ||
                      before.kind == TokenKind::Text || before.kind == TokenKind::NationalText ||
                      before.kind == TokenKind::Number;
    return ends ? std::optional(item.first(item.size() - 1)) : std::nullopt;
}

// 1 for "fld1".
std::optional<std::size_t> FieldNumber(const Token& token)
{
    std::size_t number = 0;
    if (token.kind != TokenKind::Word || !EqualsNoCase(Left(token.value, 3), "fld"))
        return std::nullopt;
    const char* const end = token.value.data() + token.value.size();
    const auto [stop, error] = std::from_chars(token.value.data() + 3, end, number);
    return error == std::errc() && stop == end && number > 0 ? std::optional(number) : std::nullopt;
}

}  // namespace

LookupSelect::LookupSelect(const std::string& select)
{
    const std::vector<Token> all = embedded::Tokenize(select);
    const Tokens tokens = Tokens(all).first(all.size() - 1);
    const std::size_t from = FindOutside(tokens, Keyword::From, 0);
    if (tokens.empty() || tokens[0].keyword != Keyword::Select || from == tokens.size())
        throw Error("A lookup needs a SELECT with a FROM, not \"" + select + "\".");

    const std::size_t first = tokens[1].keyword == Keyword::Distinct ? 2 : 1;
    for (const Tokens item : Parts(tokens.subspan(first, from - first))) {
        const auto expression = ExpressionOf(item);
        if (!expression)
            throw Error("A column of a lookup has no name: \"" + select + "\".");
        lstColumns.push_back({item.back().value, Flattened(*expression), item.back().value, false});
    }

    const std::size_t order = FindOutside(tokens, Keyword::Order, from);
    strBody = order == tokens.size() ? select : select.substr(0, Begin(tokens[order]));
    if (order + 2 < tokens.size())
        for (const Tokens term : Parts(tokens.subspan(order + 2)))
            lstOrder.push_back(
                FindOrder(select.substr(Begin(term.front()), End(term.back()) - Begin(term.front()))));
}

LookupSelect::LookupSelect(const LookupTemplate& lookup, const std::string& condition,
                           std::string_view language)
{
    std::vector<std::string> items;
    for (const LookupColumn& column : lookup.columns) {
        lstColumns.push_back(
            {BareName(column.column), Flattened(column.column), column.caption.In(language), column.hidden});
        items.push_back(column.column + " as " + Bracketed(lstColumns.back().name));
    }
    strBody = std::string("select ") + (lookup.distinct ? "distinct " : "") + JoinTexts(items, ", ") +
              " from " + lookup.from;
    std::vector<std::string> conditions;
    for (const std::string& one : {lookup.where, condition})
        if (!one.empty())
            conditions.push_back("(" + one + ")");
    if (!conditions.empty())
        strBody += " where " + JoinTexts(conditions, " and ");
    for (const std::string& term :
         Split(lookup.order.empty() ? lookup.columns.front().column : lookup.order, ","))
        lstOrder.push_back(FindOrder(term));
}

std::vector<std::string> LookupSelect::Captions() const
{
    std::vector<std::string> captions;
    for (const Column* column : Shown())
        captions.push_back(column->caption);
    return captions;
}

std::string LookupSelect::Resolve(const std::string& condition) const
{
    std::string resolved;
    std::size_t written = 0;
    const auto replace = [&](std::size_t begin, std::size_t end, const Column& column) {
        resolved += condition.substr(written, begin - written) + Named(column);
        written = end;
    };
    const std::vector<Token> tokens = embedded::Tokenize(condition);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (token.kind == TokenKind::Word && EqualsNoCase(token.value, "#FN") &&
            tokens[i + 1].kind == TokenKind::Bracketed)
            replace(Begin(token), End(tokens[i + 1]), Find(tokens[i + 1].value));
        else if (const auto number = FieldNumber(token); number && *number <= lstColumns.size())
            replace(Begin(token), End(token), lstColumns[*number - 1]);
    }
    return resolved + condition.substr(written);
}

std::string LookupSelect::Search(std::string_view text) const
{
    if (Trim(text).empty())
        return "";
    const std::string pattern = LikePattern(Trim(text));
    const std::vector<const Column*> shown = Shown();
    std::string search = Named(*shown[0]) + " like " + TextLiteral(pattern + "%");
    if (shown.size() > 1)
        search += " or " + Named(*shown[1]) + " like " + TextLiteral("%" + pattern + "%");
    return search;
}

std::string LookupSelect::Select(std::size_t rows, const std::vector<std::string>& conditions) const
{
    std::vector<std::string> items, order;
    for (const Order& term : lstOrder)
        order.push_back(Named(lstColumns[term.column]) + (term.descending ? " desc" : ""));
    for (const Column* column : Shown()) {
        items.push_back(Named(*column));
        const auto ordered = [&](const Order& term) { return &lstColumns[term.column] == column; };
        if (std::ranges::none_of(lstOrder, ordered))
            order.push_back(items.back());
    }
    return "select top " + std::to_string(rows) + " " + JoinTexts(items, ", ") + Source(conditions) +
           " order by " + JoinTexts(order, ", ");
}

std::string LookupSelect::SelectCount(const std::vector<std::string>& conditions) const
{
    return "select count(*)" + Source(conditions);
}

std::string LookupSelect::Named(const Column& column) const
{
    return std::string(kSource) + "." + Bracketed(column.name);
}

std::string LookupSelect::Source(const std::vector<std::string>& conditions) const
{
    std::vector<std::string> tests;
    for (const std::string& condition : conditions)
        if (!Trim(condition).empty())
            tests.push_back("(" + std::string(Trim(condition)) + ")");
    return " from (" + strBody + ") " + std::string(kSource) +
           (tests.empty() ? "" : " where " + JoinTexts(tests, " and "));
}

const LookupSelect::Column& LookupSelect::Find(std::string_view name) const
{
    for (const Column& column : lstColumns)
        if (EqualsNoCase(column.name, name) || EqualsNoCase(BareName(column.expression), name))
            return column;
    throw Error("The lookup has no column " + std::string(name) + ", which a condition on it names.");
}

// A name of a column, its expression, or its number.
LookupSelect::Order LookupSelect::FindOrder(std::string_view term) const
{
    const std::vector<Token> all = embedded::Tokenize(term);
    Tokens tokens = Tokens(all).first(all.size() - 1);
    const bool descending = tokens.back().keyword == Keyword::Desc;
    if (descending || tokens.back().keyword == Keyword::Asc)
        tokens = tokens.first(tokens.size() - 1);
    const std::string flat = Flattened(tokens);
    for (std::size_t i = 0; i < lstColumns.size(); ++i)
        if (EqualsNoCase(lstColumns[i].name, flat) || lstColumns[i].expression == flat ||
            std::to_string(i + 1) == flat)
            return {i, descending};
    throw Error("The lookup is ordered by " + std::string(Trim(term)) + ", which it doesn't select.");
}

std::vector<const LookupSelect::Column*> LookupSelect::Shown() const
{
    std::vector<const Column*> shown;
    for (const Column& column : lstColumns)
        if (!column.hidden)
            shown.push_back(&column);
    return shown;
}

}  // namespace kavelin::host
