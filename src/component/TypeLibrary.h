// How the public classes are known to automation: their identifiers and their type library.
#pragma once

#include "component/Component.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

// Identifiers are texts of the form "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}". Hosts keep them, so none ever
// changes.
inline constexpr std::string_view kTypeLibraryId = "{C1D2B2C2-95A3-4B51-A418-2DE6F20E8029}";
inline constexpr int kTypeLibraryMajor = 1;
inline constexpr int kTypeLibraryMinor = 0;

struct AutomationClass {
    const PublicClass* publicClass;
    std::string classId;
    std::string interfaceId;
};

// The public classes in their order, then the class of the host's makers.
std::span<const AutomationClass> AutomationClasses();

// The type library in the interface definition language. A member's dispatch identifier is its place in the
// table of its class, from 1.
std::string TypeLibraryText();

}  // namespace kavelin
