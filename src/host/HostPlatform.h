// Everything that the library takes from outside, as the reference host gives it.
#pragma once

#include "frame/host/Platform.h"
#include "host/HostConnection.h"
#include "host/HostForms.h"
#include "host/HostLogin.h"
#include "host/ShownMessage.h"
#include "host/SuiteViewers.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace kavelin::host {

struct PlatformSettings {
    ConnectionSource connections;
    MessageSink onMessage;  // may be empty: messages are dropped
    std::string accountId;
    std::string language;  // until the library hands a login to the resource object
    std::map<std::string, UserRights> users;
    std::filesystem::path settingsFile;  // of the settings store
    ViewerSink onShow = {};              // takes what the suite's viewers are asked to open; may be empty
    FormSink onForm = {};                // lets the user fill in a form; may be empty: nobody does
};

class HostPlatform : public Platform {
  public:
    explicit HostPlatform(PlatformSettings settings) : objSettings(std::move(settings)) {}

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
    void Beep() override;  // the terminal's bell, if messages go to a terminal

    // Those of CreateSuiteObject. Throws Error for any other name.
    std::shared_ptr<LateBound> CreateObject(const std::string& name) override;

  private:
    PlatformSettings objSettings;
};

}  // namespace kavelin::host
