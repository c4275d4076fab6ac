// Runs the built program as a user would, in an environment of its own.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kavelin::cli {

struct Outcome {
    int exitCode = -1;  // 128 and the signal's number if one ended it
    std::string out, err;
    std::string echo;                          // what the terminal showed of what was typed
    std::chrono::milliseconds sinceSignal{0};  // from the first signal to the end
};

struct RunOptions {
    std::map<std::string, std::string> environment;  // beside what every run gets
    std::filesystem::path folder;                    // working folder
    std::string typed;            // if not empty, stdin is a terminal on which a user types that
                                  // as soon as he is asked for something
    bool errorTerminal = false;   // stderr is a terminal of 80 columns
    bool outputTerminal = false;  // stdout is one
    std::chrono::milliseconds interruptAfter{0};  // Ctrl-C then; 0: never
    std::chrono::milliseconds killAfter{0};       // kill -9 then; 0: never
    bool closeOutput = false;                     // the reader of stdout goes away at once
};

// The program, in a home folder that goes with this object, so that no settings of the machine count.
class Program {
  public:
    Program();
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Outcome Run(const std::vector<std::string>& arguments, RunOptions options = {}) const;

    // A folder that is empty at first, and the working folder unless told otherwise.
    const std::filesystem::path& Folder() const { return objFolder; }

    void Write(const std::string& file, const std::string& text) const;
    std::string Read(const std::string& file) const;

    // Names in the folder, in order.
    std::vector<std::string> Files() const;

  private:
    std::filesystem::path objHome, objFolder;
};

}  // namespace kavelin::cli
