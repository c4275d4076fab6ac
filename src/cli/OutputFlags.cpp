#include "cli/OutputFlags.h"

#include "cli/Messages.h"
#include "cli/Terminal.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/output/ChosenColumns.h"
#include "host/output/TableLayout.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <iostream>

namespace kavelin::cli {

namespace {

const host::LocalText kTotal = {"合计", "Total"};

// The place, from 0, of the first name in `list` that means the column; nothing if none does.
std::optional<int> PlaceIn(std::string_view list, const std::string& column)
{
    const std::vector<std::string> names = host::ColumnNames(std::string(list));
    const auto found =
        std::ranges::find_if(names, [&](const std::string& name) { return host::FitsColumn(name, column); });
    return found == names.end() ? std::nullopt : std::optional(static_cast<int>(found - names.begin()));
}

}  // namespace

void AddOutputFlags(CLI::App& command, OutputFlags& flags, bool withLimit)
{
    command.add_option("--format", flags.format, "table (by default), csv or json")->type_name("FORM");
    command.add_option("--output", flags.file, "Write the rows to a file, which appears when it is whole")
        ->type_name("FILE");
    if (withLimit)
        command
            .add_option("--columns", flags.columns,
                        "Put out these columns, separated by commas; all: every one")
            ->type_name("A,B,C");
    if (withLimit)
        command.add_option("--limit", flags.limit, "Put out the first N rows only")->type_name("N");
}

RowsTarget::RowsTarget(const OutputFlags& flags)
{
    if (!flags.format.empty()) {
        const auto format = host::ParseFormat(flags.format);
        if (!format)
            throw host::UsageError(
                fmt::format("--format takes table, csv or json, not \"{}\".", flags.format));
        objOptions.format = *format;
    }
    if (!flags.limit.empty())
        objOptions.limit = WholeNumber("--limit", flags.limit, 0);
    blnColumnsGiven = !flags.columns.empty();
    if (!EqualsNoCase(flags.columns, "all"))
        lstColumns = host::ColumnNames(flags.columns);
    if (flags.file) {
        objFile = std::make_unique<host::OutputFile>(*flags.file);
    } else {
        objOptions.width = TerminalWidth(Stream::Output);
        objOptions.colour = HasColour(Stream::Output);
    }
}

std::ostream& RowsTarget::Stream()
{
    return objFile ? objFile->Stream() : std::cout;
}

void RowsTarget::SetTableColumns(std::string_view columns)
{
    if (!blnColumnsGiven && objOptions.format == host::OutputFormat::Table)
        lstColumns = host::ColumnNames(std::string(columns));
}

void RowsTarget::Write(Recordset& rows)
{
    if (!objLines.column.empty())
        objOptions.isLine = [this, &rows] { return ToText(rows.Field(objLines.column)) == objLines.value; };
    WriteChosen(rows);
    objOptions.isLine = nullptr;
}

void RowsTarget::WriteChosen(Recordset& rows)
{
    if (lstColumns.empty()) {
        WriteAll(rows);
        return;
    }
    const std::vector<std::string> columns =
        blnColumnsGiven ? lstColumns : host::FindColumns(rows, lstColumns);
    if (!objFit.whole.empty())
        for (const std::string& column : columns)
            objOptions.columns.push_back(FitOf(column));
    WriteAll(*host::ChooseColumns(rows, columns));
    if (!blnColumnsGiven && static_cast<int>(columns.size()) < rows.FieldCount())
        Say(fmt::format("{} of {} columns. --columns all, csv and json show the others.", columns.size(),
                        rows.FieldCount()));
}

host::TableColumn RowsTarget::FitOf(const std::string& column) const
{
    const std::optional<int> spare = blnColumnsGiven ? std::nullopt : PlaceIn(objFit.spare, column);
    return {column, column, PlaceIn(objFit.whole, column).has_value(), spare ? host::kName + *spare : 0};
}

void RowsTarget::WriteView(Recordset& rows, Recordset& totals, const std::vector<host::ViewColumn>& columns,
                           std::string_view language)
{
    const bool choose = !blnColumnsGiven && objOptions.format == host::OutputFormat::Table;
    for (const host::ViewColumn& column : columns) {
        objOptions.columns.push_back({column.name, column.heading.In(language), column.whole, column.rank});
        if (choose)
            lstColumns.push_back(column.name);
    }
    objOptions.totals = {&totals, kTotal.In(language)};
    Write(rows);
    objOptions.totals = {};
}

void RowsTarget::WriteWhole(Recordset& rows)
{
    objOptions.whole = true;
    WriteAll(rows);
    objOptions.whole = false;
}

void RowsTarget::WriteAll(Recordset& rows)
{
    if (blnWritten && objOptions.format != host::OutputFormat::Json)
        Stream() << (objOptions.format == host::OutputFormat::Csv ? "\r\n" : "\n");
    blnWritten = true;
    try {
        host::WriteRows(rows, objOptions, Stream());
    } catch (const Error&) {
        if (!objFile && IsClosedPipe(cli::Stream::Output))
            throw OutputClosed();
        throw;
    }
}

void RowsTarget::Finish()
{
    if (objFile)
        objFile->Finish();
}

std::int64_t WholeNumber(const std::string& option, const std::string& text, std::int64_t least)
{
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number < least)
        throw host::UsageError(
            fmt::format("{} takes a whole number from {}, not \"{}\".", option, least, text));
    return number;
}

}  // namespace kavelin::cli
