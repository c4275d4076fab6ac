// Errors of the compiler's stages and of DuckDB as the errors that a caller of the connection meets.
#pragma once

#include "embedded/SqlError.h"
#include "embedded/engine/DuckDb.h"
#include "frame/Errors.h"

#include <string>

namespace kavelin::embedded {

// With number, line and column of the word that caused it.
DatabaseError::Details DetailsOf(const SqlError& error, const std::string& batch);

// DuckDB's error at the statement that begins at `statement`, without a place if the batch is empty: its prefix taken off, numbers that the writer
// put in front ("[8134] ") read back, the texts of common failures exchanged for SQL Server's.
DatabaseError::Details DetailsOf(const DuckError& error, const std::string& batch, Place statement);

// Its message alone, where no statement is at hand.
std::string WordsOf(const DuckError& error);

// The error of a connection that is not to be had; `sentence` is for the user.
ConnectionError Refusal(const std::string& sentence, const std::string& sqlState = "08001");

// Whether the statement failed because it was stopped.
bool IsInterrupt(const DuckError& error);

}  // namespace kavelin::embedded
