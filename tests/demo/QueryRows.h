// What an account holds, as a text.
#pragma once

#include "support/GoldenFile.h"
#include "support/TestFolder.h"

#include <filesystem>
#include <string>

namespace kavelin::demo {

using test::ReadFile;
using test::TestFolder;
using test::WriteFile;

// The rows of a query on an account, fields between "|", a line a row; null is "NULL".
std::string QueryRows(const std::filesystem::path& account, const std::string& sql);

}  // namespace kavelin::demo
