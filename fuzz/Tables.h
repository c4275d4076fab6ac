// The tables that a fuzzer's statements find: one with a column of every type, and some to join with it.
#pragma once

#include <string_view>

namespace kavelin::fuzz {

// The batch that makes them, with a few rows each.
extern const std::string_view kTables;

}  // namespace kavelin::fuzz
