// The statements of the inventory turnover, in the order in which they run.
//
// The ledger stands in all of them under its own name: the working tables take it as their alias, so that
// one list of group columns serves every statement.
#pragma once

#include "analysis/TurnoverFilter.h"

#include <string>

namespace kavelin {

// Names of the four working tables, with the client's suffix.
struct TurnoverTables {
    std::string detail;   // movements with the days for which they count
    std::string average;  // average stock, a row a group
    std::string rows;     // a row for each measure and group
    std::string rates;    // a row a group
};
TurnoverTables TurnoverTablesOf(const std::string& suffix);

// What one run puts into its statements.
struct TurnoverRun {
    TurnoverTables tables;
    TurnoverGroups groups;
    std::string strSelectCols;  // group columns, a comma behind each
    std::string strGroupCols;   // the same with commas between
    std::string strInventory;   // the inventory table with what stands in front of it
    std::string strWhere;       // " And ..." or empty
    std::string strBusWhere;
    std::string strDateClause;   // strWhere, and postings within the range
    std::string strMonthClause;  // strWhere, and the months of the range; no statement has it
    std::string strDateFrom, strDateTo;
    std::string strQuanDec;  // decimals of a quantity
    long dblDays = 1;        // length of the range
    bool blnByAmount = true;
    bool blnIndustrial = false;
};

// Fills in the column lists and clauses from the rest.
void ComposeTurnoverRun(TurnoverRun& run);

std::string SelectLastPostingDate(const std::string& year);

// Rows by measure.
std::string SelectIssues(const TurnoverRun& run);  // makes the table
std::string InsertOpening(const TurnoverRun& run);
std::string InsertClosing(const TurnoverRun& run);

// Average stock: what stood at the start counts for all days of the range, a movement from its day to the
// end, its own day as half a day.
std::string SelectOpeningWeights(const TurnoverRun& run);  // makes the table
std::string InsertMovementWeights(const TurnoverRun& run);
std::string SelectAverages(const TurnoverRun& run);  // makes the table
std::string InsertAverages(const TurnoverRun& run);

// Turnover rate = issues / average stock, turnover days = days of the range / rate.
std::string SelectRates(const TurnoverRun& run);  // makes the table
std::string UpdateDays(const TurnoverRun& run);

std::string SelectTurnover(const TurnoverRun& run, const std::string& table);

}  // namespace kavelin
