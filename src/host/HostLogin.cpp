#include "host/HostLogin.h"

#include "frame/Text.h"
#include "host/NamedObjects.h"

#include <chrono>
#include <utility>

namespace kavelin::host {

namespace {

std::optional<std::vector<std::string>> UserRights::*MemberOf(std::string_view object)
{
    const std::pair<std::string_view, std::optional<std::vector<std::string>> UserRights::*> restrictions[] =
        {
            {"Warehouse", &UserRights::warehouses},
            {"Department", &UserRights::departments},
            {"Inventory", &UserRights::inventory},
            {"User", &UserRights::operators},
        };
    for (const auto& [name, member] : restrictions)
        if (EqualsNoCase(name, object))
            return member;
    return nullptr;
}

}  // namespace

std::optional<std::vector<std::string>>* RestrictionOf(UserRights& rights, std::string_view object)
{
    const auto member = MemberOf(object);
    return member ? &(rights.*member) : nullptr;
}

HostLogin::HostLogin(LoginSettings settings, std::shared_ptr<kavelin::AuthService> auth)
    : objSettings(std::move(settings)), objAuth(std::move(auth))
{
    const auto connect = std::make_shared<LateBag>();
    connect->Put("ConnectionString", Value(objSettings.connectionText));
    objSystemDatabase = std::make_shared<LateBag>();
    objSystemDatabase->Put("DbConnect", HostObjectPtr(connect));
}

DateTime HostLogin::Date()
{
    using namespace std::chrono;
    return sys_days(year(objSettings.year) / objSettings.month / last);
}

HostAuthService::HostAuthService(std::map<std::string, UserRights> users, std::string userId)
    : dicUsers(std::move(users)), strUserId(std::move(userId))
{
}

void HostAuthService::Initialise(const std::string&, const std::string& userId)
{
    strUserId = userId;
}

std::string HostAuthService::GetList(const std::string& object, const std::string&, const std::string&)
{
    const auto restriction = MemberOf(object);
    if (!restriction)
        return "";
    for (const auto& [user, rights] : dicUsers) {
        if (!EqualsNoCase(user, strUserId) || !(rights.*restriction))
            continue;
        const std::vector<std::string>& codes = *(rights.*restriction);
        std::string list;
        for (const std::string& code : codes)
            list += (list.empty() ? "N'" : ",N'") + ReplaceAll(code, "'", "''") + "'";
        return codes.empty() ? "1=2" : list;
    }
    return "";
}

std::optional<AccountingPeriod> LatestPeriod(Connection& connection, const std::string& accountId, int year)
{
    // Years are opened ahead of time; one that nothing is posted in yet is not what a user means.
    const std::string inYear = year == 0
                                   ? " and iYear <= isnull((select max(iYear) from IA_Subsidiary), 9998)"
                                   : " and iYear = " + std::to_string(year);
    const auto rows = connection.OpenRecordset(
        "select top 1 iYear, iID from VosSystem..UA_Period where cAcc_ID = N'" +
            ReplaceAll(accountId, "'", "''") + "' and iYear <> 9999 and isnull(bIsDelete, 0) = 0" + inYear +
            " order by iYear desc, iID desc",
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    if (rows->Eof())
        return std::nullopt;
    return AccountingPeriod{ToInt32(rows->Field(0)), ToInt32(rows->Field(1))};
}

}  // namespace kavelin::host
