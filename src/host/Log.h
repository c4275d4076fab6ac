// The host's log: lines on stderr.
#pragma once

#include <string>

namespace kavelin::host {

void LogWarning(const std::string& text);

}  // namespace kavelin::host
