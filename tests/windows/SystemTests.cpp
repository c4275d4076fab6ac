// The component's entries, its keys and its settings.
#include "Check.h"
#include "Client.h"
#include "FakeObject.h"

#include "com/RegistrySettings.h"
#include "com/Utf16.h"
#include "com/WindowsPlatform.h"
#include "component/TypeLibrary.h"
#include "frame/Errors.h"

#include <set>

using namespace kavelin;
using namespace kavelin::test;
using com::Pointer;

namespace {

// Every key below a key of the user, with its values' names.
void AddKeys(HKEY parent, const std::wstring& path, std::set<std::wstring>& keys)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return;
    keys.insert(path);
    wchar_t name[512];
    DWORD size = 512;
    for (DWORD i = 0; RegEnumValueW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i) {
        keys.insert(path + L" : " + name);
        size = 512;
    }
    size = 512;
    for (DWORD i = 0; RegEnumKeyExW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i) {
        AddKeys(parent, path + L"\\" + name, keys);
        size = 512;
    }
    RegCloseKey(key);
}

std::set<std::wstring> UserClasses()
{
    std::set<std::wstring> keys;
    AddKeys(HKEY_CURRENT_USER, L"Software\\Classes", keys);
    return keys;
}

// A user may have the key or not; an empty one goes with the component's last. One that holds anything stays.
void DeleteEmptyClasses()
{
    RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Classes");
}

}  // namespace

KAVELIN_TEST(AnObjectAFactoryAndALockKeepTheComponentInUse)
{
    // What earlier tests left in the thread's state are the host's objects, which don't count.
    auto object = Create("ClsBusiness");
    const auto canUnload = ComponentEntry<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow");
    CHECK_EQUAL(canUnload(), S_FALSE);
    object = {};
    CHECK_EQUAL(canUnload(), S_OK);

    const auto getClass =
        ComponentEntry<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>("DllGetClassObject");
    CLSID classId = {};
    CLSIDFromProgID(L"Kavelin.ClsBusiness", &classId);
    Pointer<IClassFactory> factory;
    CHECK_EQUAL(getClass(classId, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive())), S_OK);
    CHECK_EQUAL(canUnload(), S_FALSE);
    CHECK_EQUAL(factory->LockServer(TRUE), S_OK);
    Pointer<IDispatch> made;
    CHECK_EQUAL(factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(made.Receive())),
                S_OK);
    Pointer<IUnknown> aggregated;
    CHECK_EQUAL(
        factory->CreateInstance(made.Get(), IID_IUnknown, reinterpret_cast<void**>(aggregated.Receive())),
        CLASS_E_NOAGGREGATION);
    Pointer<IStream> stream;
    CHECK_EQUAL(made->QueryInterface(IID_IStream, reinterpret_cast<void**>(stream.Receive())), E_NOINTERFACE);
    CHECK(!stream);
    made = {};
    CHECK_EQUAL(canUnload(), S_FALSE);
    CHECK_EQUAL(factory->LockServer(FALSE), S_OK);
    CHECK_EQUAL(canUnload(), S_FALSE);
    factory = {};
    CHECK_EQUAL(canUnload(), S_OK);

    Pointer<IClassFactory> unknown;
    CHECK_EQUAL(getClass(IID_IStream, IID_IClassFactory, reinterpret_cast<void**>(unknown.Receive())),
                CLASS_E_CLASSNOTAVAILABLE);
}

KAVELIN_TEST(TheKeysOfAUserComeAndGoWithoutATrace)
{
    DeleteEmptyClasses();
    const auto kept = Create("ClsBusiness");
    const auto install = ComponentEntry<HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR)>("DllInstall");
    const auto before = UserClasses();
    CHECK_EQUAL(install(TRUE, L"user"), S_OK);
    const auto registered = UserClasses();
    for (const AutomationClass& automationClass : AutomationClasses()) {
        const std::wstring root = L"Software\\Classes\\";
        const std::wstring name = L"Kavelin." + com::Wide(automationClass.publicClass->name);
        const std::wstring classKey = root + L"CLSID\\" + com::Wide(automationClass.classId);
        for (const std::wstring& key :
             {root + name, root + name + L"\\CLSID", root + name + L"\\CurVer", root + name + L".1\\CLSID",
              classKey, classKey + L"\\InprocServer32", classKey + L"\\InprocServer32 : ThreadingModel",
              classKey + L"\\ProgID", classKey + L"\\VersionIndependentProgID", classKey + L"\\TypeLib",
              classKey + L"\\Programmable", root + L"Interface\\" + com::Wide(automationClass.interfaceId)})
            CHECK(registered.contains(key));
    }
    CHECK_EQUAL(install(TRUE, L"USER"), S_OK);  // once more is no error
    CHECK(UserClasses() == registered);
    CHECK_EQUAL(install(FALSE, L"user"), S_OK);
    CHECK(UserClasses() == before);
    CHECK_EQUAL(install(FALSE, L"user"), S_OK);
    CHECK_EQUAL(install(TRUE, L"everybody"), E_INVALIDARG);
    CHECK_EQUAL(install(TRUE, nullptr), E_INVALIDARG);
}

