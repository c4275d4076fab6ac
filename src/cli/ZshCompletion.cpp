// The script hands each command's options and arguments to zsh's _arguments.
#include "cli/Completion.h"

#include "frame/Text.h"

#include <fmt/format.h>

namespace kavelin::cli {

namespace {

// Text inside '...[text]...' of _arguments.
std::string Described(const std::string& text)
{
    std::string escaped = ReplaceAll(text, "'", "'\\''");
    for (const char* special : {"[", "]", ":"})
        escaped = ReplaceAll(escaped, special, std::string("\\") + special);
    return escaped;
}

std::string ValueAction(const CompletionOption& option)
{
    switch (option.value) {
        case Completes::Words: return "(" + Joined(option.words) + ")";
        case Completes::File: return "_files";
        case Completes::Folder: return "_files -/";
        case Completes::Report: return "_kavelin_reports";
        case Completes::Key: return "_kavelin_keys -S =";
        case Completes::KeyName: return "_kavelin_keys";
        case Completes::Nothing: break;
    }
    return "";
}

// 'account load' -> "_kavelin_account_load".
std::string FunctionName(const std::string& path)
{
    return "_kavelin" + (path.empty() ? "" : "_" + ReplaceAll(path, " ", "_"));
}

std::string Arguments(const CompletionCommand& command)
{
    std::string text;
    for (const CompletionOption& option : command.options)
        text += fmt::format(" \\\n        '{}{}[{}]{}'", option.value == Completes::Key ? "*" : "",
                            option.name, Described(option.description),
                            option.takesValue ? ":value:" + ValueAction(option) : "");
    for (std::size_t place = 0; place < command.arguments.size(); ++place)
        text +=
            fmt::format(" \\\n        '{}:{}:{}'", place + 1, Described(command.arguments[place].description),
                        ValueAction(command.arguments[place]));
    return text;
}

std::string Function(const CompletionModel& model, const CompletionCommand& command)
{
    std::string text = FunctionName(command.path) + "()\n{\n";
    if (command.commands.empty())
        return text + "    _arguments" + Arguments(command) + "\n}\n\n";

    text += "    local line state\n    _arguments -C" + Arguments(command) +
            " \\\n        '1:command:->command' \\\n        '*::argument:->argument'\n    case $state in\n"
            "        command)\n            local commands=(\n";
    const std::string prefix = command.path.empty() ? "" : command.path + " ";
    for (const CompletionCommand& sub : model.commands)
        for (const std::string& name : command.commands)
            if (sub.path == prefix + name)
                text += fmt::format("                '{}:{}'\n", name, Described(sub.description));
    text +=
        "            )\n            _describe command commands ;;\n        argument)\n            case $line[1] in\n";
    for (const std::string& name : command.commands)
        text += fmt::format("                {}) {} ;;\n", name, FunctionName(prefix + name));
    return text + "            esac ;;\n    esac\n}\n\n";
}

}  // namespace

std::string ZshScript(const CompletionModel& model)
{
    std::string text =
        "#compdef kavelin\n# Completion of kavelin for zsh.\n\n_kavelin_reports()\n{\n    local reports=(\n";
    for (const CompletionReport& report : model.reports)
        text += fmt::format("        '{}:{}'\n", report.name, Described(report.title));
    text +=
        "    )\n    _describe report reports\n}\n\n_kavelin_keys()\n{\n    local keys=()\n    case $words in\n";
    for (const CompletionReport& report : model.reports)
        text += fmt::format("        *' {} '*|*' {}') keys=({}) ;;\n", report.name, report.name,
                            Joined(report.keys));
    text += "    esac\n    compadd \"$@\" -- $keys\n}\n\n";
    for (const CompletionCommand& command : model.commands)
        text += Function(model, command);
    return text +
           "if [[ $zsh_eval_context[-1] == loadautofunc ]]; then\n    _kavelin \"$@\"\nelse\n"
           "    compdef _kavelin kavelin\nfi\n";
}

}  // namespace kavelin::cli
