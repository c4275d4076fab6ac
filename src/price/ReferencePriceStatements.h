// Reference prices of the costing keys that occur in the rows to show: last receipt cost, last issue cost,
// average over a range of months, unit price of the balance brought forward. In the order in which they run.
//
// Each price is worked out once a key and written to all rows of the key. The key table tells which keys there
// are; the ledger is copied, since batches that play no part in a key are cleared in it.
#pragma once

#include "price/CostingKey.h"

#include <string>
#include <string_view>

namespace kavelin {

struct PriceTables {
    std::string strWorkTable;  // the rows
    std::string strKeyTable;   // a row for each costing key in them
    const CostingKey& key;
};

std::string SelectKeys(const PriceTables& tables);

std::string CopyLedger();
std::string ClearBatchesOfOtherItems();
std::string ClearBatchesOfOtherMethods(const CostingKey& key);

// A unit cost of the ledger and the tables of its newest lines.
struct LastCost {
    std::string_view strCost;   // column of the ledger and of the key table
    std::string_view strLines;  // newest line of each key, by its number and not by its date
    std::string_view strCosts;  // the same with the cost
};

constexpr LastCost kLastReceipt = {"iInCost", "#InPrices_Befor", "#iInprice"};
constexpr LastCost kLastIssue = {"iOutCost", "#ioutprice_Befor", "#ioutprice"};

std::string SelectLastLines(const CostingKey& key, const LastCost& last);
std::string SelectLastCosts(const CostingKey& key, const LastCost& last);
std::string AddLastCosts(const PriceTables& tables);
std::string UpdateLastCosts(const PriceTables& tables, const LastCost& last);

// `strRange` limits the months of the summary `s`; empty for all.
std::string SelectSummary(const PriceTables& tables, const std::string& strRange);
std::string AddAverage(const PriceTables& tables);
// Of a kind that is none of the three it is no statement, and fails.
std::string SelectAverages(const CostingKey& key, double dblAvgKind);
std::string UpdateAverages(const PriceTables& tables);

std::string UpdateRowPrices(const PriceTables& tables);

// Which summary row of a key holds the balance brought forward: the opening of the year, or the end of the month
// before `strMonth`.
std::string AtOpening(const std::string& strYear);
std::string BeforeMonth(const std::string& strYear, const std::string& strMonth);

// `strBalanceRow` is one of these two.
std::string SelectBalances(const PriceTables& tables, const std::string& strBalanceRow);
// A row whose key has no balance brought forward, or one of quantity 0, gets NULL.
std::string UpdateBalancePrices(const PriceTables& tables);

std::string DropLedgerTables();
std::string DropSummaryTables();

}  // namespace kavelin