KAVELIN_TEST(OthersKeysBesideTheComponentsStay)
{
    const auto kept = Create("ClsBusiness");
    const auto install = ComponentEntry<HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR)>("DllInstall");
    HKEY other = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\Classes\\CLSID\\{others}", 0, nullptr, 0, KEY_ALL_ACCESS,
                    nullptr, &other, nullptr);
    RegCloseKey(other);
    const auto before = UserClasses();
    CHECK_EQUAL(install(TRUE, L"user"), S_OK);
    CHECK_EQUAL(install(FALSE, L"user"), S_OK);
    CHECK(UserClasses() == before);
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Classes\\CLSID");
    DeleteEmptyClasses();
}

KAVELIN_TEST(SettingsLieWhereTheUsersOtherOnesDo)
{
    com::RegistrySettings settings;
    CHECK_EQUAL(settings.Read("Kavelin 测试", "Section", "M1", "by default"), "by default");
    settings.Write("Kavelin 测试", "Section", "M1", "百分之七十");
    settings.Write("Kavelin 测试", "Section", "M2", "");
    CHECK_EQUAL(settings.Read("Kavelin 测试", "Section", "M1", ""), "百分之七十");
    CHECK_EQUAL(settings.Read("Kavelin 测试", "Section", "M2", "by default"), "");
    settings.Write("Kavelin 测试", "Section", "M1", "70");
    CHECK_EQUAL(settings.Read("Kavelin 测试", "Section", "M1", ""), "70");
    wchar_t text[8] = {};
    DWORD size = sizeof text;
    CHECK_EQUAL(
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Kavelin 测试\\Section",
                     L"M1", RRF_RT_REG_SZ, nullptr, text, &size),
        ERROR_SUCCESS);
    CHECK_EQUAL(com::Narrow(text), "70");
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Kavelin 测试");
}

KAVELIN_TEST(ThePlatformTakesTheSystemsOwnWhereTheHostHasNone)
{
    com::WindowsPlatform platform;
    const std::string machine = platform.CreateMachineInfo()->MachineName();
    CHECK(!machine.empty());
    CHECK(machine.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_") ==
          std::string::npos);
    CHECK(platform.CreateClientNumber()->Number().As<std::int64_t>());
    CHECK(platform.CreateClientNumber()->Number() != platform.CreateClientNumber()->Number());
    const Guid first = platform.CreateGuid();
    CHECK(first != platform.CreateGuid());
    CHECK_EQUAL(first[6] >> 4, 4);
    try {
        platform.CreateObject("Kavelin.NoSuchClass");
        CHECK(false);
    } catch (const Error& error) {
        CHECK_EQUAL(std::string(error.what()), "The host provides no Kavelin.NoSuchClass.");
    }
}

KAVELIN_TEST(XmlIsReadBySystemsParser)
{
    com::WindowsPlatform platform;
    const auto document = platform.CreateXmlDocument();
    CHECK(!document->loadXML("<a>"));
    CHECK(document->loadXML("<条件><field name=\"仓库\" empty=\"\">01 </field><field/></条件>"));
    const auto root = document->documentElement();
    CHECK_EQUAL(root->nodeName(), "条件");
    const auto fields = root->childNodes();
    CHECK_EQUAL(fields.size(), 2U);
    CHECK_EQUAL(fields.at(0)->text(), "01");
    CHECK(fields.at(0)->getAttribute("name") == Value("仓库"));
    CHECK(fields.at(1)->getAttribute("name").IsNull());
}
