#include "com/ClassFactory.h"

#include "com/Apartment.h"
#include "com/ComObject.h"
#include "com/Failure.h"
#include "com/Module.h"

namespace kavelin::com {

ClassFactory::ClassFactory(const AutomationClass& automationClass) : objClass(automationClass)
{
    AddUse();
}

ClassFactory::~ClassFactory()
{
    RemoveUse();
}

HRESULT ClassFactory::QueryInterface(REFIID id, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IClassFactory)
        return E_NOINTERFACE;
    *object = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
}

ULONG ClassFactory::AddRef()
{
    return ++lngReferences;
}

ULONG ClassFactory::Release()
{
    const ULONG left = --lngReferences;
    if (left == 0)
        delete this;
    return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (outer)
        return CLASS_E_NOAGGREGATION;
    try {
        // Before the object: its constructor may need the thread's platform.
        Apartment::Current();
        return ComObject::Make(objClass.publicClass->create(), &objClass)->QueryInterface(id, object);
    } catch (...) {
        const Failure failure = CurrentFailure("Kavelin");
        Report(failure, IID_IClassFactory, nullptr);
        return failure.code;
    }
}

HRESULT ClassFactory::LockServer(BOOL lock)
{
    if (lock)
        AddUse();
    else
        RemoveUse();
    return S_OK;
}

}  // namespace kavelin::com
