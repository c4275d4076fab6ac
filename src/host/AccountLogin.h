// From the settings of an account to an open connection and a login.
#pragma once

#include "frame/Connection.h"
#include "host/Config.h"
#include "host/HostConnection.h"
#include "host/HostLogin.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace kavelin::host {

// An account with everything that a login needs, passwords among it.
struct AccountLogin {
    std::string connectionString;  // without password; Locale may be left out: `language` is meant then
    std::string accountId = "001";
    std::string user = "demo";
    std::string password;
    std::string language = "zh-CN";
    bool languageByDefault = false;  // nobody chose it: what the account names counts before it
    int year = 0;                    // 0: the account's latest
    int month = 0;                   // likewise
    std::map<std::string, UserRights> users;
    std::filesystem::path settingsFile;

    // The complete connection string: on a server with the password, of an embedded account with the language
    // as its Locale, unless it names one. Not to be shown.
    std::string ConnectionText() const;

    bool IsOnServer() const;
};

// The purpose, in the log, of the connection that asks an account about itself.
inline constexpr std::string_view kLoginPurpose = "login";

// The login that the settings give for the account.
AccountLogin LoginFor(const Config& config, const AccountSettings& account);

// Opens the account and fills in what its own tables say, if it has them: Demo_Profile the language, if
// nobody chose one, and Demo_UserRight the rights of users that `login` does not name. Throws
// ConnectionError, DatabaseError.
std::shared_ptr<Connection> OpenLogin(AccountLogin& login, const ConnectionSource& connections,
                                      const std::string& purpose);

}  // namespace kavelin::host
