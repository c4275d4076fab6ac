// The forms in which rows are put out: a table for people, CSV and JSON for machines.
//
//   OutputOptions options;
//   options.format = OutputFormat::Csv;
//   WriteRows(*connection.OpenRecordset(...), options, std::cout);
//
// Machine forms hold every digit and every character of every row. The table is cut to the terminal.
#pragma once

#include "frame/Connection.h"
#include "host/output/OutputTable.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <span>
#include <string_view>
#include <vector>

namespace kavelin::host {

enum class OutputFormat { Table, Csv, Json };

struct OutputOptions {
    OutputFormat format = OutputFormat::Table;
    std::optional<std::int64_t> limit;  // rows put out at most; the machine forms read no further
    int width = 0;                      // columns of the terminal, 0: as wide as the rows need
    bool colour = false;                // table only
    bool whole = false;  // table only: a list of the program's own, all rows without a count below
    // Table only: whether the row on which the set stands is a line, not an opening or a total; empty: all are.
    std::function<bool()> isLine = {};
    std::vector<TableColumn> columns = {};   // table only
    TableTotals totals = {};                 // table only
    std::span<const ColumnMark> marks = {};  // table only
};

// "table", "csv" or "json" without regard to case; nothing for anything else.
std::optional<OutputFormat> ParseFormat(std::string_view name);

// Writes the rows from where the set stands to its end, or as many as the limit allows, and flushes. Rows
// are read one by one and not kept, whatever their number. Throws Error if `out` takes no more or a value
// has no text in the form; what is written before stays written.
void WriteRows(Recordset& rows, const OutputOptions& options, std::ostream& out);

}  // namespace kavelin::host
