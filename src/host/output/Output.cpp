#include "host/output/Output.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/output/OutputCsv.h"
#include "host/output/OutputJson.h"

namespace kavelin::host {

std::optional<OutputFormat> ParseFormat(std::string_view name)
{
    if (EqualsNoCase(name, "table"))
        return OutputFormat::Table;
    if (EqualsNoCase(name, "csv"))
        return OutputFormat::Csv;
    if (EqualsNoCase(name, "json"))
        return OutputFormat::Json;
    return std::nullopt;
}

void WriteRows(Recordset& rows, const OutputOptions& options, std::ostream& out)
{
    switch (options.format) {
        case OutputFormat::Table:
            WriteTable(rows,
                       {options.limit, options.width, options.colour, options.whole, options.isLine,
                        options.columns, options.totals, options.marks},
                       out);
            break;
        case OutputFormat::Csv: WriteCsv(rows, options.limit, out); break;
        case OutputFormat::Json: WriteJson(rows, options.limit, out); break;
    }
    out.flush();
    if (!out)
        throw Error("The rows could not be written: the output takes no more.");
}

}  // namespace kavelin::host
