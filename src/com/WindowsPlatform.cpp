#include "com/WindowsPlatform.h"

#include "automation/ObjectNames.h"
#include "automation/Views.h"
#include "com/Failure.h"
#include "com/FormDialog.h"
#include "com/Pointer.h"
#include "com/RegistrySettings.h"
#include "com/Utf16.h"
#include "com/Variants.h"
#include "frame/IdentifierText.h"

#include <atomic>

namespace kavelin::com {

namespace {

// The registered object of that name; null if none is.
std::shared_ptr<LateBound> MakeRegistered(const std::string& name)
{
    CLSID classId = {};
    if (FAILED(CLSIDFromProgID(Wide(name).c_str(), &classId)))
        return nullptr;
    OwnedVariant made;
    const HRESULT code = CoCreateInstance(classId, nullptr, CLSCTX_SERVER, IID_IDispatch,
                                          reinterpret_cast<void**>(&made.Receive()->pdispVal));
    if (FAILED(code))
        throw ForeignError("No " + name + " can be made: " + MessageOf(code), code, "");
    made.Receive()->vt = VT_DISPATCH;
    return ObjectOf<LateBound>(FromAutomation(made.Get()), name);
}

class WindowsMachineInfo : public MachineInfo {
  public:
    std::string MachineName() override
    {
        wchar_t name[256] = {};
        DWORD size = 256;
        GetComputerNameExW(ComputerNameNetBIOS, name, &size);
        return IdentifierText(Narrow({name, size}));
    }
};

// Process numbers are multiples of four, so they leave room for a count of the clients of one process.
class WindowsClientNumber : public ClientNumber {
  public:
    WindowsClientNumber()
    {
        static std::atomic<std::uint32_t> count = 0;
        lngNumber =
            static_cast<std::int32_t>((GetCurrentProcessId() / 4 << 8 | (count++ & 0xFF)) & 0x7FFFFFFF);
    }

    Value Number() override { return lngNumber; }

  private:
    std::int32_t lngNumber = 0;
};

}  // namespace

WindowsPlatform::WindowsPlatform() : NamedPlatform(MakeRegistered) {}

std::shared_ptr<MachineInfo> WindowsPlatform::CreateMachineInfo()
{
    if (auto object = TryMake(automation::kMachineInfoName))
        return automation::ViewOf<MachineInfo>(object);
    return std::make_shared<WindowsMachineInfo>();
}

std::shared_ptr<ClientNumber> WindowsPlatform::CreateClientNumber()
{
    if (auto object = TryMake(automation::kClientNumberName))
        return automation::ViewOf<ClientNumber>(object);
    return std::make_shared<WindowsClientNumber>();
}

std::shared_ptr<SettingsStore> WindowsPlatform::CreateSettingsStore()
{
    if (auto object = TryMake(automation::kSettingsStoreName))
        return automation::ViewOf<SettingsStore>(object);
    return std::make_shared<RegistrySettings>();
}

std::shared_ptr<FormHost> WindowsPlatform::CreateFormHost()
{
    if (auto object = TryMake(automation::kFormHostName))
        return automation::ViewOf<FormHost>(object);
    return std::make_shared<FormDialog>();
}

Guid WindowsPlatform::CreateGuid()
{
    GUID made = {};
    const HRESULT code = CoCreateGuid(&made);
    if (FAILED(code))
        throw Error("No identifier can be made: " + MessageOf(code));
    Guid guid = {};
    for (int i = 0; i < 4; ++i)
        guid[i] = static_cast<std::uint8_t>(made.Data1 >> (24 - 8 * i));
    guid[4] = static_cast<std::uint8_t>(made.Data2 >> 8);
    guid[5] = static_cast<std::uint8_t>(made.Data2);
    guid[6] = static_cast<std::uint8_t>(made.Data3 >> 8);
    guid[7] = static_cast<std::uint8_t>(made.Data3);
    for (int i = 0; i < 8; ++i)
        guid[8 + i] = made.Data4[i];
    return guid;
}

void WindowsPlatform::Beep()
{
    MessageBeep(MB_OK);
}

}  // namespace kavelin::com
