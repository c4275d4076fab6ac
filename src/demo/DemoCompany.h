// The demo company: an account with made-up but believable rows, the same for the same seed on every
// machine.
#pragma once

#include "demo/profiles/Profile.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace kavelin::demo {

constexpr std::int64_t kDefaultLines = 20000;
constexpr std::uint64_t kDefaultSeed = 2008;

// Told now and then how many ledger lines of all are written. An error that it throws stops the making.
using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

// Makes the account file `account`, which must not exist yet, with its system database beside it: schema,
// settings, master data, documents and a ledger of exactly `lines` lines in the year 2008 (at least
// MinimumLines(); opening lines count). Nothing of the files stays after a failure.
// Throws Error for too few lines or an existing file, DatabaseError for what the engine refuses.
void MakeDemoAccount(const std::filesystem::path& account, const Profile& profile, std::int64_t lines,
                     std::uint64_t seed = kDefaultSeed, const Progress& progress = {});

// The smallest ledger that shows every kind of business.
std::int64_t MinimumLines();

}  // namespace kavelin::demo
