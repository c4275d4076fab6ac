#include "cli/AccountFlags.h"

#include "cli/PasswordPrompt.h"
#include "demo/profiles/Profile.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/LocalText.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

namespace kavelin::cli {

void AddAccountFlag(CLI::App& command, host::Flags& flags)
{
    command.add_option("--account", flags.account, "A name of kavelin.toml, a path, or a connection string")
        ->type_name("A");
}

void AddLoginFlags(CLI::App& command, host::Flags& flags)
{
    command.add_option("--language", flags.language, "zh-CN (by default) or en-US")->type_name("LANGUAGE");
    command.add_option("--user", flags.user, "Whose permissions count")->type_name("U");
}

std::filesystem::path DemoAccountPath()
{
    return host::DataFolder(host::ConfigSources::OfProcess()) / "demo.kavelin";
}

std::filesystem::path DemoAccountPath(std::string_view profile)
{
    const std::filesystem::path path = DemoAccountPath();
    return EqualsNoCase(profile, demo::Profiles().front().name)
               ? path
               : path.parent_path() / fmt::format("demo-{}.kavelin", profile);
}

host::Config LoadConfig(const host::Flags& flags)
{
    if (flags.language && *flags.language != host::kChinese && *flags.language != host::kEnglish)
        throw host::UsageError(fmt::format("--language takes zh-CN or en-US, not \"{}\".", *flags.language));
    host::ConfigSources sources = host::ConfigSources::OfProcess();
    sources.askPassword = AskPassword;
    return host::Config::Load(flags, sources);
}

namespace {

std::optional<host::AccountSettings> AccountIfAny(const host::Config& config)
{
    if (auto account = config.Account())
        return account;
    const std::filesystem::path demo = DemoAccountPath();
    std::error_code ignored;
    if (std::filesystem::exists(demo, ignored))
        return config.Account(demo.string());
    return std::nullopt;
}

}  // namespace

host::AccountSettings ChosenAccount(const host::Config& config)
{
    if (const auto account = AccountIfAny(config))
        return *account;
    throw host::UsageError("No account is named. Give one with --account, or make a demo: kavelin demo");
}

host::AccountLogin ChosenLogin(const host::Flags& flags)
{
    const host::Config config = LoadConfig(flags);
    return host::LoginFor(config, ChosenAccount(config));
}

std::optional<host::AccountLogin> LoginIfAny(const host::Flags& flags)
{
    const host::Config config = LoadConfig(flags);
    const auto account = AccountIfAny(config);
    return account ? std::optional(host::LoginFor(config, *account)) : std::nullopt;
}

}  // namespace kavelin::cli
