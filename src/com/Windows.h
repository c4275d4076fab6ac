// The system's headers for this room, without the macros that rename members of everyone else.
#pragma once

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX  // the standard library may have it
#define NOMINMAX
#endif

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

#undef interface
#undef GetObject
