#include "host/output/OutputTable.h"

#include "frame/Text.h"
#include "host/output/DisplayWidth.h"
#include "host/output/MachineText.h"
#include "host/output/TableLayout.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>
#include <string>
#include <vector>

namespace kavelin::host {

namespace {

constexpr std::int64_t kHeadRows = 20;
constexpr std::int64_t kTailRows = 10;
constexpr std::int64_t kWholeLimit = 1000;  // a limit up to here is shown without a gap
constexpr std::size_t kNamesLeftOut = 5;    // named of the columns that have no room
constexpr int kBarGap = 1;                  // blanks before a bar
constexpr std::string_view kPlain = "\x1b[0m";

using Cells = std::vector<std::string>;

struct Row {
    Cells cells;
    bool line;                    // no opening or total
    std::vector<double> numbers;  // of cells that have a bar; 0 of all others
};

// The rows to be shown, and how many were read.
struct Excerpt {
    std::vector<Row> head;
    std::deque<Row> tail;  // ring of the latest rows
    std::int64_t count = 0;
    bool more = false;  // the limit left rows unread
    std::optional<Row> totals;
};

// At most six decimals, but all digits of a number so small that they would say 0.
std::string DoubleCell(double number)
{
    constexpr double kSmall = 0.001;
    constexpr std::size_t kDecimals = 6;
    std::string text = ToText(Value(number));
    const std::size_t point = text.find('.');
    if (point == text.npos || text.size() - point - 1 <= kDecimals || text.find('E') != text.npos ||
        std::fabs(number) < kSmall)
        return text;
    text = fmt::format("{:.{}f}", number, kDecimals);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

std::string CellText(const Value& value)
{
    if (value.As<std::int64_t>() || value.As<Decimal>())
        return GroupThousands(MachineText(value));
    if (const double* number = value.As<double>())
        return GroupThousands(DoubleCell(*number));
    return Printable(MachineText(value));
}

// Null where nothing marks the column, or the table has no colours.
const ColumnMark* MarkOf(const std::string& column, const TableOptions& options)
{
    if (options.colour)
        for (const ColumnMark& mark : options.marks)
            if (EqualsNoCase(mark.column, column))
                return &mark;
    return nullptr;
}

bool HasBar(const ColumnMark* mark)
{
    return mark && mark->kind != MarkKind::Class;
}

Row ReadRow(const Recordset& rows, const TableOptions& options)
{
    Row row = {{}, !options.isLine || options.isLine(), {}};
    for (int field = 0; field < rows.FieldCount(); ++field) {
        const Value value = rows.Field(field);
        row.cells.push_back(CellText(value));
        row.numbers.push_back(
            HasBar(MarkOf(rows.FieldName(field), options)) && !value.IsNull() ? ToDouble(value) : 0);
    }
    return row;
}

// Null where there is no such field.
Value TotalOf(const Recordset& totals, const std::string& name)
{
    for (int field = 0; field < totals.FieldCount(); ++field)
        if (EqualsNoCase(totals.FieldName(field), name))
            return totals.Field(field);
    return Value::Null();
}

Row ReadTotals(const Recordset& rows, const TableTotals& totals)
{
    Row row = {{}, false, {}};
    for (int field = 0; field < rows.FieldCount(); ++field)
        row.cells.push_back(CellText(TotalOf(*totals.row, rows.FieldName(field))));
    if (!row.cells.empty() && row.cells.front().empty())
        row.cells.front() = totals.heading;
    return row;
}

Excerpt ReadExcerpt(Recordset& rows, const TableOptions& options)
{
    const std::optional<std::int64_t> limit = options.limit;
    std::int64_t headRows = limit && *limit <= kWholeLimit ? *limit : kHeadRows;
    if (options.whole)
        headRows = std::numeric_limits<std::int64_t>::max();
    Excerpt excerpt;
    for (; !rows.Eof() && (!limit || excerpt.count < *limit); rows.MoveNext()) {
        ++excerpt.count;
        if (excerpt.count <= headRows) {
            excerpt.head.push_back(ReadRow(rows, options));
            continue;
        }
        if (static_cast<std::int64_t>(excerpt.tail.size()) == kTailRows)
            excerpt.tail.pop_front();
        excerpt.tail.push_back(ReadRow(rows, options));
    }
    excerpt.more = !rows.Eof();
    if (options.totals.row && excerpt.count > 0)
        excerpt.totals = ReadTotals(rows, options.totals);
    return excerpt;
}

class TableWriter {
  public:
    TableWriter(const Recordset& rows, const Excerpt& excerpt, const TableOptions& options, std::ostream& out)
        : blnColour(options.colour), blnCount(!options.whole), objOut(out)
    {
        std::vector<ColumnNeed> needs;
        for (int field = 0; field < rows.FieldCount(); ++field) {
            const TableColumn column = ColumnOf(rows.FieldName(field), options);
            strNames.push_back(Printable(column.name));
            strHeadings.push_back(Printable(column.heading));
            needs.push_back(Need(field, IsNumberType(rows.FieldType(field)), excerpt));
            needs.back().whole = column.whole;
            needs.back().rank = column.rank;
            blnNumbers.push_back(needs.back().number);
            lstMarks.push_back(MarkOf(column.name, options));
            dblLargest.push_back(LargestOf(field, excerpt));
        }
        intWidths = FitColumns(needs, options.width);
        FindRoomForBars(options);
    }

    void Write(const Excerpt& excerpt)
    {
        WriteStyled("\x1b[1m", Line(strHeadings));
        WriteStyled("\x1b[2m", Rule());
        const Row* before = nullptr;
        for (const Row& row : excerpt.head)
            WriteRow(row, before);
        if (HasGap(excerpt)) {
            WriteStyled("\x1b[2m", Line(Cells(strNames.size(), "…")));
            before = nullptr;
        }
        for (const Row& row : excerpt.tail)
            WriteRow(row, before);
        if (excerpt.totals)
            WriteRow(*excerpt.totals, before);
        if (blnCount)
            WriteStyled("\x1b[2m", CountLine(excerpt));
        if (const std::string text = LeftOutLine(); !text.empty())
            WriteStyled("\x1b[2m", text);
    }

  private:
    static TableColumn ColumnOf(const std::string& name, const TableOptions& options)
    {
        for (const TableColumn& column : options.columns)
            if (EqualsNoCase(column.name, name))
                return column;
        return {name, name};
    }

    // `before` is the row above; becomes this one.
    void WriteRow(const Row& row, const Row*& before)
    {
        if (before && before->line != row.line)
            WriteStyled("\x1b[2m", Rule());
        before = &row;
        WriteStyled(row.line ? "" : "\x1b[1m", Line(row.cells, row.line ? &row : nullptr));
    }

    static double LargestOf(int field, const Excerpt& excerpt)
    {
        double largest = 0;
        for (const Row& row : excerpt.head)
            largest = std::max(largest, std::abs(row.numbers[field]));
        for (const Row& row : excerpt.tail)
            largest = std::max(largest, std::abs(row.numbers[field]));
        return largest;
    }

    // Bars stand only where there is room left, that of the first mark first.
    void FindRoomForBars(const TableOptions& options)
    {
        blnBars.resize(intWidths.size());
        int used = 0;
        for (const int column : intWidths)
            used += column == 0 ? 0 : column + (used == 0 ? 0 : kColumnGap);
        for (const ColumnMark& mark : options.marks)
            for (std::size_t field = 0; field < lstMarks.size(); ++field) {
                if (lstMarks[field] != &mark || !HasBar(&mark) || intWidths[field] == 0)
                    continue;
                blnBars[field] = options.width == 0 || used + kBarGap + kBarWidth <= options.width;
                used += blnBars[field] ? kBarGap + kBarWidth : 0;
            }
    }

    ColumnNeed Need(int field, bool number, const Excerpt& excerpt) const
    {
        int cells = 1;
        for (const Row& row : excerpt.head)
            cells = std::max(cells, DisplayWidth(row.cells[field]));
        for (const Row& row : excerpt.tail)
            cells = std::max(cells, DisplayWidth(row.cells[field]));
        if (excerpt.totals)
            cells = std::max(cells, DisplayWidth(excerpt.totals->cells[field]));
        return {DisplayWidth(strHeadings[field]), cells, number};
    }

    static bool HasGap(const Excerpt& excerpt)
    {
        return excerpt.count > static_cast<std::int64_t>(excerpt.head.size() + excerpt.tail.size());
    }

    // `row` is the line whose cells these are, or null. `filler` stands where a line has a bar.
    std::string Line(const Cells& cells, const Row* row = nullptr, std::string_view filler = " ") const
    {
        std::string line;
        for (std::size_t field = 0; field < cells.size(); ++field) {
            if (intWidths[field] == 0)
                continue;
            if (field > 0)
                line.append(kColumnGap, ' ');
            const std::string text = CutToWidth(cells[field], intWidths[field]);
            const std::string blanks(intWidths[field] - DisplayWidth(text), ' ');
            const std::string shown = row ? Coloured(field, text, *row) : text;
            line += blnNumbers[field] ? blanks + shown : shown + blanks;
            if (!blnBars[field])
                continue;
            if (row && row->numbers[field] != 0)
                line += BarIn(field, row->numbers[field]);
            else
                for (int column = 0; column < kBarGap + kBarWidth; ++column)
                    line += filler;
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    }

    std::string Coloured(std::size_t field, const std::string& text, const Row& row) const
    {
        const ColumnMark* mark = lstMarks[field];
        const std::string_view colour = mark ? CellColour(mark->kind, text, row.numbers[field]) : "";
        return colour.empty() ? text : std::string(colour) + text + std::string(kPlain);
    }

    std::string BarIn(std::size_t field, double number) const
    {
        const std::string bar = Bar(number, dblLargest[field]);
        const std::size_t end = bar.find_last_not_of(' ') + 1;
        return std::string(kBarGap, ' ') + std::string(BarColour(lstMarks[field]->kind, number)) +
               bar.substr(0, end) + std::string(kPlain) + bar.substr(end);
    }

    std::string Rule() const
    {
        Cells rules;
        for (const int width : intWidths) {
            std::string rule;
            for (int column = 0; column < width; ++column)
                rule += "─";
            rules.push_back(std::move(rule));
        }
        return Line(rules, nullptr, "─");
    }

    static std::string CountLine(const Excerpt& excerpt)
    {
        const std::string count = GroupThousands(std::to_string(excerpt.count));
        const std::string_view unit = excerpt.count == 1 ? "row" : "rows";
        const std::string ofMore = excerpt.more ? " There are more." : "";
        if (HasGap(excerpt))
            return fmt::format("Rows 1 to {} and the last {} of {}{}.{}", excerpt.head.size(),
                               excerpt.tail.size(), count, excerpt.more ? " read" : "", ofMore);
        if (excerpt.more)
            return fmt::format("The first {} {}.{}", count, unit, ofMore);
        return fmt::format("{} {}.", excerpt.count == 0 ? "No" : count, unit);
    }

    // Empty if every column has its place.
    std::string LeftOutLine() const
    {
        std::string names;
        std::size_t count = 0;
        for (std::size_t field = 0; field < intWidths.size(); ++field)
            if (intWidths[field] == 0 && ++count <= kNamesLeftOut)
                names += (names.empty() ? "" : ", ") + strNames[field];
        if (count == 0)
            return "";
        return fmt::format("No room for {} {}: {}{}. The csv and json forms show all.", count,
                           count == 1 ? "column" : "columns", names, count > kNamesLeftOut ? ", …" : "");
    }

    void WriteStyled(std::string_view style, const std::string& line)
    {
        if (blnColour && !style.empty())
            objOut << style << line << kPlain << '\n';
        else
            objOut << line << '\n';
    }

    bool blnColour = false;
    bool blnCount = true;
    std::ostream& objOut;
    Cells strNames;
    Cells strHeadings;
    std::vector<bool> blnNumbers;
    std::vector<int> intWidths;
    std::vector<const ColumnMark*> lstMarks;  // by column; null for none
    std::vector<bool> blnBars;
    std::vector<double> dblLargest;  // that a bar of the column shows
};

}  // namespace

void WriteTable(Recordset& rows, const TableOptions& options, std::ostream& out)
{
    const Excerpt excerpt = ReadExcerpt(rows, options);
    TableWriter(rows, excerpt, options, out).Write(excerpt);
}

std::string GroupThousands(std::string_view number)
{
    if (number.find_first_not_of("-.0123456789") != number.npos)
        return std::string(number);
    const std::size_t begin = number.starts_with('-') ? 1 : 0;
    const std::size_t end = std::min(number.find('.'), number.size());
    std::string text(number.substr(0, begin));
    for (std::size_t position = begin; position < end; ++position) {
        if (position > begin && (end - position) % 3 == 0)
            text += ',';
        text += number[position];
    }
    return text.append(number.substr(end));
}

bool IsNumberType(std::string_view type)
{
    constexpr std::string_view kTypes[] = {"int",     "bigint", "smallint", "tinyint", "decimal",
                                           "numeric", "float",  "real",     "money",   "smallmoney"};
    const std::string_view name = Trim(type.substr(0, type.find('(')));
    return std::any_of(std::begin(kTypes), std::end(kTypes),
                       [&](std::string_view known) { return EqualsNoCase(name, known); });
}

}  // namespace kavelin::host
