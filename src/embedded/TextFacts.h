// What is known of all values of a text, to spare work when it is compared. T-SQL compares without regard
// to case and to trailing blanks, so a comparison folds both sides; a side known to be folded already is
// compared as it stands. False means "not known", which is always safe.
#pragma once

#include <string_view>

namespace kavelin::embedded {

struct TextFacts {
    bool noTrailingBlanks = false;  // no value ends in a blank
    bool noCase = false;            // every character is of ASCII without a-z, or caseless beyond it

    bool operator==(const TextFacts&) const = default;
};

TextFacts FactsOf(std::string_view text);

// What both know: the facts of a value that is one or the other.
TextFacts Both(const TextFacts& a, const TextFacts& b);

// Whether a character beyond ASCII has no case in any table: Chinese, Japanese and Korean with their
// punctuation, full-width letters left out. Of all others it is left open. Every stage asks here, since what
// one takes for caseless another must not fold.
bool IsCaselessBeyondAscii(char32_t character);

}  // namespace kavelin::embedded
