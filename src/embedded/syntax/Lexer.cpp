#include "embedded/syntax/Lexer.h"

#include "embedded/SqlError.h"
#include "embedded/syntax/Characters.h"
#include "frame/Text.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

namespace kavelin::embedded {

namespace {

constexpr std::size_t kLongestName = 128;  // in characters
constexpr std::size_t kLongestQuote = 128;

struct SpelledSign {
    std::string_view text;
    TokenKind kind;
};
constexpr SpelledSign kSigns[] = {
    // the longer ones first
    {"<>", TokenKind::NotEqual},   {"<=", TokenKind::LessOrEqual}, {">=", TokenKind::GreaterOrEqual},
    {"<", TokenKind::Less},        {">", TokenKind::Greater},      {"=", TokenKind::Equal},
    {".", TokenKind::Dot},         {",", TokenKind::Comma},        {";", TokenKind::Semicolon},
    {"(", TokenKind::OpenBracket}, {")", TokenKind::CloseBracket}, {"+", TokenKind::Plus},
    {"-", TokenKind::Minus},       {"*", TokenKind::Star},         {"/", TokenKind::Slash},
};

// Signs that T-SQL has and this engine has not.
constexpr std::string_view kForeignSigns = "%&|^~!@\"";

class Lexer {
  public:
    explicit Lexer(std::string_view text) : strText(text) {}

    std::vector<Token> Run()
    {
        CheckText();
        std::vector<Token> tokens;
        do {
            SkipBlanks();
            tokens.push_back(NextToken());
            blnLineBegin = false;
        } while (tokens.back().kind != TokenKind::End);
        return tokens;
    }

  private:
    // So that the rest need not think of bytes that are no characters, nor of places beyond 32 bits.
    void CheckText() const
    {
        if (strText.size() > std::numeric_limits<std::uint32_t>::max())
            throw SqlError(102, "The text of the batch is too long.", {});
        for (std::size_t position = 0; position < strText.size();) {
            const std::size_t start = position;
            const char32_t character = NextCharacter(strText, position);
            if (character == 0xFFFD && position == start + 1)
                throw SqlError(102, "Incorrect syntax: the text is not valid UTF-8.",
                               PlaceOf(start, position));
            if (character == 0)
                throw SqlError(102, "Incorrect syntax: the text holds a NUL character.",
                               PlaceOf(start, position));
        }
    }

    bool AtEnd() const { return lngPosition == strText.size(); }
    bool At(std::string_view text) const { return strText.substr(lngPosition).starts_with(text); }

    // The character `ahead` bytes from here, where that is ASCII; 0 behind the text.
    char ByteAt(std::size_t ahead) const
    {
        return lngPosition + ahead < strText.size() ? strText[lngPosition + ahead] : '\0';
    }
    bool DigitAt(std::size_t ahead) const { return IsDigit(static_cast<unsigned char>(ByteAt(ahead))); }

    static Place PlaceOf(std::size_t start, std::size_t end)
    {
        return {static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end - start)};
    }

    void SkipBlanks()
    {
        while (!AtEnd()) {
            const char here = strText[lngPosition];
            if (IsBlank(static_cast<unsigned char>(here))) {
                blnLineBegin = blnLineBegin || here == '\n' || here == '\r';
                ++lngPosition;
            } else if (At("--")) {
                SkipLineComment();
            } else if (At("/*")) {
                SkipBlockComment();
            } else {
                return;
            }
        }
    }

    void CheckCommentBegin() const
    {
        if (!blnLineBegin)
            throw SqlError(102, "the embedded engine knows comments only on lines of their own",
                           PlaceOf(lngPosition, lngPosition + 2));
    }

    void SkipLineComment()
    {
        CheckCommentBegin();
        const std::size_t end = strText.find_first_of("\r\n", lngPosition);
        lngPosition = end == std::string_view::npos ? strText.size() : end;
    }

    void SkipBlockComment()
    {
        CheckCommentBegin();
        const std::size_t start = lngPosition;
        int open = 0;  // block comments nest
        do {
            if (AtEnd())
                throw SqlError(113, "Missing end comment mark '*/'.", PlaceOf(start, start + 2));
            const int change = At("/*") ? 1 : At("*/") ? -1 : 0;
            lngPosition += change == 0 ? 1 : 2;
            open += change;
        } while (open > 0);
    }

