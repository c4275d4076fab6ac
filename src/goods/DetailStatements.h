// The statements of the detail ledger by cost item, in the order in which they run. `table` is the work table
// as statements name it: one row for the opening, one a ledger line, one a month, one for all months up to
// each, in this order, told apart by `flag` 0 to 3. A condition may be empty.
#pragma once

#include "goods/CostItemColumns.h"

#include <string>
#include <vector>

namespace kavelin {

// The work table, empty. Its `ino` numbers the rows as they come; the running balance goes by it.
std::string CreateDetailTable(const std::string& table);

// ---- the opening

// One row, also over no lines at all. `caption` stands where other rows have their date.
std::string InsertDetailOpening(const std::string& table, const std::string& caption,
                                const std::string& where);
std::string UpdateOpeningUnits(const std::string& table);
std::string UpdateOpeningTotals(const std::string& table);
std::string UpdateOpeningTotalUnits(const std::string& table);

// ---- the lines

// `language` is that of the voucher type's name.
std::string InsertDetailLines(const std::string& table, const std::string& language,
                              const std::string& where);

// The end balance of each row: that of all rows up to it, the opening's among them.
std::string UpdateRunningBalance(const std::string& table);

// What is per unit; null where there is no quantity.
std::string UpdateLineUnits(const std::string& table);
std::string UpdateLineTotals(const std::string& table);

// The totals per unit; 0 where there is no quantity, unlike those of the items.
std::string UpdateLineTotalUnits(const std::string& table);

// ---- the months

// A row for each month that has lines, with what they received and dispatched. `caption` stands behind the
// month's number.
std::string InsertMonthRows(const std::string& table, const std::string& caption);

std::string SelectMonths(const std::string& table);

// The sum of the month rows up to a month.
std::string InsertRunningRow(const std::string& table, const std::string& caption, const std::string& month);

// The same three as for the lines, of what was received and dispatched, now for all rows.
std::string UpdateMonthUnits(const std::string& table);
std::string UpdateMonthTotals(const std::string& table);
std::string UpdateMonthTotalUnits(const std::string& table);

// ---- the result

// Words and numbers of the accounting vouchers, and of those of the differences.
std::string UpdateDetailVoucher(const std::string& table);
std::string UpdateDetailDifVoucher(const std::string& table);

// The rows of the chosen months, the opening first, then each month's lines, its total and the running total.
// `months` is a condition on them with " and" before it.
std::string SelectDetailResult(const std::string& table, const std::string& result, const std::string& year,
                               const std::string& months, const std::vector<CostColumn>& chosen);

}  // namespace kavelin
