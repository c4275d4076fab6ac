// The T-SQL scripts of the folder data: schema/ makes the tables, rows/ fills those whose rows are written
// out.
//
// A comment runs from `--` to the end of its line. It is for readers: the engine takes none, so comments
// are taken out before a script is sent, and line numbers stay as they are.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

std::string WithoutComments(std::string_view script);

// Runs all scripts of data/FOLDER, each as one batch, ordered by name. Throws DatabaseError.
void RunScripts(Connection& connection, std::string_view folder);

// The tables that the schema makes, as it spells them; "VosSystem..UA_Period" among them.
std::vector<std::string> SchemaTables();

}  // namespace kavelin::demo
