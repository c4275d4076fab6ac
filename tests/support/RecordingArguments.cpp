#include "support/RecordingArguments.h"

#include "support/RecordingHost.h"
#include "support/RecordingSuite.h"

#include "frame/Errors.h"
#include "frame/Text.h"

namespace kavelin::test {

namespace {

// An object with late-bound texts: what a login's system database is.
class LateTexts : public LateBound, public NamedObject {
  public:
    LateTexts(std::shared_ptr<EventLog> events, std::string name,
              std::map<std::string, Variant, LessNoCase> members)
        : objEvents(std::move(events)), strName(std::move(name)), dicMembers(std::move(members))
    {
    }

    std::string ShownName() const override { return strName; }
    Variant Get(std::string_view member) override
    {
        objEvents->Add("late " + strName + "." + std::string(member));
        const auto found = dicMembers.find(member);
        if (found == dicMembers.end())
            throw Error(strName + " has no member " + std::string(member) + ".");
        return found->second;
    }
    void Put(std::string_view member, const Variant& /*value*/) override
    {
        throw Error(strName + "." + std::string(member) + " can't be set.");
    }
    Variant Call(std::string_view member, const std::vector<Variant>& /*arguments*/) override
    {
        throw Error(strName + " has no method " + std::string(member) + ".");
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::string strName;
    std::map<std::string, Variant, LessNoCase> dicMembers;
};

class EarlyDataSource : public DataSource {
  public:
    EarlyDataSource(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    void SetType(std::int16_t type) override { objEvents->Add("DataSource.Type = " + std::to_string(type)); }
    std::string sql() override
    {
        objEvents->Add("DataSource.sql");
        return objAnswers->sql;
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

// Has the type under both names, so that the line tells which one was used.
class LateDataSource : public LateBound {
  public:
    LateDataSource(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    Variant Get(std::string_view member) override
    {
        objEvents->Add("late DataSource." + std::string(member));
        return Value(objAnswers->sql);
    }
    void Put(std::string_view member, const Variant& value) override
    {
        objEvents->Add("late DataSource." + std::string(member) + " = " + ToText(ValueOf(value, member)));
    }
    Variant Call(std::string_view member, const std::vector<Variant>& /*arguments*/) override
    {
        throw Error("The data source has no method " + std::string(member) + ".");
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

Value ArgOf(const HostAnswers& answers, const std::string& key)
{
    const auto found = answers.args.find(key);
    return found == answers.args.end() ? Value() : found->second;
}

class EarlyArgs : public NamedValues {
  public:
    EarlyArgs(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    std::int32_t Count() override
    {
        objEvents->Add("Args.Count");
        return static_cast<std::int32_t>(objAnswers->args.size());
    }
    Variant Item(std::string_view key) override
    {
        objEvents->Add("Args.Item " + std::string(key));
        return ArgOf(*objAnswers, std::string(key));
    }
    Variant Item(std::int32_t position) override
    {
        objEvents->Add("Args.Item " + std::to_string(position));
        return std::next(objAnswers->args.begin(), position - 1)->second;
    }
    void Add(const Variant& value, std::string_view key) override
    {
        objEvents->Add("Args.Add " + std::string(key));
        objAnswers->args[std::string(key)] = ValueOf(value, key);
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

class LateArgs : public LateBound {
  public:
    LateArgs(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    Variant Get(std::string_view member) override
    {
        throw Error("Args has no property " + std::string(member) + ".");
    }
    void Put(std::string_view member, const Variant& /*value*/) override
    {
        throw Error("Args has no property " + std::string(member) + ".");
    }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (!EqualsNoCase(member, "Item") || arguments.size() != 1)
            throw Error("Args has no method " + std::string(member) + ".");
        const std::string key = ToText(ValueOf(arguments[0], "key"));
        objEvents->Add("late Args.Item " + key);
        return ArgOf(*objAnswers, key);
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

}  // namespace

std::string RecordingLogin::VosDbName()
{
    return objEvents->Add(strName + ".VosDbName"), objAnswers->vosDbName;
}
std::string RecordingLogin::AccountId()
{
    return objEvents->Add(strName + ".AccountId"), objAnswers->accountId;
}
std::string RecordingLogin::Year()
{
    return objEvents->Add(strName + ".Year"), objAnswers->year;
}
int RecordingLogin::Month()
{
    return objEvents->Add(strName + ".Month"), objAnswers->month;
}
DateTime RecordingLogin::Date()
{
    return objEvents->Add(strName + ".Date"), objAnswers->date;
}
std::string RecordingLogin::Password()
{
    return objEvents->Add(strName + ".Password"), objAnswers->password;
}
std::string RecordingLogin::UserId()
{
    return objEvents->Add(strName + ".UserId"), objAnswers->userId;
}
std::string RecordingLogin::ConnectionText()
{
    return objEvents->Add(strName + ".ConnectionText"), objAnswers->connectionText;
}
std::string RecordingLogin::LanguageRegion()
{
    return objEvents->Add(strName + ".LanguageRegion"), objAnswers->langId;
}

std::shared_ptr<LateBound> RecordingLogin::SystemDatabase()
{
    using Members = std::map<std::string, Variant, LessNoCase>;
    objEvents->Add(strName + ".SystemDatabase");
    HostObjectPtr connect = std::make_shared<LateTexts>(
        objEvents, "DbConnect", Members{{"ConnectionString", Value(objAnswers->systemConnection)}});
    return std::make_shared<LateTexts>(objEvents, "SystemDatabase", Members{{"DbConnect", connect}});
}

std::shared_ptr<class AuthService> RecordingLogin::AuthService()
{
    objEvents->Add(strName + ".AuthService");
    return objAnswers->loginHasAuthService ? std::make_shared<RecordingAuthService>(objEvents, objAnswers)
                                           : nullptr;
}

std::shared_ptr<kavelin::DataSource> EarlyArguments::DataSource()
{
    objParts.events->Add("e.DataSource");
    return std::make_shared<EarlyDataSource>(objParts.events, objParts.answers);
}

std::shared_ptr<LoginContext> EarlyArguments::Login()
{
    return objParts.events->Add("e.Login"), objParts.login;
}

std::shared_ptr<ReportFilterObject> EarlyArguments::RawFilter()
{
    return objParts.events->Add("e.RawFilter"), objParts.filter;
}

std::shared_ptr<NamedValues> EarlyArguments::Args()
{
    objParts.events->Add("e.Args");
    return std::make_shared<EarlyArgs>(objParts.events, objParts.answers);
}

std::string EarlyArguments::LangID()
{
    return objParts.events->Add("e.LangID"), objParts.answers->langId;
}

Variant EarlyArguments::Get(std::string_view member)
{
    objParts.events->Add("late e." + std::string(member));
    if (EqualsNoCase(member, "ObjreportManager"))
        return objParts.manager;
    throw Error("e has no late-bound member " + std::string(member) + ".");
}

void EarlyArguments::Put(std::string_view member, const Variant& /*value*/)
{
    throw Error("e." + std::string(member) + " can't be set.");
}

Variant EarlyArguments::Call(std::string_view member, const std::vector<Variant>& /*arguments*/)
{
    throw Error("e has no method " + std::string(member) + ".");
}

Variant LateArguments::Get(std::string_view member)
{
    objParts.events->Add("late e." + std::string(member));
    if (EqualsNoCase(member, "RawFilter"))
        return HostObjectPtr(objParts.filter);
    if (EqualsNoCase(member, "Login"))
        return HostObjectPtr(objParts.login);
    if (EqualsNoCase(member, "DataSource"))
        return HostObjectPtr(std::make_shared<LateDataSource>(objParts.events, objParts.answers));
    if (EqualsNoCase(member, "Args"))
        return HostObjectPtr(std::make_shared<LateArgs>(objParts.events, objParts.answers));
    if (EqualsNoCase(member, "LangID"))
        return Value(objParts.answers->langId);
    if (EqualsNoCase(member, "ObjreportManager"))
        return objParts.manager;
    throw Error("e has no member " + std::string(member) + ".");
}

void LateArguments::Put(std::string_view member, const Variant& /*value*/)
{
    throw Error("e." + std::string(member) + " can't be set.");
}

Variant LateArguments::Call(std::string_view member, const std::vector<Variant>& /*arguments*/)
{
    throw Error("e has no method " + std::string(member) + ".");
}

}  // namespace kavelin::test
