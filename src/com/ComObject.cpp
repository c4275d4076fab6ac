#include "com/ComObject.h"

#include "com/Arguments.h"
#include "com/Failure.h"
#include "com/Module.h"
#include "com/TypeInfo.h"
#include "com/Utf16.h"
#include "com/Variants.h"
#include "frame/Text.h"

#include <algorithm>
#include <utility>

namespace kavelin::com {

namespace {

// Asked of an object, tells that it is the library's own. Another copy of the library in the process has
// another one, since its objects are none of this one's.
const IID& OwnObject()
{
    static const IID own = [] {
        IID made = {};
        CoCreateGuid(&made);
        return made;
    }();
    return own;
}

constexpr WORD kWrites = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

VARTYPE TypeOf(Kind kind)
{
    switch (kind) {
        case Kind::Byte: return VT_UI1;
        case Kind::Int16: return VT_I2;
        default: return VT_I4;
    }
}

// What the member declares to give, as a client expects it.
OwnedVariant Result(const Variant& given, Kind kind)
{
    switch (kind) {
        case Kind::Nothing: return {};
        case Kind::Byte:
        case Kind::Int16:
        case Kind::Int32: return ToAutomation(given, TypeOf(kind));
        default: return ToAutomation(given);
    }
}

void Give(OwnedVariant given, VARIANT* result)
{
    if (result)
        *result = given.Detach();
}

}  // namespace

ComObject::ComObject(std::shared_ptr<LateBound> target, const AutomationClass* automationClass)
    : objApartment(Apartment::Current()),
      objTarget(std::move(target)),
      objClass(automationClass),
      strSource("Kavelin")
{
    if (objClass) {
        strSource += "." + std::string(objClass->publicClass->name);
        IIDFromString(Wide(objClass->interfaceId).c_str(), &objInterfaceId);
    }
    objApartment->SetOutside(*objTarget, this);
    AddUse();
}

ComObject::~ComObject()
{
    objApartment->SetOutside(*objTarget, nullptr);
    RemoveUse();
}

Pointer<IDispatch> ComObject::Make(std::shared_ptr<LateBound> target, const AutomationClass* automationClass)
{
    Pointer<IDispatch> made;
    *made.Receive() = new ComObject(std::move(target), automationClass);
    return made;
}

Pointer<IDispatch> ComObject::Outside(const std::shared_ptr<LateBound>& target)
{
    if (ComObject* known = Apartment::Current()->OutsideOf(*target))
        return Pointer<IDispatch>(known);
    return Make(target, nullptr);
}

std::shared_ptr<LateBound> ComObject::TargetOf(IUnknown& object)
{
    void* own = nullptr;
    if (FAILED(object.QueryInterface(OwnObject(), &own)))
        return nullptr;
    Pointer<ComObject> found;
    *found.Receive() = static_cast<ComObject*>(own);
    return found->objTarget;
}

HRESULT ComObject::QueryInterface(REFIID id, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (id == IID_IUnknown || id == IID_IDispatch || (objClass && id == objInterfaceId))
        *object = static_cast<IDispatch*>(this);
    else if (id == IID_ISupportErrorInfo)
        *object = static_cast<ISupportErrorInfo*>(this);
    else if (id == IID_IProvideClassInfo && objClass)
        *object = static_cast<IProvideClassInfo*>(this);
    else if (id == OwnObject())
        *object = this;
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG ComObject::AddRef()
{
    return ++lngReferences;
}

ULONG ComObject::Release()
{
    const ULONG left = --lngReferences;
    if (left == 0)
        delete this;
    return left;
}

HRESULT ComObject::GetTypeInfoCount(UINT* count)
{
    if (!count)
        return E_POINTER;
    *count = objClass ? 1 : 0;
    return S_OK;
}

HRESULT ComObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    if (index != 0 || !objClass)
        return DISP_E_BADINDEX;
    return Guarded([&] { return TypeInfoOf(objClass->interfaceId, info); });
}

HRESULT ComObject::GetClassInfo(ITypeInfo** info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    return Guarded([&] { return TypeInfoOf(objClass->classId, info); });
}

HRESULT ComObject::InterfaceSupportsErrorInfo(REFIID id)
{
    return id == IID_IDispatch || (objClass && id == objInterfaceId) ? S_OK : S_FALSE;
}

const Member* ComObject::MemberOf(DISPID id) const
{
    const auto members = objClass->publicClass->members;
    return id >= 1 && static_cast<std::size_t>(id) <= members.size() ? &members[id - 1] : nullptr;
}

HRESULT ComObject::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    if (id != IID_NULL)
        return DISP_E_UNKNOWNINTERFACE;
    if (!names || !ids)
        return E_POINTER;
    if (count == 0)
        return E_INVALIDARG;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    return Guarded([&] {
        const std::string name = Narrow(names[0]);
        if (!objClass) {
            const auto known = std::find_if(arrNames.begin(), arrNames.end(),
                                            [&](const auto& given) { return EqualsNoCase(given, name); });
            ids[0] = static_cast<DISPID>(known - arrNames.begin()) + 1;
            if (known == arrNames.end())
                arrNames.push_back(name);
            return count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
        }
        const auto members = objClass->publicClass->members;
        const auto found = std::find_if(members.begin(), members.end(), [&](const Member& member) {
            return EqualsNoCase(member.name, name);
        });
        if (found == members.end())
            return DISP_E_UNKNOWNNAME;
        ids[0] = static_cast<DISPID>(found - members.begin()) + 1;
        HRESULT code = S_OK;
        for (UINT i = 1; i < count; ++i) {
            const std::string argument = Narrow(names[i]);
            const auto parameter = std::find_if(
                found->parameters.begin(), found->parameters.end(),
                [&](const Parameter& candidate) { return EqualsNoCase(candidate.name, argument); });
            if (parameter == found->parameters.end())
                code = DISP_E_UNKNOWNNAME;
            else
                ids[i] = static_cast<DISPID>(parameter - found->parameters.begin());
        }
        return code;
    });
}

