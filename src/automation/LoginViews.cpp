// Views of the logged-in user and of the service that tells what he may see.
#include "automation/Border.h"
#include "automation/HostView.h"
#include "automation/Views.h"

namespace kavelin::automation {

namespace {

class AuthServiceView : public AuthService, public HostView {
  public:
    using HostView::HostView;

    void Initialise(const std::string& connectionText, const std::string& userId) override
    {
        Call("Initialise", {Value(connectionText), Value(userId)});
    }
    std::string GetList(const std::string& object, const std::string& rule,
                        const std::string& action) override
    {
        return CallForText("GetList", {Value(object), Value(rule), Value(action)});
    }
};

class LoginView : public LoginContext, public HostView {
  public:
    using HostView::HostView;

    std::string VosDbName() override { return ReadText("VosDbName"); }
    std::string AccountId() override { return ReadText("AccountId"); }
    std::string Year() override { return ReadText("Year"); }
    int Month() override { return ReadNumber("Month"); }
    DateTime Date() override { return ToDate(ReadValue("Date")); }
    std::string Password() override { return ReadText("Password"); }
    std::string UserId() override { return ReadText("UserId"); }
    std::string ConnectionText() override { return ReadText("ConnectionText"); }
    std::string LanguageRegion() override { return ReadText("LanguageRegion"); }
    std::shared_ptr<LateBound> SystemDatabase() override { return ReadObject<LateBound>("SystemDatabase"); }
    std::shared_ptr<class AuthService> AuthService() override
    {
        const Variant service = Object()->Get("AuthService");
        return IsNothing(service) ? nullptr : As<kavelin::AuthService>(service, Named("AuthService"));
    }
};

}  // namespace

template <>
std::shared_ptr<AuthService> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<AuthServiceView>(std::move(object), "AuthService");
}

template <>
std::shared_ptr<LoginContext> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<LoginView>(std::move(object), "Login");
}

}  // namespace kavelin::automation
