#include "host/HostPlatform.h"

#include "frame/Errors.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "host/HostLedger.h"
#include "host/HostMachine.h"
#include "host/HostResources.h"
#include "host/HostSettingsStore.h"
#include "host/HostXml.h"

#include <unistd.h>

#include <cstdio>

namespace kavelin::host {

std::shared_ptr<Connection> HostPlatform::CreateConnection()
{
    return objSettings.connections.Create("report");
}

std::shared_ptr<ResourceObject> HostPlatform::CreateResourceObject()
{
    return std::make_shared<HostResources>(objSettings.language, objSettings.onMessage);
}

std::shared_ptr<AuthService> HostPlatform::CreateAuthService()
{
    return std::make_shared<HostAuthService>(objSettings.users, "");
}

std::shared_ptr<LedgerLogin> HostPlatform::CreateLedgerLogin()
{
    return std::make_shared<HostLedgerLogin>(objSettings.connections);
}

std::shared_ptr<LedgerPub> HostPlatform::CreateLedgerPub()
{
    return std::make_shared<HostLedgerPub>(objSettings.accountId);
}

std::shared_ptr<LedgerParams> HostPlatform::CreateLedgerParams()
{
    return std::make_shared<HostLedgerParams>();
}

std::shared_ptr<MachineInfo> HostPlatform::CreateMachineInfo()
{
    return std::make_shared<HostMachineInfo>();
}

std::shared_ptr<ClientNumber> HostPlatform::CreateClientNumber()
{
    return std::make_shared<HostClientNumber>();
}

std::shared_ptr<SettingsStore> HostPlatform::CreateSettingsStore()
{
    return std::make_shared<HostSettingsStore>(objSettings.settingsFile);
}

std::shared_ptr<XmlDocument> HostPlatform::CreateXmlDocument()
{
    return CreateXml();
}

std::shared_ptr<FormHost> HostPlatform::CreateFormHost()
{
    return std::make_shared<HostForms>(objSettings.onForm, CreateResourceObject());
}

Guid HostPlatform::CreateGuid()
{
    return RandomGuid();
}

void HostPlatform::Beep()
{
    if (::isatty(STDERR_FILENO))
        std::fputc('\a', stderr);
}

std::shared_ptr<LateBound> HostPlatform::CreateObject(const std::string& name)
{
    const auto openAccount = [connections = objSettings.connections] {
        return connections.Open("portal", Existing(ModPub().gobjLogin).VosDbName(), "");
    };
    auto object = CreateSuiteObject(
        name, {objSettings.onShow, objSettings.onMessage, objSettings.language, openAccount});
    if (!object)
        throw Error("This host has no object " + name + ".");
    return object;
}

}  // namespace kavelin::host