HRESULT ComObject::Invoke(DISPID member, REFIID id, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* details, UINT* argument)
{
    if (id != IID_NULL)
        return DISP_E_UNKNOWNINTERFACE;
    if (!parameters)
        return E_INVALIDARG;
    if (result)
        VariantInit(result);
    // The call may release the last reference that its caller has.
    const Pointer<ComObject> kept(this);
    SetErrorInfo(0, nullptr);
    try {
        return InvokeGuarded(member, flags, *parameters, result);
    } catch (const BadCall& bad) {
        if (argument)
            *argument = bad.argument;
        return bad.code;
    } catch (...) {
        Report(CurrentFailure(strSource), objClass ? objInterfaceId : IID_IDispatch, details);
        return DISP_E_EXCEPTION;
    }
}

HRESULT ComObject::InvokeGuarded(DISPID id, WORD flags, const DISPPARAMS& given, VARIANT* result)
{
    if (objClass) {
        const Member* member = MemberOf(id);
        return member ? InvokeMember(*member, flags, given, result) : DISP_E_MEMBERNOTFOUND;
    }
    if (id == DISPID_VALUE)
        return InvokeOpen("", flags, given, result);
    if (id < 1 || static_cast<std::size_t>(id) > arrNames.size())
        return DISP_E_MEMBERNOTFOUND;
    return InvokeOpen(arrNames[static_cast<std::size_t>(id) - 1], flags, given, result);
}

HRESULT ComObject::InvokeMember(const Member& member, WORD flags, const DISPPARAMS& given, VARIANT* result)
{
    const bool property = member.kind == MemberKind::Property;
    if (flags & kWrites) {
        const bool byReferenceOnly = !(flags & DISPATCH_PROPERTYPUT);
        if (!property || (byReferenceOnly && member.type != Kind::Object))
            return DISP_E_MEMBERNOTFOUND;
        Arguments arguments(member.parameters, Parameter{"value", member.type}, given);
        std::vector<Variant>& values = arguments.Values();
        if (values.size() == 1)
            objTarget->Put(member.name, values[0]);
        else
            objTarget->Call(member.name, values);
        return S_OK;
    }
    if (!(flags & (property ? DISPATCH_PROPERTYGET : DISPATCH_METHOD)))
        return DISP_E_MEMBERNOTFOUND;
    Arguments arguments(member.parameters, std::nullopt, given);
    if (property && member.Arguments() == 0) {
        Give(Result(objTarget->Get(member.name), member.type), result);
        return S_OK;
    }
    Variant answer;
    try {
        answer = objTarget->CallByReference(member.name, arguments.Values());
    } catch (...) {
        arguments.WriteBack();
        throw;
    }
    arguments.WriteBack();
    Give(Result(answer, member.type), result);
    return S_OK;
}

HRESULT ComObject::InvokeOpen(const std::string& member, WORD flags, const DISPPARAMS& given, VARIANT* result)
{
    const bool put = flags & kWrites;
    if (given.cNamedArgs > (put ? 1U : 0U))
        return DISP_E_NONAMEDARGS;
    std::vector<Variant> values;
    for (UINT i = given.cArgs; i-- > 0;)
        values.push_back(FromAutomation(given.rgvarg[i]));
    if (put) {
        if (values.size() != 1)
            return DISP_E_BADPARAMCOUNT;
        objTarget->Put(member, values[0]);
        return S_OK;
    }
    if (values.empty() && (flags & DISPATCH_PROPERTYGET)) {
        Give(ToAutomation(objTarget->Get(member)), result);
        return S_OK;
    }
    Give(ToAutomation(objTarget->Call(member, values)), result);
    return S_OK;
}

}  // namespace kavelin::com
