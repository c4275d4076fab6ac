#include "com/Registration.h"

#include "com/Failure.h"
#include "com/Module.h"
#include "com/Utf16.h"
#include "component/TypeLibrary.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kavelin::com {

namespace {

// Callers of a dispatch interface in another apartment reach it by the system's own marshaller.
constexpr const char* kDispatchProxy = "{00020420-0000-0000-C000-000000000046}";

// A key below Software\Classes and the text of one of its values, "" its default one.
struct Entry {
    std::string key;
    std::string name;
    std::string text;
};

using Entries = std::vector<Entry>;

std::string ProgId(const AutomationClass& automationClass)
{
    return "Kavelin." + std::string(automationClass.publicClass->name);
}

std::string Description(const AutomationClass& automationClass)
{
    return ProgId(automationClass) + " Object";
}

// The keys of one class. Everything below them is the component's.
std::vector<std::string> Roots(const AutomationClass& automationClass)
{
    const std::string progId = ProgId(automationClass);
    return {progId, progId + ".1", "CLSID\\" + std::string(automationClass.classId),
            "Interface\\" + std::string(automationClass.interfaceId)};
}

std::string LibraryRoot()
{
    return "TypeLib\\" + std::string(kTypeLibraryId);
}

std::string LibraryVersion()
{
    return std::to_string(kTypeLibraryMajor) + "." + std::to_string(kTypeLibraryMinor);
}

Entries NameEntries(const AutomationClass& automationClass)
{
    const std::string progId = ProgId(automationClass);
    const std::string classId(automationClass.classId);
    return {
        {progId, "", Description(automationClass)}, {progId + "\\CLSID", "", classId},
        {progId + "\\CurVer", "", progId + ".1"},   {progId + ".1", "", Description(automationClass)},
        {progId + ".1\\CLSID", "", classId},
    };
}

Entries ClassEntries(const AutomationClass& automationClass, const std::string& module)
{
    const std::string progId = ProgId(automationClass);
    const std::string key = "CLSID\\" + std::string(automationClass.classId);
    return {
        {key, "", Description(automationClass)},
        {key + "\\InprocServer32", "", module},
        {key + "\\InprocServer32", "ThreadingModel", "Apartment"},
        {key + "\\ProgID", "", progId + ".1"},
        {key + "\\VersionIndependentProgID", "", progId},
        {key + "\\TypeLib", "", std::string(kTypeLibraryId)},
        {key + "\\Version", "", LibraryVersion()},
        {key + "\\Programmable", "", ""},
    };
}

Entries InterfaceEntries(const AutomationClass& automationClass)
{
    const std::string key = "Interface\\" + std::string(automationClass.interfaceId);
    return {
        {key, "", "_" + std::string(automationClass.publicClass->name)},
        {key + "\\ProxyStubClsid32", "", kDispatchProxy},
        {key + "\\TypeLib", "", std::string(kTypeLibraryId)},
        {key + "\\TypeLib", "Version", LibraryVersion()},
    };
}

Entries LibraryEntries(const std::string& module)
{
    const std::string key = LibraryRoot() + "\\" + LibraryVersion();
    return {
        {key, "", "Kavelin"},
        {key + "\\0\\win64", "", module},
        {key + "\\FLAGS", "", "0"},
        {key + "\\HELPDIR", "", module.substr(0, module.find_last_of("\\/"))},
    };
}

Entries AllEntries()
{
    const std::string module = Narrow(ModulePath());
    Entries all = LibraryEntries(module);
    const auto add = [&](const Entries& entries) { all.insert(all.end(), entries.begin(), entries.end()); };
    for (const AutomationClass& automationClass : AutomationClasses()) {
        add(NameEntries(automationClass));
        add(ClassEntries(automationClass, module));
        add(InterfaceEntries(automationClass));
    }
    return all;
}

// --- the registry

class Key {
  public:
    Key() = default;
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key()
    {
        if (objKey)
            RegCloseKey(objKey);
    }

    HKEY Get() const { return objKey; }
    HKEY* Receive() { return &objKey; }

  private:
    HKEY objKey = nullptr;
};

constexpr const wchar_t* kClasses = L"Software\\Classes";

HKEY RootOf(Scope scope)
{
    return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

LSTATUS Write(HKEY classes, const Entry& entry)
{
    Key key;
    const LSTATUS created = RegCreateKeyExW(classes, Wide(entry.key).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                                            nullptr, key.Receive(), nullptr);
    if (created != ERROR_SUCCESS)
        return created;
    const std::wstring text = Wide(entry.text);
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(key.Get(), entry.name.empty() ? nullptr : Wide(entry.name).c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(text.c_str()), size);
}

LSTATUS DeleteTree(HKEY classes, const std::string& root)
{
    const std::wstring name = Wide(root);
    const LSTATUS emptied = RegDeleteTreeW(classes, name.c_str());
    return emptied == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : emptied;
}

// Takes away a key that all components share, if this one's were all that it held.
void DeleteIfEmpty(HKEY parent, const wchar_t* shared)
{
    DWORD keys = 1;
    DWORD values = 1;
    {
        Key key;
        if (RegOpenKeyExW(parent, shared, 0, KEY_READ, key.Receive()) != ERROR_SUCCESS)
            return;
        if (RegQueryInfoKeyW(key.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr,
                             nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return;
    }
    if (keys == 0 && values == 0)
        RegDeleteKeyW(parent, shared);
}

LSTATUS WriteAll(HKEY classes)
{
    for (const Entry& entry : AllEntries()) {
        const LSTATUS written = Write(classes, entry);
        if (written != ERROR_SUCCESS)
            return written;
    }
    return ERROR_SUCCESS;
}

LSTATUS DeleteAll(HKEY classes)
{
    LSTATUS failed = DeleteTree(classes, LibraryRoot());
    for (const AutomationClass& automationClass : AutomationClasses()) {
        for (const std::string& root : Roots(automationClass)) {
            const LSTATUS deleted = DeleteTree(classes, root);
            if (failed == ERROR_SUCCESS)
                failed = deleted;
        }
    }
    for (const wchar_t* shared : {L"CLSID", L"Interface", L"TypeLib"})
        DeleteIfEmpty(classes, shared);
    return failed;
}

HRESULT Unregister(Scope scope)
{
    LSTATUS code = ERROR_SUCCESS;
    {
        Key classes;
        code = RegOpenKeyExW(RootOf(scope), kClasses, 0, KEY_ALL_ACCESS, classes.Receive());
        if (code == ERROR_FILE_NOT_FOUND)
            return S_OK;
        if (code == ERROR_SUCCESS)
            code = DeleteAll(classes.Get());
    }
    DeleteIfEmpty(RootOf(scope), kClasses);
    return HRESULT_FROM_WIN32(code);
}

HRESULT Register(Scope scope)
{
    LSTATUS code = ERROR_SUCCESS;
    {
        Key classes;
        code = RegCreateKeyExW(RootOf(scope), kClasses, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                               classes.Receive(), nullptr);
        if (code == ERROR_SUCCESS)
            code = WriteAll(classes.Get());
    }
    if (code != ERROR_SUCCESS)
        Unregister(scope);
    return HRESULT_FROM_WIN32(code);
}

}  // namespace

HRESULT RegisterComponent(Scope scope)
{
    return Guarded([&] { return Register(scope); });
}

HRESULT UnregisterComponent(Scope scope)
{
    return Guarded([&] { return Unregister(scope); });
}

}  // namespace kavelin::com
