// What is known of the values of a text expression, see TextFacts.
#pragma once

#include "embedded/TextFacts.h"
#include "embedded/bind/BoundTree.h"

#include <map>
#include <vector>

namespace kavelin::embedded {

// The facts of a table's or view's column as they are now.
TextFacts FactsNow(const ColumnInfo& column, const Catalog& catalog);

// Sets `origins` and `facts` of the columns of a view: `query` is the view's, bound as if the columns of all
// objects had all facts; `objects` are those objects by the numbers of the query's sources.
void SetOrigins(std::vector<ColumnInfo>& columns, BoundQuery& query,
                const std::map<int, const ObjectInfo*>& objects);

// Whether a column of those facts loses one when the value is stored in it.
bool Weakens(const TextFacts& column, const TextFacts& value);

// The facts of the text that comes out of converting a value of that type.
TextFacts FactsOfConversion(ConversionKind kind, const SqlType& from, const TextFacts& facts,
                            const SqlType& to);

TextFacts FactsOfConcat(const BoundExpr& left, const BoundExpr& right);

}  // namespace kavelin::embedded
