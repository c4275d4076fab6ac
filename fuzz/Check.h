// What a fuzzer holds to be true of every text, whatever stands in it.
#pragma once

#include "embedded/SqlError.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kavelin::fuzz {

// A statement of the system has some 6 KB; ten times as much is read, longer texts are passed over.
inline constexpr std::size_t kLongestText = 64 * 1024;

// Ends the program with `FINDING: what`, which `./run fuzz` shows, unless `fact` is true.
void Require(bool fact, const std::string& what);

// An error of the front end has a number, a message and a place within the text.
void RequireGoodError(const embedded::SqlError& error, std::string_view text);

// No message speaks of what is beneath the T-SQL, unless the text did.
void RequireOwnWords(std::string_view message, std::string_view text);

}  // namespace kavelin::fuzz
