#include "automation/NamedPlatform.h"

#include "automation/ObjectNames.h"
#include "automation/Views.h"
#include "database/ado/AdoConnection.h"

namespace kavelin::automation {

std::shared_ptr<Connection> NamedPlatform::CreateConnection()
{
    return std::make_shared<ado::AdoConnection>(
        Make(kConnectionName), [fallback = objFallback] { return MakeObject(kRecordsetName, fallback); });
}

std::shared_ptr<ResourceObject> NamedPlatform::CreateResourceObject()
{
    return ViewOf<ResourceObject>(Make(kResourcesName));
}

std::shared_ptr<AuthService> NamedPlatform::CreateAuthService()
{
    return ViewOf<AuthService>(Make(kAuthServiceName));
}

std::shared_ptr<LedgerLogin> NamedPlatform::CreateLedgerLogin()
{
    return ViewOf<LedgerLogin>(Make(kLedgerLoginName));
}

std::shared_ptr<LedgerPub> NamedPlatform::CreateLedgerPub()
{
    return ViewOf<LedgerPub>(Make(kLedgerPubName));
}

std::shared_ptr<LedgerParams> NamedPlatform::CreateLedgerParams()
{
    return ViewOf<LedgerParams>(Make(kLedgerParamsName));
}

std::shared_ptr<MachineInfo> NamedPlatform::CreateMachineInfo()
{
    return ViewOf<MachineInfo>(Make(kMachineInfoName));
}

std::shared_ptr<ClientNumber> NamedPlatform::CreateClientNumber()
{
    return ViewOf<ClientNumber>(Make(kClientNumberName));
}

std::shared_ptr<SettingsStore> NamedPlatform::CreateSettingsStore()
{
    return ViewOf<SettingsStore>(Make(kSettingsStoreName));
}

std::shared_ptr<XmlDocument> NamedPlatform::CreateXmlDocument()
{
    return ViewOf<XmlDocument>(Make(kXmlDocumentName));
}

std::shared_ptr<FormHost> NamedPlatform::CreateFormHost()
{
    return ViewOf<FormHost>(Make(kFormHostName));
}

std::shared_ptr<LateBound> NamedPlatform::CreateObject(const std::string& name)
{
    return ViewOf<LateBound>(Make(name));
}

}  // namespace kavelin::automation
