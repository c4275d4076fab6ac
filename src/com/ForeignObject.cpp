#include "com/ForeignObject.h"

#include "com/Failure.h"
#include "com/Pointer.h"
#include "com/Utf16.h"
#include "com/Variants.h"

#include <dispex.h>

#include <charconv>
#include <cstring>
#include <utility>

namespace kavelin::com {

namespace {

// The import libraries don't have it.
constexpr IID kDispatchEx = {0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

constexpr std::string_view kIdPrefix = "[DISPID=";

// As callers without a type library ask: whether a name is a method or a property that is read, the object
// knows.
constexpr WORD kRead = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

// Automation has arguments in reverse.
std::vector<OwnedVariant> Reversed(const std::vector<Variant>& arguments)
{
    std::vector<OwnedVariant> reversed;
    reversed.reserve(arguments.size());
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
        reversed.push_back(ToAutomation(*argument));
    return reversed;
}

// Whether a variant may have another content than before. A text may have: another one may lie where it lay.
bool IsExchanged(const VARIANT& before, const VARIANT& after)
{
    return after.vt == VT_BSTR || std::memcmp(&before, &after, sizeof(VARIANT)) != 0;
}

// Owned variants lie in memory as the variants that they own.
static_assert(sizeof(OwnedVariant) == sizeof(VARIANT));

}  // namespace

ForeignObject::ForeignObject(IDispatch* object)
    : objApartment(Apartment::Current()), objPlace(objApartment->Enter(*this)), objForeign(object)
{
    objForeign->AddRef();
    if (FAILED(objForeign->QueryInterface(kDispatchEx, reinterpret_cast<void**>(&objExtended))))
        objExtended = nullptr;
}

ForeignObject::~ForeignObject()
{
    Drop();
}

void ForeignObject::Drop()
{
    if (!objForeign || objApartment->IsOver())
        return;
    objApartment->Leave(objPlace);
    IDispatchEx* extended = std::exchange(objExtended, nullptr);
    IDispatch* object = std::exchange(objForeign, nullptr);
    if (extended)
        extended->Release();
    object->Release();
}

void ForeignObject::RequireLiving() const
{
    if (!objForeign || objApartment->IsOver())
        throw Error("The thread to which an object of the host belongs has ended.");
}

HRESULT ForeignObject::Resolve(std::wstring name, DISPID& id) const
{
    if (objExtended) {
        BSTR text = SysAllocStringLen(name.data(), static_cast<UINT>(name.size()));
        const HRESULT code = objExtended->GetDispID(text, fdexNameCaseInsensitive, &id);
        SysFreeString(text);
        return code;
    }
    wchar_t* names[] = {name.data()};
    return objForeign->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
}

HRESULT ForeignObject::Invoke(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result,
                              EXCEPINFO& details) const
{
    // Its code may drop the last reference that the library has.
    if (objExtended) {
        const Pointer<IDispatchEx> kept(objExtended);
        return kept->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &parameters, result, &details, nullptr);
    }
    const Pointer<IDispatch> kept(objForeign);
    return kept->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &details, nullptr);
}

DISPID ForeignObject::IdOf(std::string_view member)
{
    if (member.empty())
        return DISPID_VALUE;
    if (member.starts_with(kIdPrefix)) {
        DISPID id = 0;
        const char* begin = member.data() + kIdPrefix.size();
        std::from_chars(begin, member.data() + member.size(), id);
        return id;
    }
    const auto known = dicIds.find(member);
    if (known != dicIds.end())
        return known->second;

    DISPID id = DISPID_UNKNOWN;
    const HRESULT code = Resolve(Wide(member), id);
    if (code == DISP_E_UNKNOWNNAME || (SUCCEEDED(code) && id == DISPID_UNKNOWN))
        throw ForeignError("The object has no member " + std::string(member) + ".", DISP_E_UNKNOWNNAME, "");
    if (FAILED(code)) {
        EXCEPINFO details = {};
        ThrowForeign(member, code, details);
    }
    dicIds.emplace(member, id);
    return id;
}

Variant ForeignObject::Read(std::string_view member, VARIANT* arguments, std::size_t count)
{
    const DISPID id = IdOf(member);
    DISPPARAMS parameters = {arguments, nullptr, static_cast<UINT>(count), 0};
    OwnedVariant result;
    EXCEPINFO details = {};
    const HRESULT code = Invoke(id, kRead, parameters, result.Receive(), details);
    if (FAILED(code))
        ThrowForeign(member, code, details);
    return FromAutomation(result.Get());
}

Variant ForeignObject::Get(std::string_view member)
{
    return Call(member, {});
}

Variant ForeignObject::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    RequireLiving();
    std::vector<OwnedVariant> given = Reversed(arguments);
    return Read(member, reinterpret_cast<VARIANT*>(given.data()), given.size());
}

Variant ForeignObject::CallByReference(std::string_view member, std::vector<Variant>& arguments)
{
    RequireLiving();
    std::vector<OwnedVariant> held = Reversed(arguments);
    const std::vector<VARIANT> before(reinterpret_cast<VARIANT*>(held.data()),
                                      reinterpret_cast<VARIANT*>(held.data()) + held.size());
    std::vector<VARIANT> references(held.size());
    for (std::size_t i = 0; i < held.size(); ++i) {
        references[i].vt = VT_BYREF | VT_VARIANT;
        references[i].pvarVal = held[i].Receive();
    }
    const auto takeBack = [&] {
        for (std::size_t i = 0; i < held.size(); ++i)
            if (IsExchanged(before[i], held[i].Get()))
                arguments[held.size() - 1 - i] = FromAutomation(held[i].Get());
    };
    Variant result;
    try {
        result = Read(member, references.data(), references.size());
    } catch (...) {
        takeBack();
        throw;
    }
    takeBack();
    return result;
}

void ForeignObject::Put(std::string_view member, const Variant& value)
{
    RequireLiving();
    const DISPID id = IdOf(member);
    OwnedVariant given = ToAutomation(value);
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = {given.Receive(), &put, 1, 1};
    EXCEPINFO details = {};
    HRESULT code = DISP_E_MEMBERNOTFOUND;
    if (given.Get().vt == VT_DISPATCH)
        code = Invoke(id, DISPATCH_PROPERTYPUTREF, parameters, nullptr, details);
    // What the object's own code reports is an answer; the others mean that it takes no reference.
    if (FAILED(code) && code != DISP_E_EXCEPTION)
        code = Invoke(id, DISPATCH_PROPERTYPUT, parameters, nullptr, details);
    if (FAILED(code))
        ThrowForeign(member, code, details);
}

}  // namespace kavelin::com
