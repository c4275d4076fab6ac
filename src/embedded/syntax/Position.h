// Where in a text a byte stands, as a person counts.
#pragma once

#include <cstddef>
#include <string_view>

namespace kavelin::embedded {

struct LineColumn {
    std::size_t line = 1;    // from 1; CR LF, LF and CR each end a line
    std::size_t column = 1;  // in characters from 1

    bool operator==(const LineColumn&) const = default;
};

// The position of the byte at `offset`; an offset beyond the text is the end of the text.
LineColumn LineAndColumn(std::string_view text, std::size_t offset);

}  // namespace kavelin::embedded
