// What a batch is taken to mean and what it becomes, for a reader.
#pragma once

#include "embedded/engine/ScratchCatalog.h"

#include <string>

namespace kavelin::embedded {

// Of each statement the first line, the bound tree with its types, and the DuckDB statements. Nothing is run:
// `catalog` follows what the statements make and drop. What stands behind an `if exists` is shown, whether a
// row would come or not; if it cannot be bound now, the reason is. Throws SqlError for every other statement
// that cannot.
std::string Explain(const std::string& batch, ScratchCatalog catalog);

}  // namespace kavelin::embedded
