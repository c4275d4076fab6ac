#include "com/Variants.h"

#include "automation/HostView.h"
#include "com/ComObject.h"
#include "com/Failure.h"
#include "com/ForeignObject.h"
#include "com/Pointer.h"
#include "com/Utf16.h"

#include <cmath>
#include <limits>
#include <new>
#include <string>

namespace kavelin::com {

namespace {

constexpr std::int64_t kDayMs = 86'400'000;
constexpr std::int64_t kEpochDays = 25'569;  // from 1899-12-30 to 1970-01-01
constexpr int kMaxScale = 28;

[[noreturn]] void Refuse(VARTYPE type)
{
    throw ConversionError("A value of the automation type " + std::to_string(type) + " can't be taken.");
}

// --- dates: whole days from 1899-12-30, and the time of day behind the point, which counts forwards also
// where the days count backwards: -1.25 is 1899-12-29 06:00.

DateTime FromOleDate(double date)
{
    const double days = std::trunc(date);
    const auto time = std::llround(std::abs(date - days) * static_cast<double>(kDayMs));
    const auto wholeDays = static_cast<std::int64_t>(days) - kEpochDays;
    return DateTime(std::chrono::milliseconds(wholeDays * kDayMs + time));
}

double ToOleDate(DateTime date)
{
    const std::int64_t ms = date.time_since_epoch().count() + kEpochDays * kDayMs;
    const std::int64_t days = ms / kDayMs - (ms % kDayMs < 0 ? 1 : 0);
    const double time = static_cast<double>(ms - days * kDayMs) / static_cast<double>(kDayMs);
    return static_cast<double>(days) + (days < 0 ? -time : time);
}

// --- decimals

kavelin::Decimal FromDecimal(const DECIMAL& decimal)
{
    Int128 unscaled = static_cast<Int128>(decimal.Hi32) << 64 | static_cast<Int128>(decimal.Lo64);
    if (decimal.sign & DECIMAL_NEG)
        unscaled = -unscaled;
    return {unscaled, decimal.scale};
}

// Whether `result` could take it as it is, trailing zeros left out where there are too many digits.
bool PutDecimal(const kavelin::Decimal& decimal, DECIMAL& result)
{
    constexpr Int128 kLimit = static_cast<Int128>(1) << 96;
    const bool negative = decimal.Unscaled() < 0;
    Int128 digits = negative ? -decimal.Unscaled() : decimal.Unscaled();
    int scale = decimal.Scale();
    while (scale > 0 && (scale > kMaxScale || digits >= kLimit) && digits % 10 == 0) {
        digits /= 10;
        --scale;
    }
    if (scale > kMaxScale || digits >= kLimit)
        return false;
    result.scale = static_cast<BYTE>(scale);
    result.sign = negative ? DECIMAL_NEG : 0;
    result.Hi32 = static_cast<ULONG>(digits >> 64);
    result.Lo64 = static_cast<ULONGLONG>(digits & std::numeric_limits<std::uint64_t>::max());
    return true;
}

// --- objects

HostObjectPtr FromObject(IUnknown* object)
{
    if (!object)
        return nullptr;
    if (auto own = ComObject::TargetOf(*object))
        return own;
    Pointer<IDispatch> dispatch;
    if (FAILED(object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(dispatch.Receive()))))
        throw ConversionError("An object that can't be called by name can't be taken.");
    return std::make_shared<ForeignObject>(dispatch.Get());
}

IDispatch* ToObject(const HostObjectPtr& object)
{
    if (!object)
        return nullptr;
    const HostObjectPtr target = automation::Unwrapped(object);
    if (const auto foreign = std::dynamic_pointer_cast<ForeignObject>(target)) {
        if (foreign->Object())
            foreign->Object()->AddRef();
        return foreign->Object();
    }
    const auto late = std::dynamic_pointer_cast<LateBound>(target);
    if (!late)
        throw ConversionError("An object that can't be called by name can't be handed out.");
    return ComObject::Outside(late).Detach();
}

// --- values

BSTR ToBstr(const std::string& text)
{
    const std::wstring wide = Wide(text);
    BSTR allocated = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (!allocated)
        throw std::bad_alloc();
    return allocated;
}

struct ToVariantContent {
    VARIANT& variant;

