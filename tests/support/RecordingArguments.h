// The argument of an entry, early-bound and late-bound, and the login. Made by RecordingHost.
#pragma once

#include "support/EventLog.h"
#include "support/FakeFilter.h"
#include "support/RecordingObjects.h"

#include "frame/host/ReportCallArgs.h"

#include <memory>
#include <string>

namespace kavelin::test {

struct HostAnswers;

// An object that nothing is asked of.
class PlainObject : public HostObject {};

class RecordingLogin : public LoginContext, public NamedObject {
  public:
    RecordingLogin(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers, std::string name)
        : objEvents(std::move(events)), objAnswers(std::move(answers)), strName(std::move(name))
    {
    }

    std::string ShownName() const override { return strName; }

    std::string VosDbName() override;
    std::string AccountId() override;
    std::string Year() override;
    int Month() override;
    DateTime Date() override;
    std::string Password() override;
    std::string UserId() override;
    std::string ConnectionText() override;
    std::string LanguageRegion() override;
    std::shared_ptr<LateBound> SystemDatabase() override;
    std::shared_ptr<class AuthService> AuthService() override;

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
    std::string strName;
};

// What the two arguments share.
struct ArgumentParts {
    std::shared_ptr<EventLog> events;
    std::shared_ptr<HostAnswers> answers;
    std::shared_ptr<FakeFilter> filter;
    std::shared_ptr<LoginContext> login;
    HostObjectPtr manager;
};

class EarlyArguments : public ReportCallArgs {
  public:
    explicit EarlyArguments(ArgumentParts parts) : objParts(std::move(parts)) {}

    std::shared_ptr<kavelin::DataSource> DataSource() override;
    std::shared_ptr<LoginContext> Login() override;
    std::shared_ptr<ReportFilterObject> RawFilter() override;
    std::shared_ptr<NamedValues> Args() override;
    std::string LangID() override;

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    ArgumentParts objParts;
};

class LateArguments : public LateBound {
  public:
    explicit LateArguments(ArgumentParts parts) : objParts(std::move(parts)) {}

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    ArgumentParts objParts;
};

}  // namespace kavelin::test
