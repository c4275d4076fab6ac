// How statement texts are put together: one piece of SQL a source line, the line ends visible in the call.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace kavelin {

// The pieces with CR LF between them.
std::string JoinLines(std::initializer_list<std::string_view> pieces);

// The pieces with CR LF after each.
std::string EndLines(std::initializer_list<std::string_view> pieces);

// The piece once for each number from `first` to `last`, "{}" in it replaced by the number:
// Numbered(1, 10, " ,line.free{} as free{}").
std::string Numbered(int first, int last, std::string_view piece);

}  // namespace kavelin
