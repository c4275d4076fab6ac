// The type library that is built into the component.
#pragma once

#include "com/Pointer.h"
#include "com/Windows.h"

#include <string_view>

namespace kavelin::com {

// The description of the class or interface of that identifier.
HRESULT TypeInfoOf(std::string_view id, ITypeInfo** info);

}  // namespace kavelin::com
