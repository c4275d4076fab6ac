// Which left joins DuckDB would do row by row.
#pragma once

#include "embedded/bind/BoundTree.h"

namespace kavelin::embedded {

// DuckDB hashes a left join only if each part of its condition reads the right side alone or compares a
// value of the left side with one of the right. One part of another kind (t.kind = 'x', a case over both
// sides), and each row is tried with each. True for such a join that has an equality to hash by: the
// inner join of the same condition is hashed. False for a right side that is a join itself, and for a
// condition that reads a subquery or a source of a statement around.
bool NeedsInnerJoin(const BoundJoin& join);

}  // namespace kavelin::embedded
