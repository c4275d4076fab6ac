// What a host behind the C interface gives the library: the objects that it provides by name, and for those
// that it doesn't the plain ones of the reference host.
#pragma once

#include "automation/NamedPlatform.h"

#include <memory>
#include <string_view>

namespace kavelin::capi {

// Without the host's help there are connections to embedded accounts and to servers, the texts and the ledger
// objects of the reference host, its settings file, machine name and XML. The authorisation service, the form
// host and the viewers of the suite are the host's alone.
class EmbeddingPlatform : public automation::NamedPlatform {
  public:
    EmbeddingPlatform() : NamedPlatform(nullptr) {}

    std::shared_ptr<Connection> CreateConnection() override;
    std::shared_ptr<ResourceObject> CreateResourceObject() override;
    std::shared_ptr<LedgerLogin> CreateLedgerLogin() override;
    std::shared_ptr<LedgerPub> CreateLedgerPub() override;
    std::shared_ptr<LedgerParams> CreateLedgerParams() override;
    std::shared_ptr<MachineInfo> CreateMachineInfo() override;
    std::shared_ptr<ClientNumber> CreateClientNumber() override;
    std::shared_ptr<SettingsStore> CreateSettingsStore() override;
    std::shared_ptr<XmlDocument> CreateXmlDocument() override;
    Guid CreateGuid() override;
};

}  // namespace kavelin::capi
