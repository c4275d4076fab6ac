// The logged-in user and his company, and the service that tells what he may see.
#pragma once

#include "frame/Value.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <string>

namespace kavelin {

class AuthService : public virtual HostObject {
  public:
    // Prepares a service that was made for one call; the login's own is prepared already.
    virtual void Initialise(const std::string& connectionText, const std::string& userId) = 0;

    // The codes of `object` that the user may see, quoted and separated by commas, ready for an IN; empty
    // for no restriction; "1=2" for no right at all. `rule` is empty as a rule, `action` "", "R" or "W".
    virtual std::string GetList(const std::string& object, const std::string& rule,
                                const std::string& action) = 0;
};

class LoginContext : public virtual HostObject {
  public:
    virtual std::string VosDbName() = 0;  // connection string of the account database
    virtual std::string AccountId() = 0;  // compared with `cAcc_ID` of the system tables
    virtual std::string Year() = 0;       // accounting year of the login, as digits
    virtual int Month() = 0;              // month of the login, 1 to 12
    virtual DateTime Date() = 0;          // day of the login
    virtual std::string Password() = 0;   // of the system database
    virtual std::string UserId() = 0;
    virtual std::string ConnectionText() = 0;  // for the ledger objects and the authorisation service
    virtual std::string LanguageRegion() = 0;  // "zh-CN", "en-US"

    // Its late-bound `DbConnect` has the late-bound text `ConnectionString`, of the system database.
    virtual std::shared_ptr<LateBound> SystemDatabase() = 0;

    // Null if the login has none.
    virtual std::shared_ptr<class AuthService> AuthService() = 0;
};

}  // namespace kavelin
