// The component as the loader sees it.
#pragma once

#include "com/Windows.h"

#include <string>

namespace kavelin::com {

HINSTANCE ModuleInstance();
std::wstring ModulePath();

// The module stays loaded until the process ends. Each thread that used it has destructors in it that run
// when the thread ends, so a module that no object is left of must not go before the threads.
void KeepLoaded();

// References from outside: objects and class factories that live, and locks of the server. While there are
// any the module is in use.
void AddUse();
void RemoveUse();
bool IsInUse();

}  // namespace kavelin::com
