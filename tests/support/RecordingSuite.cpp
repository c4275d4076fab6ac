#include "support/RecordingSuite.h"

#include "support/RecordingHost.h"
#include "support/RecordingXml.h"

#include "frame/Errors.h"

namespace kavelin::test {

namespace {

class RecordingResources : public ResourceObject {
  public:
    RecordingResources(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    void SetLogin(std::shared_ptr<LoginContext> /*login*/) override
    {
        objEvents->Add("ResourceObject.SetLogin");
    }
    std::string GetResString(const std::string& key) override
    {
        objEvents->Add("ResourceObject.GetResString " + key);
        const auto found = objAnswers->texts.find(key);
        return found == objAnswers->texts.end() ? "<" + key + ">" : found->second;
    }
    std::string GetEnumName(const std::string& type, const std::string& code) override
    {
        objEvents->Add("ResourceObject.GetEnumName " + type + ", " + code);
        return "<" + type + " " + code + ">";
    }
    std::string GetEnumCode(const std::string& type, const std::string& text) override
    {
        objEvents->Add("ResourceObject.GetEnumCode " + type + ", " + text);
        const auto found = objAnswers->codes.find(text);
        return found == objAnswers->codes.end() ? "code of " + text : found->second;
    }
    void ShowMessage(const std::string& text, int icon) override
    {
        objEvents->Add("ResourceObject.ShowMessage " + text + ", " + std::to_string(icon));
    }
    void Unload() override { objEvents->Add("ResourceObject.Unload"); }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

class RecordingSettings : public SettingsStore {
  public:
    RecordingSettings(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    std::string Read(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& byDefault) override
    {
        const std::string name = application + ", " + section + ", " + key;
        objEvents->Add("SettingsStore.Read " + name);
        const auto found = objAnswers->settings.find(name);
        return found == objAnswers->settings.end() ? byDefault : found->second;
    }
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override
    {
        const std::string name = application + ", " + section + ", " + key;
        objEvents->Add("SettingsStore.Write " + name + " = " + value);
        objAnswers->settings[name] = value;
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

class RecordingForms : public FormHost {
  public:
    RecordingForms(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    void ShowModal(Form& form) override
    {
        objEvents->Add("FormHost.ShowModal " + form.Title());
        if (objAnswers->useForm)
            objAnswers->useForm(form);
        form.Unload();
    }
    void ShowMessage(const std::string& text, int icon, const std::string& title) override
    {
        objEvents->Add("FormHost.ShowMessage " + text + ", " + std::to_string(icon) + ", " + title);
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

class RecordingLedgerLogin : public LedgerLogin, public NamedObject {
  public:
    RecordingLedgerLogin(std::shared_ptr<EventLog> events, std::shared_ptr<ConnectionScript> script)
        : objEvents(std::move(events)), objScript(std::move(script))
    {
    }

    std::string ShownName() const override { return "LedgerLogin"; }

    void Initialise(const std::string& connectionText, const std::string& passwordText, bool first,
                    bool second) override
    {
        objEvents->Add("LedgerLogin.Initialise '" + connectionText + "', '" + passwordText + "', " +
                       ToText(first) + ", " + ToText(second));
    }
    std::shared_ptr<Connection> DbConnection() override
    {
        objEvents->Add("LedgerLogin.DbConnection");
        auto connection = std::make_shared<RecordingConnection>(objEvents, objScript);
        connection->Open("", "", -1);
        return connection;
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<ConnectionScript> objScript;
};

class RecordingLedgerPub : public LedgerPub {
  public:
    RecordingLedgerPub(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    void SetLogin(std::shared_ptr<LedgerLogin> login) override
    {
        objEvents->Add(login == ModPub().gobjLedgerLogin ? "LedgerPub.SetLogin gobjLedgerLogin"
                                                         : "LedgerPub.SetLogin of another login");
    }
    bool Reload(const std::string& first, const std::string& second) override
    {
        objEvents->Add("LedgerPub.Reload '" + first + "', '" + second + "'");
        return false;
    }
    std::pair<int, int> GetYearMonthRange(const std::string& year, Connection& /*account*/) override
    {
        objEvents->Add("LedgerPub.GetYearMonthRange " + year);
        const auto found = objAnswers->yearMonths.find(year);
        return found == objAnswers->yearMonths.end() ? std::pair(1, 12) : found->second;
    }
    std::vector<std::string> GetAccountYears(const std::string& year, Connection& /*account*/) override
    {
        objEvents->Add("LedgerPub.GetAccountYears " + year);
        return objAnswers->accountYears;
    }
    void GetAccountYearParams(LedgerLogin& /*login*/, const std::string& year,
                              LedgerParams& /*params*/) override
    {
        objEvents->Add("LedgerPub.GetAccountYearParams " + year);
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

class RecordingLedgerParams : public LedgerParams {
  public:
    RecordingLedgerParams(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    std::string Year() override { return objEvents->Add("LedgerParams.Year"), objAnswers->paramsYear; }
    std::string ValueStyle() override
    {
        return objEvents->Add("LedgerParams.ValueStyle"), objAnswers->valueStyle;
    }
    std::string InventoryQualifier() override
    {
        return objEvents->Add("LedgerParams.InventoryQualifier"), objAnswers->inventoryQualifier;
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

class RecordingMachineInfo : public MachineInfo {
  public:
    explicit RecordingMachineInfo(std::shared_ptr<EventLog> events) : objEvents(std::move(events)) {}

    std::string MachineName() override { return objEvents->Add("MachineInfo.MachineName"), "MACHINE"; }

  private:
    std::shared_ptr<EventLog> objEvents;
};

class RecordingClientNumber : public ClientNumber {
  public:
    RecordingClientNumber(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    Value Number() override { return objEvents->Add("ClientNumber.Number"), objAnswers->clientNumber; }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

}  // namespace

void RecordingAuthService::Initialise(const std::string& connectionText, const std::string& userId)
{
    objEvents->Add("AuthService.Initialise '" + connectionText + "', '" + userId + "'");
}

std::string RecordingAuthService::GetList(const std::string& object, const std::string& rule,
                                          const std::string& action)
{
    objEvents->Add("AuthService.GetList '" + object + "', '" + rule + "', '" + action + "'");
    const auto found = objAnswers->lists.find(object);
    return found == objAnswers->lists.end() ? "" : found->second;
}

std::shared_ptr<Connection> RecordingPlatform::CreateConnection()
{
    objEvents->Add("new Connection #" + std::to_string(objScript->connections + 1));
    return std::make_shared<RecordingConnection>(objEvents, objScript);
}

std::shared_ptr<ResourceObject> RecordingPlatform::CreateResourceObject()
{
    objEvents->Add("new ResourceObject");
    return std::make_shared<RecordingResources>(objEvents, objAnswers);
}

std::shared_ptr<AuthService> RecordingPlatform::CreateAuthService()
{
    objEvents->Add("new AuthService");
    return std::make_shared<RecordingAuthService>(objEvents, objAnswers);
}

std::shared_ptr<LedgerLogin> RecordingPlatform::CreateLedgerLogin()
{
    objEvents->Add("new LedgerLogin");
    return std::make_shared<RecordingLedgerLogin>(objEvents, objScript);
}

std::shared_ptr<LedgerPub> RecordingPlatform::CreateLedgerPub()
{
    objEvents->Add("new LedgerPub");
    return std::make_shared<RecordingLedgerPub>(objEvents, objAnswers);
}

std::shared_ptr<LedgerParams> RecordingPlatform::CreateLedgerParams()
{
    objEvents->Add("new LedgerParams");
    return std::make_shared<RecordingLedgerParams>(objEvents, objAnswers);
}

std::shared_ptr<MachineInfo> RecordingPlatform::CreateMachineInfo()
{
    objEvents->Add("new MachineInfo");
    return std::make_shared<RecordingMachineInfo>(objEvents);
}

std::shared_ptr<ClientNumber> RecordingPlatform::CreateClientNumber()
{
    objEvents->Add("new ClientNumber");
    return std::make_shared<RecordingClientNumber>(objEvents, objAnswers);
}

std::shared_ptr<SettingsStore> RecordingPlatform::CreateSettingsStore()
{
    return std::make_shared<RecordingSettings>(objEvents, objAnswers);
}

std::shared_ptr<XmlDocument> RecordingPlatform::CreateXmlDocument()
{
    objEvents->Add("new XmlDocument");
    return MakeRecordingXml(objEvents);
}

std::shared_ptr<FormHost> RecordingPlatform::CreateFormHost()
{
    objEvents->Add("new FormHost");
    return std::make_shared<RecordingForms>(objEvents, objAnswers);
}

Guid RecordingPlatform::CreateGuid()
{
    objEvents->Add("CreateGuid");
    return objAnswers->guid;
}

void RecordingPlatform::Beep()
{
    objEvents->Add("Beep");
}

std::shared_ptr<LateBound> RecordingPlatform::CreateObject(const std::string& name)
{
    objEvents->Add("new " + name);
    if (objAnswers->missingObjects.contains(name))
        throw Error("This host has no object " + name + ".");
    return std::make_shared<RecordingObject>(objEvents, name, objAnswers->callActions);
}

}  // namespace kavelin::test
