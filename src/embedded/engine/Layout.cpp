#include "embedded/engine/Layout.h"

#include "frame/Text.h"

#include <algorithm>
#include <vector>

namespace kavelin::embedded {

namespace {

struct Token {
    std::string_view text;
    bool blankBefore = false;
    std::size_t close = 0;  // of an opening bracket or CASE: where it ends

    bool Is(std::string_view word) const { return EqualsNoCase(text, word); }
};

using Tokens = std::vector<Token>;

bool IsBreak(char c)
{
    return c == ' ' || c == '(' || c == ')' || c == ',' || c == '\'' || c == '"';
}

std::size_t EndOfToken(std::string_view text, std::size_t begin)
{
    const char first = text[begin];
    if (first == '\'' || first == '"') {
        std::size_t end = begin + 1;
        while (end < text.size() && (text[end] != first || (end + 1 < text.size() && text[end + 1] == first)))
            end += text[end] == first ? 2 : 1;
        return std::min(end + 1, text.size());
    }
    if (IsBreak(first))
        return begin + 1;
    std::size_t end = begin;
    while (end < text.size() && !IsBreak(text[end]))
        ++end;
    return end;
}

Tokens Split(std::string_view text)
{
    Tokens tokens;
    std::vector<std::size_t> open;
    bool blank = false;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            blank = true;
            ++at;
            continue;
        }
        const std::size_t end = EndOfToken(text, at);
        Token token{text.substr(at, end - at), blank, tokens.size()};
        const bool opens = token.text == "(" || token.Is("case");
        const bool closes = token.text == ")" || token.text.substr(0, 3) == "END" || token.Is("end");
        if (opens)
            open.push_back(tokens.size());
        else if (closes && !open.empty()) {
            tokens[open.back()].close = tokens.size();
            open.pop_back();
        }
        tokens.push_back(token);
        blank = false;
        at = end;
    }
    for (const std::size_t unclosed : open)
        tokens[unclosed].close = unclosed;
    return tokens;
}

constexpr std::string_view kClauses[] = {"select", "from",  "where", "group", "having", "order",
                                         "limit",  "union", "inner", "left",  "set",    "values"};

class Layouter {
  public:
    explicit Layouter(const Tokens& tokens) : objTokens(tokens) {}

    // The tokens from `begin` up to `end`, the first of which stands at column `indent`.
    std::string Lay(std::size_t begin, std::size_t end, std::size_t indent)
    {
        if (Fits(begin, end, indent))
            return Flat(begin, end);
        const auto clauses = Starts(begin, end, [&](std::size_t i) { return IsClause(i, begin); });
        if (clauses.size() > 1)
            return Parts(clauses, end, indent,
                         [&](std::size_t from, std::size_t to) { return LayClause(from, to, indent); });
        return LayClause(begin, end, indent);
    }

  private:
    std::size_t Next(std::size_t i) const { return objTokens[i].close + 1; }

    bool IsClause(std::size_t i, std::size_t begin) const
    {
        // left(x, 2) is a function.
        const Token& token = objTokens[i];
        if (token.Is("left") && !(i + 1 < objTokens.size() && objTokens[i + 1].Is("join")))
            return false;
        return i > begin && std::ranges::any_of(kClauses, [&](auto clause) { return token.Is(clause); });
    }

    std::string Flat(std::size_t begin, std::size_t end) const
    {
        std::string text;
        for (std::size_t i = begin; i < end; ++i) {
            text += objTokens[i].blankBefore && i > begin ? " " : "";
            text += objTokens[i].text;
        }
        return text;
    }

    bool Fits(std::size_t begin, std::size_t end, std::size_t indent) const
    {
        std::size_t length = indent;
        for (std::size_t i = begin; i < end && length <= kLayoutWidth; ++i)
            length += objTokens[i].text.size() + (objTokens[i].blankBefore ? 1 : 0);
        return length <= kLayoutWidth;
    }

    static std::string NewLine(std::size_t indent) { return "\n" + std::string(indent, ' '); }

