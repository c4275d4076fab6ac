// Walking over bound trees.
#pragma once

#include "embedded/bind/BoundTree.h"

#include <functional>
#include <vector>

namespace kavelin::embedded {

// Calls `visit` for every expression directly below `expression`. Queries within are not entered.
void ForEachOperand(BoundExpr& expression, const std::function<void(BoundExprPtr&)>& visit);

// The query within an expression (a scalar subquery, IN, EXISTS), or null.
BoundQuery* QueryWithin(const BoundExpr& expression);

// Calls `visit` for every topmost expression of a query and of the derived tables of its FROMs.
void ForEachExpression(BoundQuery& query, const std::function<void(BoundExprPtr&)>& visit);

// Adds the conditions that all hold where `condition` holds: the sides of its ANDs, in the order of the text.
void AddConjuncts(const BoundExpr& condition, std::vector<const BoundExpr*>& conjuncts);

// Whether both always give the same value: the same tree. Subqueries are never taken as equal.
bool SameExpression(const BoundExpr& a, const BoundExpr& b);

}  // namespace kavelin::embedded
