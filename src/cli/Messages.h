// What the program says to the person at the terminal: always on stderr.
#pragma once

#include <stdexcept>
#include <string>

namespace kavelin::cli {

// One line, as it is.
void Say(const std::string& text);

// "kavelin: text", the name in red where there is colour.
void Complain(const std::string& text);

// The reader of stdout has had enough (`kavelin query ... | head`): no failure, and nothing to say.
class OutputClosed : public std::runtime_error {
  public:
    OutputClosed() : std::runtime_error("The output is closed.") {}
};

// To be called in a catch block: tells the error that is being handled and gives its exit code.
// `interrupted`: the user pressed Ctrl-C, and whatever failed did so because of it.
int ExplainFailure(bool interrupted);

}  // namespace kavelin::cli
