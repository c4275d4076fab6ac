// What an account may use of the machine.
//
// Who sets nothing gets four fifths of the memory (of the container's, within one), half of the free room of
// the disk for what does not fit into it, and all processors. KAVELIN_MEMORY, KAVELIN_SPILL and
// KAVELIN_THREADS in the environment say otherwise, and before them `Memory`, `Spill` and `Threads` in a
// connection string.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kavelin::embedded {

struct Limits {
    std::optional<std::int64_t> memory;   // megabytes, at least 1
    std::optional<std::int64_t> spill;    // megabytes beside the account; 0: nothing
    std::optional<std::int64_t> threads;  // at least 1

    // Of the environment. Throws ConnectionError, naming the variable, for one that holds no such number.
    static Limits OfEnvironment();

    // Takes the value of a connection string's key, and gives false if the key is none of these. Throws
    // ConnectionError for a value that is no such number.
    bool Take(std::string_view key, std::string_view value);

    // These, and what they leave open from `other`.
    Limits Or(const Limits& other) const;
};

}  // namespace kavelin::embedded
