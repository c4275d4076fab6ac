// A form that stands behind a command of a report's toolbar, without an account.
#pragma once

#include "host/HostPlatform.h"
#include "host/Reports.h"

#include <string>

namespace kavelin::host {

// Lets `onForm` of the settings fill in the form that `action` of the report shows, and passes on what it throws.
// Throws Error if the action shows none.
void ShowFormOf(const Report& report, const std::string& action, PlatformSettings settings);

}  // namespace kavelin::host
