// Settings of the host, the nearest first: a flag, the environment (KAVELIN_*), ./kavelin.toml, the
// user's kavelin.toml under the XDG config folder.
//
//   account = "demo"              # used when no --account is given
//   language = "zh-CN"
//   user = "demo"
//
//   [accounts.demo]
//   connection = "Embedded Account=/data/demo.kavelin"   # or: path = "demo.kavelin"
//   id = "001"                    # cAcc_ID of the system database
//   year = 2008                   # accounting year and month of the login; the latest if not given
//   month = 12
//   user = "anna"                 # language, user: before those above
//   password_env = "DEMO_PASSWORD"  # of an account on a server; KAVELIN_PASSWORD if not given
//
//   [users.anna]                  # codes that a user may see; a list left out is no restriction
//   warehouses = ["01", "02"]     # departments, inventory, operators
#pragma once

#include "host/HostLogin.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kavelin::host {

struct AccountSettings {
    std::string name;              // as it is called in the settings; empty for a path or a connection string
    std::string connectionString;  // without password, and without Locale for an embedded account
    std::string path;              // of an embedded account, else empty
    std::string id = "001";
    std::string user;
    std::string language;
    std::string passwordVariable;  // name of the environment variable that holds the password
    int year = 0;
    int month = 0;
};

// What one or several kavelin.toml say.
struct FileSettings {
    std::string account;
    std::string language;
    std::string user;
    std::map<std::string, AccountSettings> accounts;
    std::map<std::string, UserRights> users;
};

// What the command line says; everything may be missing.
struct Flags {
    std::optional<std::string> account;
    std::optional<std::string> language;
    std::optional<std::string> user;
    std::optional<int> year;
    std::optional<int> month;
};

// Where settings come from. The default is the process: its environment and working folder.
struct ConfigSources {
    std::function<std::optional<std::string>(const std::string&)> environment;
    std::filesystem::path workingFolder;
    // Asks the user for a password, after that question; empty, or gives nothing, where nobody can be asked.
    std::function<std::optional<std::string>(const std::string& question)> askPassword = {};

    static ConfigSources OfProcess();
};

// XDG folders of this program, not created: "$XDG_CONFIG_HOME/kavelin" and "$XDG_DATA_HOME/kavelin", by
// default "~/.config/kavelin" and "~/.local/share/kavelin". Throws Error if neither variable nor HOME is set.
std::filesystem::path ConfigFolder(const ConfigSources& sources);
std::filesystem::path DataFolder(const ConfigSources& sources);

class Config {
  public:
    // Throws UsageError, naming file and line or the variable, for what cannot be read or makes no sense,
    // and for a password that stands in a file. An account or user that both files describe is taken whole
    // from the nearer one.
    static Config Load(const Flags& flags, const ConfigSources& sources = ConfigSources::OfProcess());

    // The account to work on: `Flags::account`, KAVELIN_ACCOUNT or the files' `account`, which is a name of
    // an [accounts] table, a path or a connection string. Nothing if none is set. Throws UsageError for an
    // unknown name and for a connection string that holds a password.
    std::optional<AccountSettings> Account() const;

    // The same for a name, path or connection string that comes from elsewhere.
    AccountSettings Account(const std::string& text) const;

    std::string Language(const AccountSettings& account) const;                       // "zh-CN" by default
    std::optional<std::string> ChosenLanguage(const AccountSettings& account) const;  // nothing: the default
    std::string User(const AccountSettings& account) const;                           // "demo" by default
    int Year(const AccountSettings& account) const;   // 0: the account's latest
    int Month(const AccountSettings& account) const;  // likewise

    // The password of the account: the value of its password variable; without one, where its connection
    // string names a user of a server, that of KAVELIN_PASSWORD or what the user answers, else empty. Throws
    // UsageError, naming the variable, where there is none.
    std::string Password(const AccountSettings& account) const;

    const std::map<std::string, UserRights>& Users() const { return objFiles.users; }

    // Of the settings that reports keep for the user.
    std::filesystem::path SettingsFile() const { return strSettingsFile; }

  private:
    std::string PasswordFor(const std::string& connectionString) const;

    // A flag or, without it, the variable; empty if there is neither.
    std::string FlagOrVariable(const std::optional<std::string>& flag, const std::string& variable) const;
    int NumberOf(const std::optional<int>& flag, const std::string& variable, int ofAccount, int first,
                 int last) const;

    ConfigSources objSources;
    Flags objFlags;
    FileSettings objFiles;
    std::filesystem::path strSettingsFile;
};

}  // namespace kavelin::host
