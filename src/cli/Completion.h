// Completion scripts for shells, written from the program's own tables: its commands and options, the
// reports and their filter keys.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kavelin::cli {

// A Key is one of the report with "=" behind it, a KeyName without.
enum class Completes { Nothing, Words, File, Folder, Report, Key, KeyName };

struct CompletionOption {
    std::string name;  // "--format"
    std::string description;
    bool takesValue = false;
    Completes value = Completes::Nothing;
    std::vector<std::string> words;  // for Completes::Words
};

struct CompletionCommand {
    std::string path;  // "run", "account load"; the program itself is ""
    std::string description;
    std::vector<CompletionOption> options;
    std::vector<std::string> commands;        // below it
    std::vector<CompletionOption> arguments;  // by position; only `value` and `words` count
};

struct CompletionReport {
    std::string name;
    std::string title;
    std::vector<std::string> keys;
};

struct CompletionModel {
    std::vector<CompletionCommand> commands;  // each before those below it
    std::vector<CompletionReport> reports;    // those that run
};

CompletionModel ModelOf(const CLI::App& program);

// The words with a blank between them.
std::string Joined(const std::vector<std::string>& words);

std::string BashScript(const CompletionModel& model);
std::string ZshScript(const CompletionModel& model);
std::string FishScript(const CompletionModel& model);

}  // namespace kavelin::cli
