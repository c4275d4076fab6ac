// The statements of the checks that compare documents with the ledgers and with the views of what is unposted.
#pragma once

#include "demo/check/CheckFacts.h"

#include <string>

namespace kavelin::demo {

// Posted lines and what the ledgers hold of them. Lines posted before the first day of the books are left out:
// their rows stand in older books.
std::string GatherPostings(const CheckFacts& facts);  // the work table #CheckPosting
std::string CountPostedLines();
std::string CountUnpostedLines();

// Posted lines without a row of their own voucher type, or with several. Goods that an invoice takes out of
// transit and adjustments of transit have it in the ledger of goods in transit, all others in the inventory
// ledger.
std::string PostedLinesNotOnceInLedger();

// Unposted lines that a ledger knows.
std::string UnpostedLinesInLedger();

// Lines whose quantity the ledger tells otherwise.
std::string QuantitiesThatDiffer(const CheckFacts& facts);

// Lines that the views of unposted documents show although they are posted or of another kind, or that they
// leave out. First the views of the journal, then those of the summary of receipts, issues and balances.
std::string WrongInJournalViews();
std::string WrongInSummaryViews(const CheckFacts& facts);

}  // namespace kavelin::demo
