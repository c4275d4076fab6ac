// One kavelin.toml.
#pragma once

#include "host/Config.h"

#include <filesystem>
#include <string_view>

namespace kavelin::host {

// Reads the file over `settings`; a file that isn't there changes nothing. Throws UsageError, naming file
// and line, for what is no TOML, for a setting that is unknown or of the wrong type, and for a password.
void ReadConfigFile(const std::filesystem::path& file, FileSettings& settings);

// "zh-CN" or "en-US" for any spelling of case. Throws UsageError, naming `source`, for another language.
std::string CheckedLanguage(std::string_view language, std::string_view source);

// Throws UsageError, naming `source`, if the connection string holds a password.
void RefusePassword(std::string_view connectionString, std::string_view source);

}  // namespace kavelin::host
