// The estimate balance's two work tables. They are plain tables of the account.
#pragma once

#include "summary/EstimateRun.h"

#include <string>

namespace kavelin {

// The joins of every statement that reads Ia_Subsidiary, so that the filter can name columns of the masters.
std::string JoinMasters();

std::string DropWorkTable(const std::string& table);

// Without a line. Quantities have `digits` places, money two.
std::string CreateWorkTable(const EstimateRun& run, const std::string& digits);

// What is not known of a line follows from the rest of it: opening and receipts less issue are the closing.
std::string UpdateClosing(const EstimateRun& run);
std::string UpdateIssue(const EstimateRun& run);

// A line for each document line and type of document, with the first of its ledger lines.
std::string SelectDocumentLines(const EstimateRun& run);

// A null counts as a quantity, money does not.
std::string DeleteWithoutQuantity(const EstimateRun& run);

}  // namespace kavelin
