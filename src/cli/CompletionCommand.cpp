// kavelin completion bash|zsh|fish
#include "cli/Commands.h"
#include "cli/Completion.h"
#include "cli/Help.h"
#include "host/HostErrors.h"
#include "host/ValueGate.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <array>
#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace {

struct Shell {
    std::string_view name;
    std::string (*script)(const CompletionModel&);
};
constexpr std::array<Shell, 3> kShells = {{{"bash", BashScript}, {"zsh", ZshScript}, {"fish", FishScript}}};

void WriteScript(const CLI::App& program, const std::string& name)
{
    for (const Shell& shell : kShells) {
        if (shell.name == name) {
            std::cout << shell.script(ModelOf(program));
            return;
        }
    }
    throw host::UsageError(name.empty()
                               ? std::string("completion needs the name of a shell: bash, zsh or fish.")
                               : fmt::format("completion knows bash, zsh and fish, not \"{}\".", name));
}

}  // namespace

void AddCompletion(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(program, "completion", "Write the completion script of a shell",
                                   "completion bash > ~/.local/share/bash-completion/completions/kavelin\n"
                                   "completion zsh > ~/.zfunc/_kavelin\n"
                                   "completion fish > ~/.config/fish/completions/kavelin.fish");
    const auto shell = std::make_shared<std::string>();
    command->add_option("shell", *shell, "bash, zsh or fish")->type_name("SHELL");
    OnChosen(*command, action, [&program, shell] { WriteScript(program, *shell); });
}

}  // namespace kavelin::cli
