// The script is a list of `complete` lines, each with the command line that it holds for.
#include "cli/Completion.h"

#include "frame/Text.h"

#include <fmt/format.h>

namespace kavelin::cli {

namespace {

std::string Quoted(const std::string& text)
{
    return "'" + ReplaceAll(ReplaceAll(text, "\\", "\\\\"), "'", "\\'") + "'";
}

// The condition under which the words so far lead to that command.
std::string At(const CompletionCommand& command)
{
    std::string condition;
    for (const std::string& word : Split(command.path, " "))
        condition += (condition.empty() ? "" : "; and ") + ("__fish_seen_subcommand_from " + word);
    if (!command.commands.empty())
        condition += (condition.empty() ? "" : "; and ") +
                     ("not __fish_seen_subcommand_from " + Joined(command.commands));
    return condition;
}

std::string ValueOf(const CompletionOption& option)
{
    switch (option.value) {
        case Completes::Words: return " -a " + Quoted(Joined(option.words));
        case Completes::File: return " -F";
        case Completes::Folder: return " -a '(__fish_complete_directories)'";
        case Completes::Report: return " -a '(__kavelin_reports)'";
        case Completes::Key: return " -a '(__kavelin_keys =)'";
        case Completes::KeyName: return " -a '(__kavelin_keys)'";
        case Completes::Nothing: break;
    }
    return "";
}

std::string Lines(const CompletionModel& model, const CompletionCommand& command)
{
    const std::string start = "complete -c kavelin -n " + Quoted(At(command));
    const std::string prefix = command.path.empty() ? "" : command.path + " ";
    std::string text;
    for (const CompletionCommand& sub : model.commands)
        for (const std::string& name : command.commands)
            if (sub.path == prefix + name)
                text += fmt::format("{} -a {} -d {}\n", start, name, Quoted(sub.description));
    for (const CompletionOption& option : command.options)
        text += fmt::format("{} -l {}{}{} -d {}\n", start, option.name.substr(2),
                            option.takesValue ? " -r" : "", ValueOf(option), Quoted(option.description));
    for (const CompletionOption& argument : command.arguments)
        if (argument.value != Completes::Nothing)
            text += start + ValueOf(argument) + "\n";
    return text;
}

}  // namespace

std::string FishScript(const CompletionModel& model)
{
    std::string text =
        "# Completion of kavelin for fish.\ncomplete -c kavelin -f\n\nfunction __kavelin_reports\n";
    for (const CompletionReport& report : model.reports)
        text += fmt::format("    printf '%s\\t%s\\n' {} {}\n", report.name, Quoted(report.title));
    text += "end\n\nfunction __kavelin_keys\n    for word in (commandline -opc)\n        switch $word\n";
    for (const CompletionReport& report : model.reports)
        if (!report.keys.empty())
            text += fmt::format("            case {}\n                printf \"%s$argv[1]\\n\" {}\n",
                                report.name, Joined(report.keys));
    text += "        end\n    end\nend\n\n";
    for (const CompletionCommand& command : model.commands)
        text += Lines(model, command);
    return text;
}

}  // namespace kavelin::cli
