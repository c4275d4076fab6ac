// A profile as rows: the parameters of the account, what made it, and the rights of its users.
#pragma once

#include "demo/RowSink.h"
#include "demo/company/Company.h"
#include "demo/profiles/Profile.h"

#include <cstdint>

namespace kavelin::demo {

// Fills AccInformation, Demo_Profile and Demo_UserRight. `lines` and `seed` are those of the account.
void WriteProfile(const Profile& profile, const Company& company, std::int64_t lines, std::uint64_t seed,
                  RowSink& sink);

}  // namespace kavelin::demo
