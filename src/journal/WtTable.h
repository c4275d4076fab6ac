// The journal's result table.
#pragma once

#include <string>
#include <vector>

namespace kavelin {

// Drops a table of that name in the account, if there is one.
std::string DropJournalTable(const std::string& strTable);

std::string CreateJournalTable(const std::string& strTable);

// User fields that are no texts get their types: one statement each.
std::vector<std::string> AlterJournalTable(const std::string& strTable);

}  // namespace kavelin
