// What the host's definition of a report makes of its result table, where the table is only the stuff of what
// its reader wants to see.
#pragma once

#include "frame/Connection.h"
#include "host/FilterInput.h"
#include "host/LocalText.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// A column of a view, as a table shows it.
struct ViewColumn {
    std::string name;
    LocalText heading;
    bool whole = false;  // as ColumnNeed of output/TableLayout.h has it, and so
    int rank = 0;
};

struct ViewSelects {
    std::string rows;                 // in the order in which they are read
    std::string totals;               // one row: totals of some of these columns, by their names
    std::vector<ViewColumn> columns;  // of the rows, but for those that a table need not show
};

class ReportView {
  public:
    virtual ~ReportView() = default;

    // Of a result `table`, which may be asked about on `account`. Throws DatabaseError.
    virtual ViewSelects Of(Connection& account, const std::string& table) const = 0;
};

struct ReportDefinition {
    // By which a view can be grouped; the first one is meant where none is named.
    std::vector<std::string_view> (*dimensions)();
    // A view by some of them, with commas between; other choices are those of the filter. Throws UsageError.
    std::unique_ptr<ReportView> (*view)(const FilterInput& input, std::string_view groups);
};

}  // namespace kavelin::host
