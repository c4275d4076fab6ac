// Running sums. Over a table that is joined with itself on its order,
//
//   select a.ino, sum(b.q) as total from T a inner join T b on b.ino <= a.ino group by a.ino
//
// each row meets all rows before it, which costs n squared. The same rows come from a window in one pass:
//
//   select a.ino, sum(a.w0) as total
//     from (select ino, sum(q) over (order by ino range unbounded preceding) as w0
//             from T where ino is not null) a
//    group by a.ino
//
// The sum around the window is what the join says of rows that tie: each of k rows with one `ino` meets the
// same rows before it, and the group sums all k. A scalar subquery over one source,
//
//   (select sum(b.q) from T b where b.ino <= a.ino)     beside a row `a` of the same T
//
// becomes a look-up of a's `ino` among those windows.
//
// This holds where `b.ino <= a.ino` compares one column, a number or date, of two instances of one table;
// where all other conditions that join the two are `b.c = a.c`; and where the aggregates sum, count or find
// the least or greatest number of `b`. Conditions on one of the two are kept where they cannot fail for rows
// that the statement would not have looked at. What is otherwise stays as it stands.
#pragma once

#include "embedded/bind/BoundTree.h"
#include "embedded/bind/Scope.h"

#include <vector>

namespace kavelin::embedded {

// `select` and its order, bound and settled in `scope`.
void UseRunningSums(BoundSelect& select, std::vector<BoundOrder>& orderBy, const Scope& scope);

}  // namespace kavelin::embedded
