// The generated account that the reports are measured on.
#pragma once

#include <cstdint>
#include <filesystem>

namespace kavelin::bench {

// The default profile with that many ledger lines; made at first use and kept.
std::filesystem::path DemoAccount(std::int64_t lines);

}  // namespace kavelin::bench