    Token NextToken()
    {
        if (AtEnd())
            return {TokenKind::End, Keyword::None, "", PlaceOf(lngPosition, lngPosition)};
        const char here = strText[lngPosition];
        if (here == '\'')
            return ReadText(TokenKind::Text, 0);
        if ((here == 'N' || here == 'n') && ByteAt(1) == '\'')
            return ReadText(TokenKind::NationalText, 1);
        if (here == '[')
            return ReadBracketed();
        if (DigitAt(0) || (here == '.' && DigitAt(1)))
            return ReadNumber();
        if (std::optional<Token> word = ReadWord())
            return std::move(*word);
        return ReadSign();
    }

    // What stands between two signs; a sign inside is doubled. `start` is the begin of the token, the
    // opening sign stands `prefix` bytes behind it.
    Token ReadQuoted(TokenKind kind, std::size_t prefix, char closing)
    {
        const std::size_t start = lngPosition;
        std::string value;
        lngPosition += prefix + 1;
        while (true) {
            const std::size_t end = strText.find(closing, lngPosition);
            value += strText.substr(lngPosition, end - lngPosition);
            if (end == std::string_view::npos) {
                throw SqlError(105,
                               "Unclosed quotation mark after the character string '" +
                                   Left(value, kLongestQuote) + "'.",
                               PlaceOf(start, start + prefix + 1));
            }
            lngPosition = end + 1;
            if (ByteAt(0) != closing)
                break;
            value += closing;
            ++lngPosition;
        }
        return {kind, Keyword::None, std::move(value), PlaceOf(start, lngPosition)};
    }

    Token ReadText(TokenKind kind, std::size_t prefix) { return ReadQuoted(kind, prefix, '\''); }

    Token ReadBracketed()
    {
        Token token = ReadQuoted(TokenKind::Bracketed, 0, ']');
        if (token.value.empty())
            throw SqlError(1038, "An object or column name is missing or empty.", token.place);
        CheckNameLength(token);
        return token;
    }

    static void CheckNameLength(const Token& token)
    {
        if (token.value.size() > kLongestName && Length(token.value) > kLongestName) {
            throw SqlError(103,
                           "The identifier that starts with '" + Left(token.value, kLongestName) +
                               "' is too long. Maximum length is 128.",
                           token.place);
        }
    }

    void SkipDigits()
    {
        while (DigitAt(0))
            ++lngPosition;
    }

    // Digits with a fraction and an exponent. A letter behind it begins the next word: `0end`, `1and`.
    Token ReadNumber()
    {
        const std::size_t start = lngPosition;
        SkipDigits();
        if (ByteAt(0) == '.') {
            ++lngPosition;
            SkipDigits();
        }
        if (ByteAt(0) == 'e' || ByteAt(0) == 'E') {
            const std::size_t sign = ByteAt(1) == '+' || ByteAt(1) == '-' ? 1 : 0;
            if (DigitAt(1 + sign)) {
                lngPosition += 1 + sign;
                SkipDigits();
            }
        }
        return {TokenKind::Number, Keyword::None, std::string(strText.substr(start, lngPosition - start)),
                PlaceOf(start, lngPosition)};
    }

    std::optional<Token> ReadWord()
    {
        std::size_t end = lngPosition;
        if (!BeginsName(NextCharacter(strText, end)))
            return std::nullopt;
        for (std::size_t next = end; next < strText.size() && ContinuesName(NextCharacter(strText, next));)
            end = next;

        Token token{TokenKind::Word, Keyword::None,
                    std::string(strText.substr(lngPosition, end - lngPosition)), PlaceOf(lngPosition, end)};
        if (token.value.starts_with("##"))  // a table that all connections see
            throw SqlError(102, "the embedded engine doesn't know ##", token.place);
        CheckNameLength(token);
        token.keyword = FindKeyword(token.value);
        if (token.keyword != Keyword::None)
            token.kind = TokenKind::Keyword;
        lngPosition = end;
        return token;
    }

    Token ReadSign()
    {
        for (const SpelledSign& sign : kSigns)
            if (At(sign.text)) {
                const std::size_t start = std::exchange(lngPosition, lngPosition + sign.text.size());
                return {sign.kind, Keyword::None, std::string(sign.text), PlaceOf(start, lngPosition)};
            }

        std::size_t end = lngPosition;
        NextCharacter(strText, end);
        const std::string sign(strText.substr(lngPosition, end - lngPosition));
        throw SqlError(102,
                       kForeignSigns.find(sign) != std::string_view::npos
                           ? "the embedded engine doesn't know " + sign
                           : "Incorrect syntax near '" + sign + "'.",
                       PlaceOf(lngPosition, end));
    }

    std::string_view strText;
    std::size_t lngPosition = 0;
    bool blnLineBegin = true;  // nothing but blanks and comments since the last line end
};

}  // namespace

std::vector<Token> Tokenize(std::string_view text)
{
    return Lexer(text).Run();
}

}  // namespace kavelin::embedded
