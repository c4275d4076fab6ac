// The words and signs that a batch is made of.
#pragma once

#include "embedded/syntax/Keywords.h"
#include "embedded/syntax/Tree.h"

#include <cstdint>
#include <string>

namespace kavelin::embedded {

enum class TokenKind : std::uint8_t {
    End,        // behind the last token
    Word,       // a name written without brackets
    Bracketed,  // [x]
    Keyword,    // a reserved word
    Number,
    Text,          // '...'
    NationalText,  // N'...'
    Dot,
    Comma,
    Semicolon,
    OpenBracket,
    CloseBracket,
    Plus,
    Minus,
    Star,
    Slash,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
};

struct Token {
    TokenKind kind = TokenKind::End;
    Keyword keyword = Keyword::None;
    std::string value;  // as written; of a bracketed name or a text what it holds, doubled signs made single
    Place place;
};

}  // namespace kavelin::embedded
