// Makes a recording host answer as a scenario file tells (support/Scenario.h).
#pragma once

#include "support/RecordingHost.h"

#include <filesystem>
#include <string>

namespace kavelin::test {

// Gives the class of the scenario. Throws std::runtime_error for a line that it doesn't know.
std::string PlayScenario(const std::filesystem::path& file, RecordingHost& host);

}  // namespace kavelin::test
