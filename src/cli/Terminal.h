// What the two streams of the program are connected to.
#pragma once

namespace kavelin::cli {

enum class Stream { Output = 1, Error = 2 };  // by their numbers

bool IsTerminal(Stream stream);

// A terminal that takes colours, unless NO_COLOR is set to something.
bool HasColour(Stream stream);

// In columns. Where the stream is no terminal: COLUMNS, else 0, which means no bound.
int TerminalWidth(Stream stream);

// Whether nobody reads the stream any more: the other end of a pipe is closed.
bool IsClosedPipe(Stream stream);

}  // namespace kavelin::cli
