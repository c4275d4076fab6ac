// The two files of an account: `demo.kavelin` and, beside it, the system database `demo.system.kavelin`.
//
// Each holds a mark by which it is known again, so that another program's DuckDB file is not taken for an
// account.
#pragma once

#include "embedded/engine/DuckDb.h"

#include <string>

namespace kavelin::embedded {

// `demo.system.kavelin` for `demo.kavelin`; a name that does not end in `.kavelin` gets the ending whole.
std::string SystemFileOf(const std::string& accountPath);

// The path by which the same account is the same text. Throws ConnectionError if no file is there, if it
// is a folder, or if its folder cannot be written.
std::string CheckedAccountPath(const std::string& path);

// Attaches both files to a fresh database under the names of Databases.h. Throws ConnectionError, with one
// sentence of its own, if another process holds them or if one is no account.
void AttachAccount(Session& session, const std::string& accountPath);

// Throws ConnectionError if one of the two files is there already, or if their folder cannot be written.
void CheckNewAccountPath(const std::string& path);

// Makes the two files. Throws as CheckNewAccountPath does, or if they cannot be made; it then leaves none behind.
void CreateAccountFiles(const std::string& path);

// Takes the two files away, with what DuckDB keeps beside them; those that are absent don't matter.
void RemoveAccountFiles(const std::string& path);

}  // namespace kavelin::embedded
