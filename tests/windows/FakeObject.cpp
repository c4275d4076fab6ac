#include "FakeObject.h"

#include "com/Utf16.h"
#include "frame/Text.h"

namespace kavelin::test {

com::Pointer<FakeObject> MakeFake(FakeLife& life)
{
    com::Pointer<FakeObject> made;
    *made.Receive() = new FakeObject(life);
    return made;
}

FakeMember Gives(Variant value)
{
    return [value = std::move(value)](const FakeCall& call) {
        if (!(call.flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)))
            return DISP_E_MEMBERNOTFOUND;
        if (call.result)
            *call.result = com::ToAutomation(value).Detach();
        return S_OK;
    };
}

FakeObject& FakeObject::WithValue(const std::string& name, const Variant& value)
{
    return With(name, Gives(value));
}

FakeObject& FakeObject::WithObject(const std::string& name, IDispatch* object)
{
    return With(name, [held = com::Pointer<IDispatch>(object)](const FakeCall& call) {
        call.result->vt = VT_DISPATCH;
        call.result->pdispVal = held.Get();
        if (held)
            held->AddRef();
        return S_OK;
    });
}

FakeObject& FakeObject::WithFailure(const std::string& name, HRESULT code, const wchar_t* description,
                                    const wchar_t* source)
{
    return With(name, [=](const FakeCall& call) {
        call.details->scode = code;
        call.details->bstrDescription = SysAllocString(description);
        call.details->bstrSource = SysAllocString(source);
        return DISP_E_EXCEPTION;
    });
}

HRESULT FakeObject::QueryInterface(REFIID id, void** object)
{
    Touch();
    if (id != IID_IUnknown && id != IID_IDispatch) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    *object = this;
    AddRef();
    return S_OK;
}

ULONG FakeObject::AddRef()
{
    Touch();
    return ++lngReferences;
}

ULONG FakeObject::Release()
{
    Touch();
    const ULONG left = --lngReferences;
    if (left == 0)
        delete this;
    return left;
}

HRESULT FakeObject::GetTypeInfoCount(UINT* count)
{
    *count = 0;
    return S_OK;
}

HRESULT FakeObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids)
{
    Touch();
    ++lngResolved;
    for (std::size_t i = 0; i < arrNames.size(); ++i) {
        if (EqualsNoCase(arrNames[i], com::Narrow(names[0]))) {
            ids[0] = static_cast<DISPID>(i) + 1;
            return S_OK;
        }
    }
    ids[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

HRESULT FakeObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                           EXCEPINFO* details, UINT*)
{
    Touch();
    std::size_t place = static_cast<std::size_t>(id) - 1;
    if (id == DISPID_VALUE)
        for (place = 0; place < arrNames.size() && !arrNames[place].empty();)
            ++place;
    if (place >= arrMembers.size())
        return DISP_E_MEMBERNOTFOUND;
    objLife.events += arrNames[place] + " ";
    return arrMembers[place]({flags, parameters, result, details});
}

}  // namespace kavelin::test
