// Helpers for text that users see: lengths, lefts and rights count characters, not bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin {

// Equal without regard to case. Letters of ASCII, Latin, Greek and Cyrillic and full-width letters have
// case; everything else, Chinese among it, equals itself only.
bool EqualsNoCase(std::string_view a, std::string_view b);

// For containers keyed by names without regard to case.
struct LessNoCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

std::string ToLower(std::string_view text);
std::string ToUpper(std::string_view text);

// Without the blanks (U+0020 only) at both ends.
std::string_view Trim(std::string_view text);

// In characters.
std::size_t Length(std::string_view text);
std::string Left(std::string_view text, std::size_t count);
std::string Right(std::string_view text, std::size_t count);

std::vector<std::string> Split(std::string_view text, std::string_view separator);
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view by);

// The next character of UTF-8 text at `position`, which moves behind it. A byte that begins no character
// gives U+FFFD and moves by one.
char32_t NextCharacter(std::string_view text, std::size_t& position);
void AppendCharacter(std::string& text, char32_t character);

}  // namespace kavelin
