// The T-SQL scripts of the folder data: schema/ makes the tables, views and functions, rows/ fills the tables
// whose rows are written out.
//
// The same files make an account on a server: run schema/*.sql and then rows/*.sql in the order of their names,
// as `sqlcmd -f 65001 -i FILE ...` does; the database VosSystem must be there. A line that holds GO alone ends a
// batch: views and functions stand alone in theirs. Comments have lines of their own.
#pragma once

#include "frame/Connection.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

// What is sent of a script: the texts between its lines GO, without those that are blank.
std::vector<std::string> Batches(std::string_view script);

// The batches of all scripts of data/FOLDER, ordered by name.
std::vector<std::string> ScriptBatches(std::string_view folder);

// Runs all scripts of data/FOLDER, ordered by name, batch by batch. Throws DatabaseError.
void RunScripts(Connection& connection, std::string_view folder);

// The tables that the schema makes, as it spells them; "VosSystem..UA_Period" among them.
std::vector<std::string> SchemaTables();

}  // namespace kavelin::demo
