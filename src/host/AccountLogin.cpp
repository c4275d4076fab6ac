#include "host/AccountLogin.h"

#include "frame/Text.h"
#include "frame/Value.h"
#include "host/LocalText.h"
#include "host/ServerAccount.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace kavelin::host {

namespace {

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

bool Names(const std::map<std::string, UserRights>& users, const std::string& user)
{
    return std::ranges::any_of(users, [&](const auto& entry) { return EqualsNoCase(entry.first, user); });
}

// The language of the account, empty if it tells none.
std::string OwnLanguage(Connection& connection)
{
    const auto rows = Open(connection, "select cValue from Demo_Profile where cName = N'language'");
    const std::string language = rows->Eof() ? "" : ToText(rows->Field(0));
    return language == kChinese || language == kEnglish ? language : "";
}

std::map<std::string, UserRights> OwnRights(Connection& connection)
{
    std::map<std::string, UserRights> users;
    const auto rows =
        Open(connection, "select cUser, cKind, cCode from Demo_UserRight order by cUser, cKind, cCode");
    for (; !rows->Eof(); rows->MoveNext()) {
        UserRights& rights = users[ToText(rows->Field(0))];
        if (std::optional<std::vector<std::string>>* list = RestrictionOf(rights, ToText(rows->Field(1)))) {
            if (!*list)
                list->emplace();
            (*list)->push_back(ToText(rows->Field(2)));
        }
    }
    return users;
}

}  // namespace

std::string AccountLogin::ConnectionText() const
{
    return IsOnServer() ? WithPassword(connectionString, password) : WithLocale(connectionString, language);
}

bool AccountLogin::IsOnServer() const
{
    return OnServer(connectionString);
}

AccountLogin LoginFor(const Config& config, const AccountSettings& account)
{
    AccountLogin login;
    login.language = config.Language(account);
    login.languageByDefault = !config.ChosenLanguage(account);
    login.connectionString =
        account.path.empty() ? account.connectionString : EmbeddedConnectionString(account.path);
    login.accountId = account.id;
    login.user = config.User(account);
    login.password = config.Password(account);
    login.year = config.Year(account);
    login.month = config.Month(account);
    login.users = config.Users();
    login.settingsFile = config.SettingsFile();
    return login;
}

std::shared_ptr<Connection> OpenLogin(AccountLogin& login, const ConnectionSource& connections,
                                      const std::string& purpose)
{
    const std::shared_ptr<Connection> asking =
        connections.Open(std::string(kLoginPurpose), login.ConnectionText(), login.password);

    bool hasProfile = false, hasRights = false;
    for (const auto rows = Open(*asking,
                                "select name from sysobjects where xtype = 'U'"
                                " and name in (N'Demo_Profile', N'Demo_UserRight')");
         !rows->Eof(); rows->MoveNext())
        (EqualsNoCase(ToText(rows->Field(0)), "Demo_Profile") ? hasProfile : hasRights) = true;

    if (hasRights)
        for (const auto& [user, rights] : OwnRights(*asking))
            if (!Names(login.users, user))
                login.users.emplace(user, rights);
    if (hasProfile && login.languageByDefault)
        if (const std::string language = OwnLanguage(*asking); !language.empty())
            login.language = language;

    // The first connection stays open until then, so that an embedded account stays loaded.
    std::shared_ptr<Connection> connection =
        connections.Open(purpose, login.ConnectionText(), login.password);
    asking->Close();
    return connection;
}

}  // namespace kavelin::host
