// The journal's table: made, filled from the ledger and from the documents that are not posted yet, finished.
#pragma once

#include "journal/WtFilter.h"

#include <string>

namespace kavelin {

// Makes the table `strTable` on gcnnAccount with what `conditions` ask for; a table of that name goes first.
// An error of a step is shown to the user and ends the run: False.
bool BuildWtTable(const std::string& strTable, const WtConditions& conditions);

// Drops the table. Shows any error, that of an empty name among them, to the user. Whether there was none.
bool DropWtTable(const std::string& strTable);

}  // namespace kavelin