    void operator()(std::monostate) const {}
    void operator()(Value::NullTag) const { variant.vt = VT_NULL; }
    void operator()(bool content) const
    {
        variant.vt = VT_BOOL;
        variant.boolVal = content ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int64_t content) const
    {
        if (content != static_cast<LONG>(content))
            return (*this)(kavelin::Decimal(content, 0));
        variant.vt = VT_I4;
        variant.lVal = static_cast<LONG>(content);
    }
    void operator()(double content) const
    {
        variant.vt = VT_R8;
        variant.dblVal = content;
    }
    void operator()(const kavelin::Decimal& content) const
    {
        if (!PutDecimal(content, variant.decVal))
            return (*this)(content.ToText());
        variant.vt = VT_DECIMAL;  // after the digits, whose first bytes are the type's
    }
    void operator()(DateTime content) const
    {
        variant.vt = VT_DATE;
        variant.date = ToOleDate(content);
    }
    void operator()(const std::string& content) const
    {
        variant.bstrVal = ToBstr(content);
        variant.vt = VT_BSTR;
    }
};

Value FromUnsigned(ULONGLONG number)
{
    if (number > static_cast<ULONGLONG>(std::numeric_limits<std::int64_t>::max()))
        return kavelin::Decimal(static_cast<Int128>(number), 0);
    return static_cast<std::int64_t>(number);
}

std::string FromBstr(BSTR text)
{
    return text ? Narrow({text, SysStringLen(text)}) : "";
}

template <class T>
Value Whole(T number)
{
    return static_cast<std::int64_t>(number);
}

Variant FromReference(const VARIANT& variant)
{
    if (!variant.byref)
        Refuse(variant.vt);
    if (variant.vt == (VT_BYREF | VT_VARIANT))
        return FromAutomation(*variant.pvarVal);
    OwnedVariant copy;
    if (FAILED(VariantCopyInd(copy.Receive(), const_cast<VARIANT*>(&variant))))
        Refuse(variant.vt);
    return FromAutomation(copy.Get());
}

}  // namespace

bool IsMissing(const VARIANT& variant)
{
    if (variant.vt == (VT_BYREF | VT_VARIANT))
        return IsMissing(*variant.pvarVal);
    return variant.vt == VT_ERROR && variant.scode == DISP_E_PARAMNOTFOUND;
}

Variant FromAutomation(const VARIANT& variant)
{
    if (variant.vt & VT_BYREF)
        return FromReference(variant);
    switch (variant.vt) {
        case VT_EMPTY: return Value();
        case VT_NULL: return Value::Null();
        case VT_BOOL: return Value(variant.boolVal != VARIANT_FALSE);
        case VT_BSTR: return Value(FromBstr(variant.bstrVal));
        case VT_I1: return Whole(static_cast<signed char>(variant.cVal));
        case VT_I2: return Whole(variant.iVal);
        case VT_I4:
        case VT_INT: return Whole(variant.lVal);
        case VT_I8: return Whole(variant.llVal);
        case VT_UI1: return Whole(variant.bVal);
        case VT_UI2: return Whole(variant.uiVal);
        case VT_UI4:
        case VT_UINT: return Whole(variant.ulVal);
        case VT_UI8: return FromUnsigned(variant.ullVal);
        case VT_R4: return Value(static_cast<double>(variant.fltVal));
        case VT_R8: return Value(variant.dblVal);
        case VT_CY: return Value(kavelin::Decimal(variant.cyVal.int64, 4));
        case VT_DECIMAL: return Value(FromDecimal(variant.decVal));
        case VT_DATE: return Value(FromOleDate(variant.date));
        case VT_DISPATCH:
        case VT_UNKNOWN: return FromObject(variant.punkVal);
        default: Refuse(variant.vt);
    }
}

OwnedVariant ToAutomation(const Variant& variant)
{
    OwnedVariant result;
    VARIANT& content = *result.Receive();
    if (const auto* object = std::get_if<HostObjectPtr>(&variant)) {
        content.pdispVal = ToObject(*object);
        content.vt = VT_DISPATCH;
    } else {
        std::visit(ToVariantContent{content}, std::get<Value>(variant).Get());
    }
    return result;
}

OwnedVariant ToAutomation(const Variant& variant, VARTYPE type)
{
    OwnedVariant result = ToAutomation(variant);
    if (result.Get().vt == type)
        return result;
    if (FAILED(VariantChangeTypeEx(result.Receive(), result.Receive(), LOCALE_INVARIANT, VARIANT_ALPHABOOL,
                                   type)))
        Refuse(type);
    return result;
}

}  // namespace kavelin::com
