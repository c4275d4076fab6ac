// Comparison of a text with a reviewed file.
#pragma once

#include <filesystem>
#include <string>

namespace kavelin::test {

// Fails the running test unless `text` is the file's content; names the first line that differs. With
// KAVELIN_REWRITE=1 in the environment the file is written instead.
void ExpectFile(const std::string& text, const std::filesystem::path& file);

// Throws std::runtime_error if the file can't be read.
std::string ReadFile(const std::filesystem::path& file);

}  // namespace kavelin::test
