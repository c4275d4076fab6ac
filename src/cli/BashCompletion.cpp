// The script walks the words before the cursor down to the command, then offers what may follow. Its cases
// read "command:option", "command:word", "command:place".
#include "cli/Completion.h"

#include <fmt/format.h>

namespace kavelin::cli {

namespace {

// The bash command that fills COMPREPLY for such a value; empty where nothing can be offered.
std::string Offer(const CompletionOption& option)
{
    switch (option.value) {
        case Completes::Words:
            return fmt::format("COMPREPLY=($(compgen -W '{}' -- \"$cur\"))", Joined(option.words));
        case Completes::File:
            return "COMPREPLY=($(compgen -f -- \"$cur\")); compopt -o filenames 2>/dev/null";
        case Completes::Folder:
            return "COMPREPLY=($(compgen -d -- \"$cur\")); compopt -o filenames 2>/dev/null";
        case Completes::Report: return "COMPREPLY=($(compgen -W \"$reports\" -- \"$cur\"))";
        case Completes::Key:
            return "COMPREPLY=($(compgen -S = -W \"$keys\" -- \"$cur\")); compopt -o nospace 2>/dev/null";
        case Completes::KeyName: return "COMPREPLY=($(compgen -W \"$keys\" -- \"$cur\"))";
        case Completes::Nothing: break;
    }
    return "";
}

std::string Or(const std::string& text, const std::string& otherwise)
{
    return text.empty() ? otherwise : text;
}

std::string ValueCases(const CompletionModel& model)
{
    std::string text;
    for (const CompletionCommand& command : model.commands) {
        for (const CompletionOption& option : command.options)
            if (option.takesValue)
                text += fmt::format("        '{}:{}') {}; return ;;\n", command.path, option.name,
                                    Or(Offer(option), ":"));
    }
    return text;
}

std::string WordCases(const CompletionModel& model)
{
    std::string text;
    for (const CompletionCommand& command : model.commands) {
        std::vector<std::string> options;
        for (const CompletionOption& option : command.options)
            options.push_back(option.name);
        text += fmt::format("        '{}:-'*) COMPREPLY=($(compgen -W '{}' -- \"$cur\")) ;;\n", command.path,
                            Joined(options));
        if (!command.commands.empty())
            text += fmt::format("        '{}:'*) COMPREPLY=($(compgen -W '{}' -- \"$cur\")) ;;\n",
                                command.path, Joined(command.commands));
    }
    return text;
}

std::string ArgumentCases(const CompletionModel& model)
{
    std::string text;
    for (const CompletionCommand& command : model.commands)
        for (std::size_t place = 0; place < command.arguments.size(); ++place)
            text += fmt::format("        '{}:{}') {} ;;\n", command.path, place,
                                Or(Offer(command.arguments[place]), ":"));
    return text;
}

// Options of the command that take a value, by which the walk knows which words are no arguments.
std::string TakingCases(const CompletionModel& model)
{
    std::string text;
    for (const CompletionCommand& command : model.commands)
        for (const CompletionOption& option : command.options)
            if (option.takesValue)
                text += fmt::format("{}'{}:{}'", text.empty() ? "" : "|", command.path, option.name);
    return text;
}

std::string CommandCases(const CompletionModel& model)
{
    std::string text;
    for (const CompletionCommand& command : model.commands)
        for (const std::string& sub : command.commands)
            text += fmt::format("{}'{}:{}'", text.empty() ? "" : "|", command.path, sub);
    return text;
}

std::string KeyCases(const CompletionModel& model)
{
    std::string text;
    for (const CompletionReport& report : model.reports)
        text += fmt::format("        {}) keys='{}' ;;\n", report.name, Joined(report.keys));
    return text;
}

}  // namespace

std::string BashScript(const CompletionModel& model)
{
    std::vector<std::string> reports;
    for (const CompletionReport& report : model.reports)
        reports.push_back(report.name);

    return fmt::format(R"bash(# Completion of kavelin for bash.
_kavelin()
{{
    local words=() command='' option='' place=0 first='' keys='' reports='{}' i word cur
    COMPREPLY=()

    # bash breaks words at "=": put them together again.
    for ((i = 0; i <= COMP_CWORD; ++i)); do
        if [[ $i -gt 0 && (${{COMP_WORDS[i]}} == = || ${{COMP_WORDS[i - 1]}} == =) ]]; then
            words[${{#words[@]}} - 1]+=${{COMP_WORDS[i]}}
        else
            words+=("${{COMP_WORDS[i]}}")
        fi
    done
    cur=${{words[${{#words[@]}} - 1]}}

    # The command, the option whose value is at the cursor, and the place among the arguments.
    for ((i = 1; i < ${{#words[@]}} - 1; ++i)); do
        word=${{words[i]}}
        if [[ -n $option ]]; then
            option=''
            continue
        fi
        case "$command:$word" in
            {}) option=$word ;;
            {}) command="${{command:+$command }}$word" ;;
            *:-*) ;;
            *) [[ $place == 0 ]] && first=$word; place=$((place + 1)) ;;
        esac
    done

    case "$first" in
{}    esac
    case "$command:$option" in
{}    esac
    case "$command:$cur" in
{}    esac
    [[ $cur == -* || ${{#COMPREPLY[@]}} -gt 0 ]] && return
    case "$command:$place" in
{}    esac
}}
complete -F _kavelin kavelin
)bash",
                       Joined(reports), TakingCases(model), CommandCases(model), KeyCases(model),
                       ValueCases(model), WordCases(model), ArgumentCases(model));
}

}  // namespace kavelin::cli
