// What the library needs from outside, on Windows.
#pragma once

#include "automation/NamedPlatform.h"

namespace kavelin::com {

// Objects by name are the host's own makers', else those that are registered. Where a host provides no object
// of the suite for it, the machine's name, the client's number, the settings and the form are the system's.
class WindowsPlatform : public automation::NamedPlatform {
  public:
    WindowsPlatform();

    std::shared_ptr<MachineInfo> CreateMachineInfo() override;
    std::shared_ptr<ClientNumber> CreateClientNumber() override;
    std::shared_ptr<SettingsStore> CreateSettingsStore() override;
    std::shared_ptr<FormHost> CreateFormHost() override;
    Guid CreateGuid() override;
    void Beep() override;
};

}  // namespace kavelin::com
