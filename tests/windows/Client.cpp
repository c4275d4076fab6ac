#include "Client.h"

#include "com/Failure.h"
#include "com/Utf16.h"

#include <algorithm>

namespace kavelin::test {

namespace {

std::string Taken(BSTR text)
{
    const std::string taken = text ? com::Narrow({text, SysStringLen(text)}) : "";
    SysFreeString(text);
    return taken;
}

std::vector<com::OwnedVariant> Owned(const std::vector<Variant>& arguments)
{
    std::vector<com::OwnedVariant> owned;
    for (const Variant& argument : arguments)
        owned.push_back(com::ToAutomation(argument));
    return owned;
}

std::vector<VARIANT> Borrowed(const std::vector<com::OwnedVariant>& owned)
{
    std::vector<VARIANT> borrowed;
    for (const com::OwnedVariant& variant : owned)
        borrowed.push_back(variant.Get());
    return borrowed;
}

}  // namespace

com::Pointer<IDispatch> Create(const std::string& name)
{
    CLSID classId = {};
    com::Pointer<IDispatch> made;
    HRESULT code = CLSIDFromProgID(com::Wide("Kavelin." + name).c_str(), &classId);
    if (SUCCEEDED(code))
        code = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(made.Receive()));
    if (FAILED(code))
        throw Error("Kavelin." + name + ": " + com::MessageOf(code));
    return made;
}

DISPID IdOf(IDispatch& object, const wchar_t* name)
{
    std::wstring text = name;
    wchar_t* names[] = {text.data()};
    DISPID id = 0;
    const HRESULT code = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    return FAILED(code) ? DISPID_UNKNOWN : id;
}

VARIANT ReferenceTo(VARIANT& variable)
{
    VARIANT reference = {};
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &variable;
    return reference;
}

VARIANT Missing()
{
    VARIANT missing = {};
    missing.vt = VT_ERROR;
    missing.scode = DISP_E_PARAMNOTFOUND;
    return missing;
}

Answer Invoke(IDispatch& object, const wchar_t* member, WORD flags, std::vector<VARIANT> arguments,
              std::vector<DISPID> names)
{
    std::reverse(arguments.begin(), arguments.end());
    std::reverse(names.begin(), names.end());
    DISPPARAMS parameters = {arguments.data(), names.data(), static_cast<UINT>(arguments.size()),
                             static_cast<UINT>(names.size())};
    Answer answer;
    EXCEPINFO details = {};
    com::OwnedVariant result;
    answer.code = object.Invoke(IdOf(object, member), IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                result.Receive(), &details, &answer.argument);
    answer.type = result.Get().vt;
    answer.result = com::FromAutomation(result.Get());
    answer.error = details.scode;
    answer.description = Taken(details.bstrDescription);
    answer.source = Taken(details.bstrSource);
    return answer;
}

Answer Call(IDispatch& object, const wchar_t* member, const std::vector<Variant>& arguments)
{
    const auto owned = Owned(arguments);
    return Invoke(object, member, DISPATCH_METHOD, Borrowed(owned));
}

Answer Get(IDispatch& object, const wchar_t* member, const std::vector<Variant>& arguments)
{
    const auto owned = Owned(arguments);
    return Invoke(object, member, DISPATCH_PROPERTYGET, Borrowed(owned));
}

Answer Put(IDispatch& object, const wchar_t* member, const std::vector<Variant>& arguments, WORD flags)
{
    const auto owned = Owned(arguments);
    return Invoke(object, member, flags, Borrowed(owned), {DISPID_PROPERTYPUT});
}

Variant ObjectArgument(IDispatch* object)
{
    VARIANT variant = {};
    variant.vt = VT_DISPATCH;
    variant.pdispVal = object;
    return com::FromAutomation(variant);
}

}  // namespace kavelin::test
