#include "component/late/MirroredHost.h"

#include "automation/NamedPlatform.h"
#include "automation/ObjectNames.h"
#include "frame/host/ConnectionObject.h"

namespace kavelin::test {

namespace {

HostObjectPtr MakeRecording(Platform& platform, const std::string& name)
{
    using namespace automation;
    if (name == kConnectionName)
        return std::make_shared<ConnectionObject>(platform.CreateConnection());
    if (name == kXmlDocumentName)
        return platform.CreateXmlDocument();
    if (name == kResourcesName)
        return platform.CreateResourceObject();
    if (name == kAuthServiceName)
        return platform.CreateAuthService();
    if (name == kLedgerLoginName)
        return platform.CreateLedgerLogin();
    if (name == kLedgerPubName)
        return platform.CreateLedgerPub();
    if (name == kLedgerParamsName)
        return platform.CreateLedgerParams();
    if (name == kMachineInfoName)
        return platform.CreateMachineInfo();
    if (name == kClientNumberName)
        return platform.CreateClientNumber();
    if (name == kSettingsStoreName)
        return platform.CreateSettingsStore();
    if (name == kFormHostName)
        return platform.CreateFormHost();
    return platform.CreateObject(name);
}

std::shared_ptr<LateBound> MakeMirror(Platform& platform, const std::string& name)
{
    if (name == automation::kRecordsetName)
        return MirroredRecordset();
    return std::dynamic_pointer_cast<LateBound>(Mirrored(MakeRecording(platform, name)));
}

// Random numbers and sounds are the recording platform's, so that a log can be compared.
class MirroredPlatform : public automation::NamedPlatform {
  public:
    explicit MirroredPlatform(std::shared_ptr<Platform> recording)
        : NamedPlatform([recording](const std::string& name) { return MakeMirror(*recording, name); }),
          objRecording(std::move(recording))
    {
    }

    Guid CreateGuid() override { return objRecording->CreateGuid(); }
    void Beep() override { objRecording->Beep(); }

  private:
    std::shared_ptr<Platform> objRecording;
};

}  // namespace

MirroredHost::MirroredHost()
{
    UsePlatform(std::make_shared<MirroredPlatform>(ModPub().gobjPlatform));
}

}  // namespace kavelin::test
