#include "host/Session.h"

#include "frame/ModPub.h"

#include <chrono>
#include <utility>

namespace kavelin::host {

namespace {

AccountingPeriod Today()
{
    const auto day = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    const std::chrono::year_month_day date(day);
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month()))};
}

AccountingPeriod PeriodOf(const AccountLogin& login, Connection& connection)
{
    if (login.year != 0 && login.month != 0)
        return {login.year, login.month};
    AccountingPeriod period = LatestPeriod(connection, login.accountId, login.year).value_or(Today());
    if (login.year != 0)
        period.year = login.year;
    if (login.month != 0)
        period.month = login.month;
    return period;
}

}  // namespace

Session::Session(AccountLogin login, ConnectionSource connections, MessageSink onMessage)
    : objConnections(std::move(connections)),
      cnnHost(OpenLogin(login, objConnections, "host")),
      objOnMessage(std::move(onMessage))
{
    const AccountingPeriod period = PeriodOf(login, *cnnHost);
    objLogin =
        std::make_shared<HostLogin>(LoginSettings{login.ConnectionText(), login.accountId, login.user,
                                                  login.password, login.language, period.year, period.month},
                                    std::make_shared<HostAuthService>(login.users, login.user));

    const auto show = [this](const ShownMessage& message) {
        lstMessages.push_back(message);
        if (objOnMessage)
            objOnMessage(message);
    };
    const auto open = [this](const std::string& title, Recordset& rows) {
        if (objOnShow)
            objOnShow(title, rows);
    };
    objPlatform = std::make_shared<HostPlatform>(PlatformSettings{objConnections, show, login.accountId,
                                                                  login.language, std::move(login.users),
                                                                  std::move(login.settingsFile), open});
}

LibraryUse::LibraryUse(const Session& session)
{
    UsePlatform(session.PlatformOfUser());
    // Some dialogs read it as the latest report left it; there may have been none.
    ModPub().gstrLanguage = session.Login()->LanguageRegion();
}

LibraryUse::~LibraryUse()
{
    UsePlatform(nullptr);
}

}  // namespace kavelin::host
