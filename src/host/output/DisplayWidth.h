// How wide text stands on a terminal: Chinese and other wide characters take two columns, combining marks
// none. A column here is a column of the screen.
#pragma once

#include <string>
#include <string_view>

namespace kavelin::host {

// 0, 1 or 2.
int DisplayWidth(char32_t character);
int DisplayWidth(std::string_view text);

// At most `width` columns of the text; a text that is cut ends in "…", which counts.
std::string CutToWidth(std::string_view text, int width);

// The text fit to show on one line: line ends and tabs become blanks, other control characters and those
// that turn the direction of writing become U+FFFD, so that no value can steer the terminal.
std::string Printable(std::string_view text);

}  // namespace kavelin::host
