// Some columns of a record set, in an order of their own.
#pragma once

#include "frame/Connection.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kavelin::host {

// The columns of `rows` that are named, without regard to case and in that order; `rows` must outlive the answer.
// Throws UsageError for a name that is no column of it, with those that are.
std::unique_ptr<Recordset> ChooseColumns(Recordset& rows, std::span<const std::string> names);

// What `rows` have of the names, "R_*_Cost" being the first column that begins and ends so.
std::vector<std::string> FindColumns(const Recordset& rows, std::span<const std::string> names);

// Whether `name` is one that the pattern means: equal to it, or beginning and ending as it does around a "*"; without
// regard to case.
bool FitsColumn(const std::string& pattern, const std::string& name);

// "A, B,C" as names; empty parts are passed over.
std::vector<std::string> ColumnNames(const std::string& list);

}  // namespace kavelin::host
