// What a DuckDB database may do once the account's files are attached: nothing but work on them.
#pragma once

#include "embedded/engine/DuckDb.h"
#include "embedded/engine/Limits.h"

#include <string>

namespace kavelin::embedded {

// The folder beside the account for rows that do not fit into memory. DuckDB makes it when it needs it and
// removes it when it closes.
std::string SpillFolderOf(const std::string& accountPath);

// Before anything is attached: how DuckDB works, and how much of the machine it takes.
void Configure(Session& session, const std::string& accountPath, const Limits& limits);

// After everything is attached, and for good: no file is opened but the attached ones and those of the spill
// folder, no extension is loaded, no setting is changed. A statement can reach none of this by T-SQL; here
// it is closed a second time.
void LockDown(Session& session);

// Removes what a killed process left in the spill folder. Only who has the account attached may do so.
void ClearSpill(const std::string& accountPath);

}  // namespace kavelin::embedded
