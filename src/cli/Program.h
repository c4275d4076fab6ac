// The program `kavelin`: reads the command line, runs the command, tells what went wrong.
#pragma once

namespace kavelin::cli {

// Exit codes.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;    // the report or the statement failed
inline constexpr int kWrongUse = 2;  // or a refused value; nothing was changed
inline constexpr int kNoConnection = 3;
inline constexpr int kInterrupted = 130;  // Ctrl-C

// Gives the exit code. Data go to stdout, everything else to stderr.
int RunProgram(int argc, char** argv);

}  // namespace kavelin::cli
