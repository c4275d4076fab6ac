// A platform whose objects are made by name and called late-bound.
#pragma once

#include "automation/NamedObjects.h"
#include "frame/host/Platform.h"

#include <memory>
#include <string>
#include <string_view>

namespace kavelin::automation {

// Names are those of ObjectNames.h. A platform derived from it makes its GUIDs, and overrides what its system does
// better by itself: settings, the sound of a message, the machine's name.
class NamedPlatform : public Platform {
  public:
    // `fallback` makes what the host doesn't provide; null if nothing does.
    explicit NamedPlatform(ObjectMaker fallback) : objFallback(std::move(fallback)) {}

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
    void Beep() override {}
    std::shared_ptr<LateBound> CreateObject(const std::string& name) override;

  protected:
    // The host's own object. Throws Error if nobody provides one.
    std::shared_ptr<LateBound> Make(std::string_view name) const { return MakeObject(name, objFallback); }
    // The same, but null if nobody provides one.
    std::shared_ptr<LateBound> TryMake(std::string_view name) const
    {
        return TryMakeObject(name, objFallback);
    }

  private:
    ObjectMaker objFallback;
};

}  // namespace kavelin::automation
