// The thresholds of the ABC analysis, as its options form shows them.
#pragma once

#include "cli/OutputFlags.h"
#include "host/Config.h"

#include <string>
#include <vector>

namespace kavelin::cli {

// Puts out the eight thresholds once `values` ("M2=70") have been typed into the form and accepted by it.
// Throws UsageError for a value that is none, and FilterRefused, with the form's message shown and nothing
// written, where the form refuses them.
void ShowAbcOptions(const host::Flags& login, const std::vector<std::string>& values,
                    const OutputFlags& output);

}  // namespace kavelin::cli
