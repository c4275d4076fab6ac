// Which rows of the ledgers and documents belong to a span of accounting years.
#pragma once

#include "frame/Connection.h"
#include "snapshot/Schema.h"

#include <string>

namespace kavelin::snapshot {

struct YearSpan {
    int from = 0;
    int to = 0;
    // First day, and the day behind the last, as T-SQL writes them.
    std::string firstDay, endDay;
};

// The span with its days: those of the account's fiscal months, else those of the calendar. `hasPeriods`:
// the table VosSystem..UA_Period can be read. Throws DatabaseError.
YearSpan SpanOf(Connection& connection, const std::string& accountId, int from, int to, bool hasPeriods);

// The condition that keeps the rows of the span; empty for a table that is copied whole. A document is kept
// if it is dated within the years, is not posted yet, or if a ledger row of the years names it.
std::string YearCondition(const SchemaObject& object, const YearSpan& span);

}  // namespace kavelin::snapshot
