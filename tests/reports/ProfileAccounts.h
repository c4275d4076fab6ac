// The accounts of the demo company's profiles that tests run reports on, with few lines.
#pragma once

#include "demo/profiles/Profile.h"

#include <filesystem>

namespace kavelin::test {

// The folder with all of them, ready made for the whole test run; empty without one.
std::filesystem::path ReadyAccounts();

// "FOLDER/trade.kavelin".
std::filesystem::path ProfileAccountIn(const std::filesystem::path& folder, const demo::Profile& profile);

// Makes the account in the folder, which must be there.
void MakeProfileAccount(const std::filesystem::path& folder, const demo::Profile& profile);

// Copies the account, all its files, to a folder that is there.
void CopyProfileAccount(const std::filesystem::path& from, const std::filesystem::path& to,
                        const demo::Profile& profile);

}  // namespace kavelin::test
