// Pieces of the statements that the summary and the detail ledger by cost item share.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin {

// The two directions of a ledger line, by its bRdFlag.
struct CostSide {
    std::string_view prefix, flag, quantity;
};
std::span<const CostSide> CostSides();  // received, dispatched

// A list of a statement, one piece a line with commas between, and a line end behind the last.
std::string ListLines(const std::vector<std::string>& pieces);

// The same on one line, without blanks.
std::string JoinNames(const std::vector<std::string>& names);

// Appends the pieces of `more`.
void Append(std::vector<std::string>& pieces, const std::vector<std::string>& more);

// "Q_Qty" and the amounts of the five items, in table order; neither the totals nor what is per unit.
std::vector<std::string> FilledColumns(std::string_view prefix);

// Their sums over the lines of an opening, issues subtracted.
std::vector<std::string> OpeningSums(std::string_view prefix);

// "Q_Total_StanCost=(...)" for the three totals.
std::vector<std::string> TotalsOf(std::string_view prefix);

// The lookups of a ledger line under short names, from Warehouse w to Department d, a line each with a line
// end behind it; Rd_Style r goes before them where a statement reads it.
std::string JoinShortRdStyle();
std::string JoinShortLookups();

// Standard costs s and differences p of a ledger line.
std::string JoinCostSources();

// The name of a line's voucher type; `locale` is the condition on the language of names.
std::string JoinVoucherName(std::string_view locale);
constexpr std::string_view kDatabaseLocale = "AA_Enum.LocaleId=DBO.UDF_GetLocaleID()";

}  // namespace kavelin
