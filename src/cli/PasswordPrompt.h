// Asking for a password at the terminal.
#pragma once

#include <optional>
#include <string>

namespace kavelin::cli {

// Shows the question on stderr and reads a line from stdin without showing it. Nothing where stdin is no
// terminal. Throws CancelledError when the user presses Ctrl-C or ends the input.
std::optional<std::string> AskPassword(const std::string& question);

}  // namespace kavelin::cli
