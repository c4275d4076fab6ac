// The entries of the component that the system calls.
#include "com/ClassFactory.h"
#include "com/Failure.h"
#include "com/Module.h"
#include "com/Registration.h"
#include "com/Utf16.h"
#include "com/Windows.h"

namespace {

using namespace kavelin::com;

HRESULT ClassObject(REFCLSID classId, REFIID id, void** object)
{
    for (const kavelin::AutomationClass& automationClass : kavelin::AutomationClasses()) {
        CLSID known = {};
        CLSIDFromString(Wide(automationClass.classId).c_str(), &known);
        if (known != classId)
            continue;
        auto* factory = new ClassFactory(automationClass);
        const HRESULT code = factory->QueryInterface(id, object);
        factory->Release();
        return code;
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    return Guarded([&] { return ClassObject(classId, id, object); });
}

STDAPI DllCanUnloadNow()
{
    return IsInUse() ? S_FALSE : S_OK;
}

// For all users of the machine, which needs an administrator's rights.
STDAPI DllRegisterServer()
{
    return RegisterComponent(Scope::Machine);
}

STDAPI DllUnregisterServer()
{
    return UnregisterComponent(Scope::Machine);
}

// `regsvr32 /n /i:user` registers for the user alone, without any rights; without "user" there is nothing to
// do that DllRegisterServer doesn't do.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine)
{
    if (!commandLine || !SameName(commandLine, "user"))
        return E_INVALIDARG;
    return install ? RegisterComponent(Scope::User) : UnregisterComponent(Scope::User);
}
