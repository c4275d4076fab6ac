// Rows as a table for people:
//
//   cNo  cinvcode  cInvName       资金占用额  所占比重
//   ───  ────────  ────────────  ──────────  ────────
//     1  A-017     六角头螺栓…    81,204.50     12.31
//     …
//   Rows 1 to 20 and the last 10 of 3,412.
#pragma once

#include "frame/Connection.h"
#include "host/output/CellMarks.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// How a table shows the column `name`.
struct TableColumn {
    std::string name;
    std::string heading;
    bool whole = false;  // as ColumnNeed has it, and so
    int rank = 0;
};

// One row whose fields go under the columns of their names, below the rows and not counted with them.
struct TableTotals {
    Recordset* row = nullptr;  // null: no totals
    std::string heading;       // in the first column, unless that has a total
};

struct TableOptions {
    std::optional<std::int64_t> limit = {};  // rows shown at most, from the first one
    int width = 0;                           // columns of the terminal, 0: nothing is cut
    bool colour = false;
    bool whole = false;  // a list of the program's own: all rows, without a count below
    // Whether the row on which the set stands is a line; a rule parts lines from openings and totals, which
    // are bold in colour. Empty: all rows are lines.
    std::function<bool()> isLine = {};
    std::vector<TableColumn> columns = {};  // any other column has its name above it
    TableTotals totals = {};
    std::span<const ColumnMark> marks = {};  // shown in lines, with colour only
};

// A long result shows its first and last rows; a limit of up to 1,000 rows is taken at its word and shown
// whole. Only the rows to be shown are kept in memory. Stops without an error when `out` fails; the caller
// tests it.
void WriteTable(Recordset& rows, const TableOptions& options, std::ostream& out);

// A plain number text with a comma between thousands: "-1234567.5" gives "-1,234,567.5". A text with an
// exponent stays as it is.
std::string GroupThousands(std::string_view number);

// Whether a column of that T-SQL type holds numbers: "int", "decimal(38,2)", "money" ...
bool IsNumberType(std::string_view type);

}  // namespace kavelin::host