    // `begin`, and every place outside of brackets where a part starts.
    template <class StartsPart>
    std::vector<std::size_t> Starts(std::size_t begin, std::size_t end, StartsPart&& startsPart) const
    {
        std::vector<std::size_t> starts{begin};
        for (std::size_t i = begin; i < end; i = Next(i))
            if (startsPart(i))
                starts.push_back(i);
        return starts;
    }

    template <class LayPart>
    std::string Parts(const std::vector<std::size_t>& starts, std::size_t end, std::size_t indent,
                      LayPart&& layPart)
    {
        std::string text;
        for (std::size_t k = 0; k < starts.size(); ++k) {
            const std::size_t to = k + 1 < starts.size() ? starts[k + 1] : end;
            if (starts[k] < to)
                text += (text.empty() ? "" : NewLine(indent)) + layPart(starts[k], to);
        }
        return text;
    }

    std::string LayClause(std::size_t begin, std::size_t end, std::size_t indent)
    {
        if (Fits(begin, end, indent))
            return Flat(begin, end);
        const bool named =
            std::ranges::any_of(kClauses, [&](auto clause) { return objTokens[begin].Is(clause); });
        std::size_t first = named ? begin + 1 : begin;
        while (named && first < end && objTokens[first].Is("by"))
            ++first;
        const std::size_t inner = named ? indent + 2 : indent;

        auto starts =
            Starts(first, end, [&](std::size_t i) { return i > first && objTokens[i - 1].text == ","; });
        if (starts.size() == 1 && !objTokens[begin].Is("left") && !objTokens[begin].Is("inner"))
            starts = Starts(first, end, [&](std::size_t i) { return IsLogical(i, first); });
        if (starts.size() == 1)
            return LayPiece(begin, end, indent);
        const std::string items = Parts(
            starts, end, inner, [&](std::size_t from, std::size_t to) { return LayPiece(from, to, inner); });
        return named ? Flat(begin, first) + NewLine(inner) + items : items;
    }

    // AND and OR between conditions, not that of BETWEEN.
    bool IsLogical(std::size_t i, std::size_t first) const
    {
        if (i == first || !(objTokens[i].Is("and") || objTokens[i].Is("or")))
            return false;
        for (std::size_t k = i; k-- > first && i - k < 4;)
            if (objTokens[k].Is("between"))
                return false;
        return true;
    }

    // Brackets that don't fit on the line are opened.
    std::string LayPiece(std::size_t begin, std::size_t end, std::size_t indent)
    {
        std::string text;
        std::size_t column = indent;
        for (std::size_t i = begin; i < end; i = Next(i)) {
            const std::size_t after = std::min(Next(i), end);
            const std::string blank = objTokens[i].blankBefore && i > begin ? " " : "";
            const std::string flat = Flat(i, after);
            const bool small = flat.size() <= 16;  // (19,4) is not worth opening
            if (column + blank.size() + flat.size() <= kLayoutWidth || small || after == i + 1) {
                if (column + flat.size() > kLayoutWidth && !blank.empty()) {
                    text += NewLine(indent + 2);
                    column = indent + 2;
                } else {
                    text += blank;
                    column += blank.size();
                }
                text += flat;
                column += flat.size();
                continue;
            }
            text += blank + std::string(objTokens[i].text) + NewLine(indent + 2);
            text += objTokens[i].text == "(" ? Lay(i + 1, after - 1, indent + 2)
                                             : LayCase(i + 1, after - 1, indent + 2);
            text += NewLine(indent) + std::string(objTokens[after - 1].text);
            column = indent + objTokens[after - 1].text.size();
        }
        return text;
    }

    std::string LayCase(std::size_t begin, std::size_t end, std::size_t indent)
    {
        const auto branches = Starts(begin, end, [&](std::size_t i) {
            return i > begin && (objTokens[i].Is("when") || objTokens[i].Is("else"));
        });
        return Parts(branches, end, indent,
                     [&](std::size_t from, std::size_t to) { return LayPiece(from, to, indent); });
    }

    const Tokens& objTokens;
};

}  // namespace

std::string LayOut(std::string_view statement, std::size_t indent)
{
    const Tokens tokens = Split(statement);
    return Layouter(tokens).Lay(0, tokens.size(), indent);
}

}  // namespace kavelin::embedded
