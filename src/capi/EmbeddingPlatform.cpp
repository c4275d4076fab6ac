#include "capi/EmbeddingPlatform.h"

#include "automation/ObjectNames.h"
#include "capi/ThreadState.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "host/Config.h"
#include "host/HostConnection.h"
#include "host/HostLedger.h"
#include "host/HostMachine.h"
#include "host/HostResources.h"
#include "host/HostSettingsStore.h"
#include "host/HostXml.h"

#include <string>
#include <utility>
#include <vector>

namespace kavelin::capi {

namespace {

constexpr const char* kFirstLanguage = "zh-CN";  // until the library hands a login to the resource object

bool IsProvided(std::string_view name)
{
    return CurrentThread().provided.contains(name);
}

// Its three objects know each other, so they are the host's or the library's together.
bool IsLedgerProvided()
{
    return IsProvided(automation::kLedgerLoginName) || IsProvided(automation::kLedgerPubName) ||
           IsProvided(automation::kLedgerParamsName);
}

void ShowToHost(const host::ShownMessage& message)
{
    const ThreadState::MessageTaker messages = CurrentThread().messages;
    if (messages.taker)
        messages.taker(messages.context, message.text.c_str(), message.icon);
}

// The ledger of whichever account the login is at: the library keeps the object when the login changes.
class LedgerOfLogin : public LedgerPub {
  public:
    void SetLogin(std::shared_ptr<LedgerLogin> login) override { Ledger().SetLogin(std::move(login)); }
    bool Reload(const std::string& first, const std::string& second) override
    {
        return Ledger().Reload(first, second);
    }
    std::pair<int, int> GetYearMonthRange(const std::string& year, Connection& account) override
    {
        return Ledger().GetYearMonthRange(year, account);
    }
    std::vector<std::string> GetAccountYears(const std::string& year, Connection& account) override
    {
        return Ledger().GetAccountYears(year, account);
    }
    void GetAccountYearParams(LedgerLogin& login, const std::string& year, LedgerParams& params) override
    {
        Ledger().GetAccountYearParams(login, year, params);
    }

  private:
    static host::HostLedgerPub Ledger()
    {
        return host::HostLedgerPub(Existing(ModPub().gobjLogin).AccountId());
    }
};

}  // namespace

std::shared_ptr<Connection> EmbeddingPlatform::CreateConnection()
{
    return IsProvided(automation::kConnectionName) ? NamedPlatform::CreateConnection()
                                                   : host::CreateConnection();
}

std::shared_ptr<ResourceObject> EmbeddingPlatform::CreateResourceObject()
{
    if (IsProvided(automation::kResourcesName))
        return NamedPlatform::CreateResourceObject();
    return std::make_shared<host::HostResources>(kFirstLanguage, ShowToHost);
}

std::shared_ptr<LedgerLogin> EmbeddingPlatform::CreateLedgerLogin()
{
    if (IsLedgerProvided())
        return NamedPlatform::CreateLedgerLogin();
    return std::make_shared<host::HostLedgerLogin>(host::ConnectionSource());
}

std::shared_ptr<LedgerPub> EmbeddingPlatform::CreateLedgerPub()
{
    if (IsLedgerProvided())
        return NamedPlatform::CreateLedgerPub();
    return std::make_shared<LedgerOfLogin>();
}

std::shared_ptr<LedgerParams> EmbeddingPlatform::CreateLedgerParams()
{
    if (IsLedgerProvided())
        return NamedPlatform::CreateLedgerParams();
    return std::make_shared<host::HostLedgerParams>();
}

std::shared_ptr<MachineInfo> EmbeddingPlatform::CreateMachineInfo()
{
    if (IsProvided(automation::kMachineInfoName))
        return NamedPlatform::CreateMachineInfo();
    return std::make_shared<host::HostMachineInfo>();
}

std::shared_ptr<ClientNumber> EmbeddingPlatform::CreateClientNumber()
{
    if (IsProvided(automation::kClientNumberName))
        return NamedPlatform::CreateClientNumber();
    return std::make_shared<host::HostClientNumber>();
}

std::shared_ptr<SettingsStore> EmbeddingPlatform::CreateSettingsStore()
{
    if (IsProvided(automation::kSettingsStoreName))
        return NamedPlatform::CreateSettingsStore();
    const auto folder = host::ConfigFolder(host::ConfigSources::OfProcess());
    return std::make_shared<host::HostSettingsStore>(folder / "settings.json");
}

std::shared_ptr<XmlDocument> EmbeddingPlatform::CreateXmlDocument()
{
    if (IsProvided(automation::kXmlDocumentName))
        return NamedPlatform::CreateXmlDocument();
    return host::CreateXml();
}

Guid EmbeddingPlatform::CreateGuid()
{
    return host::RandomGuid();
}

}  // namespace kavelin::capi
