// The reports of the library, as the host knows them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kavelin::host {

struct RowAction {
    std::string_view name;
    std::string_view opens;
};

struct Report {
    std::string_view name;  // the name on the command line
    std::string_view titleChinese;
    std::string_view titleEnglish;
    std::string_view className;  // the public class, without "Kavelin."
    std::string_view filterId;   // identity of its filter; empty for a report without a dialog
    std::string_view orderBy;    // columns by which its result is read; empty: as the database gives it
    int statements;              // that a usual run sends, for a progress line; 0: not known
    // What its table shows of a result that is too wide for one, separated by commas; empty: all columns.
    std::string_view tableColumns = {};
    // Commands by which a row of the result is opened, the usual one first; none: rows open nothing.
    std::span<const RowAction> actions = {};

    std::string_view Title(std::string_view language) const;
};

// All reports, also those whose class is not built yet.
std::span<const Report> AllReports();

// Whether the report's class is there and its filter is described.
bool IsBuilt(const Report& report);

// The report of that name, without regard to case. Throws UsageError, with the nearest name if there is
// one, and if the report is not built.
const Report& FindReport(std::string_view name);

}  // namespace kavelin::host
