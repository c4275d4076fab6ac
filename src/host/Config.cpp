#include "host/Config.h"

#include "frame/Text.h"
#include "host/ConfigFile.h"
#include "host/HostErrors.h"
#include "host/ServerAccount.h"
#include "host/ValueGate.h"

#include <fmt/format.h>

#include <charconv>
#include <cstdlib>
#include <vector>

namespace kavelin::host {

namespace {

constexpr std::string_view kFileName = "kavelin.toml";
constexpr const char* kPasswordVariable = "KAVELIN_PASSWORD";

std::filesystem::path XdgFolder(const ConfigSources& sources, const std::string& variable,
                                const char* underHome)
{
    if (const auto folder = sources.environment(variable); folder && folder->starts_with('/'))
        return std::filesystem::path(*folder) / "kavelin";
    if (const auto home = sources.environment("HOME"); home && !home->empty())
        return std::filesystem::path(*home) / underHome / "kavelin";
    throw Error("Neither " + variable + " nor HOME says where the user's files are.");
}

bool Exists(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

}  // namespace

ConfigSources ConfigSources::OfProcess()
{
    ConfigSources sources;
    sources.environment = [](const std::string& name) -> std::optional<std::string> {
        const char* value = std::getenv(name.c_str());
        return value ? std::optional<std::string>(value) : std::nullopt;
    };
    sources.workingFolder = std::filesystem::current_path();
    return sources;
}

std::filesystem::path ConfigFolder(const ConfigSources& sources)
{
    return XdgFolder(sources, "XDG_CONFIG_HOME", ".config");
}

std::filesystem::path DataFolder(const ConfigSources& sources)
{
    return XdgFolder(sources, "XDG_DATA_HOME", ".local/share");
}

Config Config::Load(const Flags& flags, const ConfigSources& sources)
{
    Config config;
    config.objSources = sources;
    config.objFlags = flags;
    const std::filesystem::path folder = ConfigFolder(sources);
    config.strSettingsFile = folder / "settings.json";
    ReadConfigFile(folder / kFileName, config.objFiles);
    ReadConfigFile(sources.workingFolder / kFileName, config.objFiles);
    return config;
}

std::optional<AccountSettings> Config::Account() const
{
    std::string text = FlagOrVariable(objFlags.account, "KAVELIN_ACCOUNT");
    if (text.empty())
        text = objFiles.account;
    return text.empty() ? std::nullopt : std::optional(Account(text));
}

AccountSettings Config::Account(const std::string& text) const
{
    std::vector<std::string> names;
    for (const auto& [name, account] : objFiles.accounts) {
        if (EqualsNoCase(name, text))
            return account;
        names.push_back(name);
    }

    AccountSettings account;
    const std::filesystem::path path = objSources.workingFolder / text;
    const bool isConnectionString = text.find('=') != std::string::npos;
    if (Exists(path) || (!isConnectionString && text.find_first_of("/.") != std::string::npos)) {
        account.path = path.lexically_normal().string();
        return account;
    }
    if (!isConnectionString)
        throw UsageError(fmt::format("There is no account \"{}\" in kavelin.toml and no file of that name.{}",
                                     text, DidYouMean(text, names)));
    RefusePassword(text, "account");
    account.connectionString = text;
    return account;
}

std::string Config::Language(const AccountSettings& account) const
{
    return ChosenLanguage(account).value_or("zh-CN");
}

std::optional<std::string> Config::ChosenLanguage(const AccountSettings& account) const
{
    if (const std::string text = FlagOrVariable(objFlags.language, "KAVELIN_LANGUAGE"); !text.empty())
        return CheckedLanguage(text, objFlags.language ? "language" : "KAVELIN_LANGUAGE");
    if (!account.language.empty())
        return account.language;
    return objFiles.language.empty() ? std::nullopt : std::optional(objFiles.language);
}

std::string Config::User(const AccountSettings& account) const
{
    if (std::string text = FlagOrVariable(objFlags.user, "KAVELIN_USER"); !text.empty())
        return text;
    if (!account.user.empty())
        return account.user;
    return objFiles.user.empty() ? "demo" : objFiles.user;
}

int Config::Year(const AccountSettings& account) const
{
    return NumberOf(objFlags.year, "KAVELIN_YEAR", account.year, 1900, 9998);
}

int Config::Month(const AccountSettings& account) const
{
    return NumberOf(objFlags.month, "KAVELIN_MONTH", account.month, 1, 12);
}

std::string Config::Password(const AccountSettings& account) const
{
    if (account.passwordVariable.empty())
        return WantsPassword(account.connectionString) ? PasswordFor(account.connectionString) : "";
    const auto password = objSources.environment(account.passwordVariable);
    if (!password)
        throw UsageError("The account " + account.name +
                         " takes its password from the environment variable " + account.passwordVariable +
                         ", which is not set.");
    return *password;
}

std::string Config::PasswordFor(const std::string& connectionString) const
{
    const std::string server = ServerShown(connectionString);
    if (auto password = objSources.environment(kPasswordVariable))
        return *password;
    if (objSources.askPassword)
        if (auto password = objSources.askPassword(fmt::format("Password for {}: ", server)))
            return *password;
    throw UsageError(
        fmt::format("The login to {} takes a password: put it into the environment variable {}, or name "
                    "another one by password_env in kavelin.toml.",
                    server, kPasswordVariable));
}

std::string Config::FlagOrVariable(const std::optional<std::string>& flag, const std::string& variable) const
{
    return flag ? *flag : objSources.environment(variable).value_or("");
}

int Config::NumberOf(const std::optional<int>& flag, const std::string& variable, int ofAccount, int first,
                     int last) const
{
    int number = ofAccount;
    if (flag) {
        number = *flag;
    } else if (const auto text = objSources.environment(variable); text && !text->empty()) {
        const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), number);
        if (error != std::errc() || end != text->data() + text->size())
            number = -1;
    }
    if (number != 0 && (number < first || number > last))
        throw UsageError(fmt::format("{} takes a number from {} to {}.", variable, first, last));
    return number;
}

}  // namespace kavelin::host
