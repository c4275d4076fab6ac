// The pool of the summary and the statements that make it and finish it, but for the deletes, which are rules
// and stand in SumSteps. The pool holds one line for each ledger line and each line of an unposted document;
// whoever reads it groups, totals and computes the closing balance.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin {

// The pool of a run and what all of its lines share.
struct SumPool {
    std::string strTable;
    std::int16_t lngRdLength = 0;  // characters of the receipt-issue class that are kept
    std::string strIssueText;      // direction of a line
    std::string strReceiptText;
};

// Looks for the table by its whole name, so that it drops a table without a database in front only.
std::string DropPool(const SumPool& pool);

// The empty pool, with the types that it keeps.
std::string CreatePool(const SumPool& pool);

// Ledger lines as opening balances, or as receipts and issues. `where` begins with "where".
std::string InsertOpening(const SumPool& pool, const std::string& where);
std::string InsertMovement(const SumPool& pool, const std::string& where);

// Lines of the view `source` of documents as receipts and issues; with their difference where the view has
// one.
std::string InsertUnposted(const SumPool& pool, std::string_view source, bool hasDifference,
                           const std::string& where);

// Names of the receipt-issue classes, as they were cut, and of the warehouses.
std::string UpdateClassNames(const SumPool& pool);
std::string UpdateWarehouseNames(const SumPool& pool);

// Rate and name of the unit of that number in each item's unit group. Quantities stay in main units.
std::string UpdateSecondUnit(const SumPool& pool, std::int16_t unitNumber);

// Clears the free items that an item does not keep.
std::string ClearUnusedFreeItems(const SumPool& pool);

}  // namespace kavelin
