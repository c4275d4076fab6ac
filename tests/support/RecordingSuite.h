// The platform of RecordingHost and the objects of the suite that it makes.
#pragma once

#include "support/EventLog.h"
#include "support/RecordingConnection.h"

#include "frame/host/Platform.h"

#include <memory>
#include <string>

namespace kavelin::test {

struct HostAnswers;

class RecordingAuthService : public AuthService {
  public:
    RecordingAuthService(std::shared_ptr<EventLog> events, std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objAnswers(std::move(answers))
    {
    }

    void Initialise(const std::string& connectionText, const std::string& userId) override;
    std::string GetList(const std::string& object, const std::string& rule,
                        const std::string& action) override;

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<HostAnswers> objAnswers;
};

// Writes "new Connection #1", "new ResourceObject" and so on.
class RecordingPlatform : public Platform {
  public:
    RecordingPlatform(std::shared_ptr<EventLog> events, std::shared_ptr<ConnectionScript> script,
                      std::shared_ptr<HostAnswers> answers)
        : objEvents(std::move(events)), objScript(std::move(script)), objAnswers(std::move(answers))
    {
    }

    std::shared_ptr<Connection> CreateConnection() override;
    std::shared_ptr<ResourceObject> CreateResourceObject() override;
    std::shared_ptr<AuthService> CreateAuthService() override;
    std::shared_ptr<LedgerLogin> CreateLedgerLogin() override;
    std::shared_ptr<LedgerPub> CreateLedgerPub() override;
    std::shared_ptr<LedgerParams> CreateLedgerParams() override;
    std::shared_ptr<MachineInfo> CreateMachineInfo() override;
    std::shared_ptr<ClientNumber> CreateClientNumber() override;
    std::shared_ptr<SettingsStore> CreateSettingsStore() override;
    std::shared_ptr<XmlDocument> CreateXmlDocument() override;
    std::shared_ptr<FormHost> CreateFormHost() override;
    Guid CreateGuid() override;
    void Beep() override;
    std::shared_ptr<LateBound> CreateObject(const std::string& name) override;

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<ConnectionScript> objScript;
    std::shared_ptr<HostAnswers> objAnswers;
};

}  // namespace kavelin::test
