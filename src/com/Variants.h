// Values on their way through automation.
//
//   automation                                    the library
//   VT_EMPTY, VT_NULL, VT_BOOL, VT_BSTR           empty, null, Boolean, text
//   whole numbers of any size                     integer; VT_UI8 beyond 63 bits: decimal
//   VT_R4, VT_R8                                  double
//   VT_CY, VT_DECIMAL                             decimal, exact
//   VT_DATE                                       date, to the millisecond, also before 1899-12-30
//   VT_DISPATCH, VT_UNKNOWN                       object, or nothing; an object without automation is refused
//   VT_BYREF                                      what it refers to
//   VT_ERROR, arrays, records                     refused
//
// The other way an integer is a VT_I4 if it fits, else a VT_DECIMAL, since scripts have no integers of 64
// bits; a decimal beyond the 96 bits and 28 places of a VT_DECIMAL is its text, so that no digit is lost.
#pragma once

#include "com/Windows.h"
#include "frame/host/HostObject.h"

#include <utility>

namespace kavelin::com {

// A variant that is cleared at its end.
class OwnedVariant {
  public:
    OwnedVariant() = default;
    OwnedVariant(OwnedVariant&& other) noexcept : varHeld(std::exchange(other.varHeld, VARIANT{})) {}
    OwnedVariant& operator=(OwnedVariant&& other) noexcept
    {
        std::swap(varHeld, other.varHeld);
        return *this;
    }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
    ~OwnedVariant() { VariantClear(&varHeld); }

    const VARIANT& Get() const { return varHeld; }
    // For a function that writes into it.
    VARIANT* Receive() { return &varHeld; }
    // Gives the content away.
    VARIANT Detach() { return std::exchange(varHeld, VARIANT{}); }

  private:
    VARIANT varHeld = {};
};

// Whether it stands for an argument that was left out.
bool IsMissing(const VARIANT& variant);

// Throws ConversionError for what is refused.
Variant FromAutomation(const VARIANT& variant);

// Throws ConversionError for an object that can't be called by name.
OwnedVariant ToAutomation(const Variant& variant);

// The value as automation's type `type`: VT_I2, VT_UI1, VT_BOOL ... Throws ConversionError.
OwnedVariant ToAutomation(const Variant& variant, VARTYPE type);

}  // namespace kavelin::com
