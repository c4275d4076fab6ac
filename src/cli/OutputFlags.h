// --format, --output and --limit, and the place where rows go by them.
#pragma once

#include "frame/Connection.h"
#include "host/Reports.h"
#include "host/definition/ReportDefinition.h"
#include "host/output/Output.h"
#include "host/output/OutputFile.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace kavelin::cli {

struct OutputFlags {
    std::string format;
    std::optional<std::string> file;
    std::string limit;
    std::string columns;  // "A,B,C", "all", or empty for what the rows' table shows by itself
};

// `flags` must live as long as the command.
void AddOutputFlags(CLI::App& command, OutputFlags& flags, bool withLimit);

class RowsTarget {
  public:
    // Before anything is run: throws UsageError for a flag that makes no sense, Error for a file that
    // cannot be written.
    explicit RowsTarget(const OutputFlags& flags);

    // What a table shows of rows that are too wide for one, unless --columns says otherwise. Machine forms
    // show all.
    void SetTableColumns(std::string_view columns);

    // How the columns of a table that is too narrow give way; those that --columns names are all wanted.
    void SetFit(const host::TableColumns& fit) { objFit = fit; }

    // How a table tells the lines of the rows from openings and totals.
    void SetLines(const host::LineMark& lines) { objLines = lines; }

    // What a table on a terminal shows as a picture too.
    void SetMarks(std::span<const host::ColumnMark> marks) { objOptions.marks = marks; }

    // May be called for several row sets; an empty line stands between two of them, but not in JSON.
    // Throws OutputClosed when nobody reads stdout any more, Error when it takes no more.
    void Write(Recordset& rows);

    // The rows of a report's view. A table has headings in the language and the totals below; in machine forms
    // columns have their names, and no row is a total.
    void WriteView(Recordset& rows, Recordset& totals, const std::vector<host::ViewColumn>& columns,
                   std::string_view language);

    // A list of the program's own: a table shows all of it, without a count.
    void WriteWhole(Recordset& rows);

    // Puts the file in its place.
    void Finish();

  private:
    std::ostream& Stream();
    void WriteChosen(Recordset& rows);
    void WriteAll(Recordset& rows);
    host::TableColumn FitOf(const std::string& column) const;

    host::OutputOptions objOptions;
    std::unique_ptr<host::OutputFile> objFile;  // null: stdout
    std::vector<std::string> lstColumns;        // empty: all
    host::LineMark objLines;
    host::TableColumns objFit;
    bool blnColumnsGiven = false;  // by the user
    bool blnWritten = false;
};

// The whole number that an option was given. Throws UsageError, naming the option, for anything else and
// for less than `least`.
std::int64_t WholeNumber(const std::string& option, const std::string& text, std::int64_t least);

}  // namespace kavelin::cli
