// The component's entries in the registry.
#pragma once

#include "com/Windows.h"

namespace kavelin::com {

enum class Scope { Machine, User };

// Writes the names, classes, interfaces and the type library, all of this module. On a failure what was
// written is taken away again.
HRESULT RegisterComponent(Scope scope);

// Takes away what RegisterComponent wrote, also what is left of it, and nothing else. Nothing there is no
// error.
HRESULT UnregisterComponent(Scope scope);

}  // namespace kavelin::com
