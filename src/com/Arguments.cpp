#include "com/Arguments.h"

#include "com/Failure.h"
#include "com/Variants.h"
#include "frame/Errors.h"

#include <algorithm>
#include <utility>

namespace kavelin::com {

namespace {

// An object in the place of a value stands for its default member, as everywhere in automation.
Value ValueIn(const Variant& given)
{
    if (const auto* value = std::get_if<Value>(&given))
        return *value;
    const auto object = ObjectOf<LateBound>(given, "argument");
    return ValueOf(object->Get(""), "argument");
}

// The content of an argument that was left out.
Value Default(Kind kind)
{
    switch (kind) {
        case Kind::Text: return "";
        case Kind::Boolean: return false;
        case Kind::Byte:
        case Kind::Int16:
        case Kind::Int32: return 0;
        default: return {};
    }
}

// The argument in the kind that the member declares. Throws Error.
Variant Coerced(const Variant& given, Kind kind)
{
    switch (kind) {
        case Kind::Text: return Value(ToText(ValueIn(given)));
        case Kind::Boolean: return Value(ToBoolean(ValueIn(given)));
        case Kind::Byte: return Value(std::int32_t{ToByte(ValueIn(given))});
        case Kind::Int16: return Value(std::int32_t{ToInt16(ValueIn(given))});
        case Kind::Int32: return Value(ToInt32(ValueIn(given)));
        case Kind::Object:
            if (!std::holds_alternative<HostObjectPtr>(given))
                throw ConversionError("Not an object.");
            return given;
        default: return given;
    }
}

// Replaces what `target` refers to.
void PutByReference(const Variant& value, VARIANTARG& target)
{
    const VARTYPE type = target.vt & ~VT_BYREF;
    if (type == VT_VARIANT) {
        // The new content first: the old may be the last that keeps it.
        OwnedVariant content = ToAutomation(value);
        std::swap(*content.Receive(), *target.pvarVal);
        return;
    }
    OwnedVariant content = ToAutomation(value, type);
    switch (type) {
        case VT_BSTR: std::swap(content.Receive()->bstrVal, *target.pbstrVal); break;
        case VT_DISPATCH: std::swap(content.Receive()->pdispVal, *target.ppdispVal); break;
        case VT_BOOL:
        case VT_I2:
        case VT_UI2: *target.piVal = content.Get().iVal; break;
        case VT_I1:
        case VT_UI1: *target.pbVal = content.Get().bVal; break;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_R4: *target.plVal = content.Get().lVal; break;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_CY:
        case VT_DATE: *target.pllVal = content.Get().llVal; break;
        case VT_DECIMAL: *target.pdecVal = content.Get().decVal; break;
        default: break;
    }
}

}  // namespace

std::vector<std::optional<UINT>> Arguments::PlacesOf(const DISPPARAMS& given) const
{
    std::vector<std::optional<UINT>> places(arrParameters.size());
    const auto take = [&](std::size_t parameter, UINT place) {
        if (parameter >= places.size() || places[parameter])
            throw BadCall{DISP_E_PARAMNOTFOUND, place};
        places[parameter] = place;
    };
    if (given.cNamedArgs > given.cArgs || given.cArgs > arrParameters.size())
        throw BadCall{DISP_E_BADPARAMCOUNT};
    // The named ones come first; behind them the others, the last one first.
    for (UINT place = given.cNamedArgs; place < given.cArgs; ++place)
        take(given.cArgs - 1 - place, place);
    for (UINT place = 0; place < given.cNamedArgs; ++place) {
        const DISPID id = given.rgdispidNamedArgs[place];
        take(id == DISPID_PROPERTYPUT && blnPut ? places.size() - 1 : static_cast<std::size_t>(id), place);
    }
    return places;
}

Arguments::Arguments(std::span<const Parameter> parameters, std::optional<Parameter> put,
                     const DISPPARAMS& given)
    : arrParameters(parameters.begin(), parameters.end()), blnPut(put)
{
    if (put)
        arrParameters.push_back(*put);
    const auto places = PlacesOf(given);
    std::size_t count = 0;  // up to the last that was given
    for (std::size_t i = 0; i < places.size(); ++i) {
        const bool missing = places[i] && IsMissing(given.rgvarg[*places[i]]);
        if (places[i] && !missing)
            count = i + 1;
        else if (!arrParameters[i].optional)
            throw missing ? BadCall{DISP_E_PARAMNOTOPTIONAL, *places[i]} : BadCall{DISP_E_BADPARAMCOUNT};
    }
    for (std::size_t i = 0; i < count; ++i) {
        VARIANTARG* argument = places[i] ? &given.rgvarg[*places[i]] : nullptr;
        const bool missing = !argument || IsMissing(*argument);
        arrGiven.push_back(missing ? nullptr : argument);
        try {
            arrValues.push_back(missing ? Variant(Default(arrParameters[i].kind))
                                        : Coerced(FromAutomation(*argument), arrParameters[i].kind));
        } catch (const OverflowError&) {
            throw BadCall{DISP_E_OVERFLOW, *places[i]};
        } catch (const Error&) {
            throw BadCall{DISP_E_TYPEMISMATCH, *places[i]};
        }
    }
    arrBefore = arrValues;
}

void Arguments::WriteBack() noexcept
{
    for (std::size_t i = 0; i < arrGiven.size(); ++i) {
        if (!arrGiven[i] || !arrParameters[i].byReference || !(arrGiven[i]->vt & VT_BYREF))
            continue;
        if (arrValues[i] == arrBefore[i])
            continue;
        Guarded([&] {
            PutByReference(arrValues[i], *arrGiven[i]);
            return S_OK;
        });
    }
}

}  // namespace kavelin::com
