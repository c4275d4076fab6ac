// The price analysis makes its result table and fills a work table of the same shape.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin {

// `intRatioScale` is the number of decimal places of the two ratios.
std::string CreateResult(const std::string& strTable, std::int16_t intRatioScale);

// User fields that are no texts get their types: one batch.
std::string AlterResult(const std::string& strTable);

// An empty copy of the result table.
std::string CreateWorkTable(const std::string& strWorkTable, const std::string& strTable);

// Drops a table of tempdb that is named with its database, if it is there.
std::string DropIfThere(const std::string& strTable);

// Ledger lines with their own unit price. Estimates in the opening (33) and direct shipments are left out, and
// so are lines without a business type.
std::string FillAnalysisLines(const std::string& strWorkTable, const std::string& strWhere);

// Summary rows with the unit price of their balance.
std::string FillAnalysisSummary(const std::string& strWorkTable, const std::string& strWhere);

}  // namespace kavelin
