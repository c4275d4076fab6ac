// Updates that look up each row of their target in one other table, as reports fill in names:
//
//   update t set t.name = s.name from t inner join s on s.code = t.code
#pragma once

#include "embedded/bind/BoundTree.h"

#include <optional>
#include <vector>

namespace kavelin::embedded {

struct LookupUpdate {
    const BoundTable* table;                   // the other one
    std::vector<const BoundExpr*> keys;        // its columns that a row of the target names
    std::vector<const BoundExpr*> conditions;  // on its rows alone
    std::vector<std::string> columns;          // of it that the statement reads
};

// Nothing for an update that is none: rows of the other table with the same keys, as T-SQL compares them, must be
// as good as each other for every row of the target.
std::optional<LookupUpdate> FindLookup(const BoundUpdate& update);

}  // namespace kavelin::embedded
