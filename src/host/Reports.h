// The reports of the library, as the host knows them.
#pragma once

#include "host/output/CellMarks.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin::host {

struct ReportDefinition;

enum class ActionKind {
    OpensRow,      // what is behind a row
    DrawsAgain,    // the whole report
    ShowsOptions,  // a form, for which no account is needed
};

// A command of a report's toolbar.
struct RowAction {
    std::string_view name;
    std::string_view opens;
    ActionKind kind = ActionKind::OpensRow;
};

// Tells the lines of a result from its openings and totals.
struct LineMark {
    std::string_view column;  // empty: all rows are lines
    std::string_view value;   // of a line
};

// What the table of a result that is too wide for one shows, each a list of columns separated by commas. A name with
// a "*" is the first column that it fits; what the result of a run lacks is passed over.
struct TableColumns {
    std::string_view names;  // empty: all columns
    // How they give way on a screen that is too narrow for them. No cell of these is cut: half a day or half a
    // document's number tells nothing.
    std::string_view whole = {};
    // These are left out where a cell would have to be cut for them, the last first. The first of them stays until
    // the others have no room. Never the report's first column.
    std::string_view spare = {};
};

// What the host calls to have a result made.
enum class ReportEntry {
    Class,     // GETSQL of the public class
    Template,  // CreateNewTemplate of the goods-in-transit template, which no public class leads to
};

struct Report {
    std::string_view name;  // the name on the command line
    std::string_view titleChinese;
    std::string_view titleEnglish;
    std::string_view className;  // the public class, without "Kavelin."
    std::string_view filterId;   // identity of its filter; empty for a report without a dialog
    std::string_view orderBy;    // columns by which its result is read; empty: as the database gives it
    int statements;              // that a usual run sends, for a progress line; 0: not known
    TableColumns table = {};
    // Commands on its result, the usual one first; none: there is nothing to open.
    std::span<const RowAction> actions = {};
    std::span<const ColumnMark> marks = {};  // what its table shows as a picture too
    LineMark lines = {};
    // What the host makes of its result for a reader; null: the result is what he wants to see.
    const ReportDefinition* definition = nullptr;
    ReportEntry entry = ReportEntry::Class;

    std::string_view Title(std::string_view language) const;
};

// All reports.
std::span<const Report> AllReports();

// The report of that name, without regard to case. Throws UsageError, with the nearest name if there is one.
const Report& FindReport(std::string_view name);

}  // namespace kavelin::host
