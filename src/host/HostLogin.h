// The logged-in user and his company.
#pragma once

#include "frame/Connection.h"
#include "frame/host/LoginContext.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// What a user may see, by the objects of the authorisation service. A list that is not given is no
// restriction; an empty one lets nothing through.
struct UserRights {
    std::optional<std::vector<std::string>> warehouses;   // "Warehouse"
    std::optional<std::vector<std::string>> departments;  // "Department"
    std::optional<std::vector<std::string>> inventory;    // "Inventory": item identities
    std::optional<std::vector<std::string>> operators;    // "User": names of operators
};

// The list of rights to an object of the service, without regard to case; null for any other object.
std::optional<std::vector<std::string>>* RestrictionOf(UserRights& rights, std::string_view object);

struct LoginSettings {
    std::string connectionText;  // of the account database; the system database is reached by the same
    std::string accountId;
    std::string userId;
    std::string password;
    std::string language;
    int year = 0;
    int month = 0;
};

class HostLogin : public LoginContext {
  public:
    HostLogin(LoginSettings settings, std::shared_ptr<kavelin::AuthService> auth);

    std::string VosDbName() override { return objSettings.connectionText; }
    std::string AccountId() override { return objSettings.accountId; }
    std::string Year() override { return std::to_string(objSettings.year); }
    int Month() override { return objSettings.month; }
    DateTime Date() override;  // the last day of the month
    std::string Password() override { return objSettings.password; }
    std::string UserId() override { return objSettings.userId; }
    std::string ConnectionText() override { return objSettings.connectionText; }
    std::string LanguageRegion() override { return objSettings.language; }
    std::shared_ptr<LateBound> SystemDatabase() override { return objSystemDatabase; }
    std::shared_ptr<kavelin::AuthService> AuthService() override { return objAuth; }

  private:
    LoginSettings objSettings;
    std::shared_ptr<kavelin::AuthService> objAuth;
    std::shared_ptr<LateBound> objSystemDatabase;
};

// Serves the rights of each user by his identifier; a user without an entry sees everything.
class HostAuthService : public AuthService {
  public:
    HostAuthService(std::map<std::string, UserRights> users, std::string userId);

    void Initialise(const std::string& connectionText, const std::string& userId) override;
    std::string GetList(const std::string& object, const std::string& rule,
                        const std::string& action) override;

  private:
    std::map<std::string, UserRights> dicUsers;
    std::string strUserId;
};

struct AccountingPeriod {
    int year;
    int month;
};

// The latest fiscal month of the account, in no year behind the last one with ledger lines; the latest of
// `year` if that is not 0. Nothing if the system database has none. `connection` must be open. Throws
// DatabaseError.
std::optional<AccountingPeriod> LatestPeriod(Connection& connection, const std::string& accountId, int year);

}  // namespace kavelin::host
