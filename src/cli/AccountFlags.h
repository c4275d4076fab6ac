// Which account a command works on.
#pragma once

#include "host/Config.h"
#include "host/ReportRun.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace CLI {
class App;
}

namespace kavelin::cli {

// Adds --account. `flags` must live as long as the command.
void AddAccountFlag(CLI::App& command, host::Flags& flags);

// Adds --language and --user, for commands that run reports.
void AddLoginFlags(CLI::App& command, host::Flags& flags);

// Where `kavelin demo` makes its account if it is not told otherwise: of the default profile, and of another
// one by its name.
std::filesystem::path DemoAccountPath();
std::filesystem::path DemoAccountPath(std::string_view profile);

// The settings of the flags, the environment and the files. Throws UsageError.
host::Config LoadConfig(const host::Flags& flags);

// The account of the flags and settings; the demo account if none is named and it is there. Throws
// UsageError if there is neither.
host::AccountSettings ChosenAccount(const host::Config& config);

// The login for that account.
host::AccountLogin ChosenLogin(const host::Flags& flags);

// The same; nothing where ChosenAccount finds no account.
std::optional<host::AccountLogin> LoginIfAny(const host::Flags& flags);

}  // namespace kavelin::cli
