#include "host/output/OutputTable.h"

#include "frame/Text.h"
#include "host/output/DisplayWidth.h"
#include "host/output/MachineText.h"
#include "host/output/TableLayout.h"

#include <fmt/format.h>

#include <algorithm>
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

using Cells = std::vector<std::string>;

// The rows to be shown, and how many were read.
struct Excerpt {
    std::vector<Cells> head;
    std::deque<Cells> tail;  // ring of the latest rows
    std::int64_t count = 0;
    bool more = false;  // the limit left rows unread
};

std::string CellText(const Value& value)
{
    if (value.As<std::int64_t>() || value.As<Decimal>())
        return GroupThousands(MachineText(value));
    if (value.As<double>())
        return GroupThousands(ToText(value));
    return Printable(MachineText(value));
}

Cells ReadCells(const Recordset& rows)
{
    Cells cells;
    for (int field = 0; field < rows.FieldCount(); ++field)
        cells.push_back(CellText(rows.Field(field)));
    return cells;
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
            excerpt.head.push_back(ReadCells(rows));
            continue;
        }
        if (static_cast<std::int64_t>(excerpt.tail.size()) == kTailRows)
            excerpt.tail.pop_front();
        excerpt.tail.push_back(ReadCells(rows));
    }
    excerpt.more = !rows.Eof();
    return excerpt;
}

class TableWriter {
  public:
    TableWriter(const Recordset& rows, const Excerpt& excerpt, const TableOptions& options, std::ostream& out)
        : blnColour(options.colour), blnCount(!options.whole), objOut(out)
    {
        std::vector<ColumnNeed> needs;
        for (int field = 0; field < rows.FieldCount(); ++field) {
            strNames.push_back(Printable(rows.FieldName(field)));
            needs.push_back(Need(field, IsNumberType(rows.FieldType(field)), excerpt));
            blnNumbers.push_back(needs.back().number);
        }
        intWidths = FitColumns(needs, options.width);
    }

    void Write(const Excerpt& excerpt)
    {
        WriteStyled("\x1b[1m", Line(strNames));
        WriteStyled("\x1b[2m", Rule());
        for (const Cells& cells : excerpt.head)
            objOut << Line(cells) << '\n';
        if (HasGap(excerpt))
            WriteStyled("\x1b[2m", Line(Cells(strNames.size(), "…")));
        for (const Cells& cells : excerpt.tail)
            objOut << Line(cells) << '\n';
        if (blnCount)
            WriteStyled("\x1b[2m", CountLine(excerpt));
        if (const std::string text = LeftOutLine(); !text.empty())
            WriteStyled("\x1b[2m", text);
    }

  private:
    ColumnNeed Need(int field, bool number, const Excerpt& excerpt) const
    {
        int cells = 1;
        for (const Cells& row : excerpt.head)
            cells = std::max(cells, DisplayWidth(row[field]));
        for (const Cells& row : excerpt.tail)
            cells = std::max(cells, DisplayWidth(row[field]));
        return {DisplayWidth(strNames[field]), cells, number};
    }

    static bool HasGap(const Excerpt& excerpt)
    {
        return excerpt.count > static_cast<std::int64_t>(excerpt.head.size() + excerpt.tail.size());
    }

    std::string Line(const Cells& cells) const
    {
        std::string line;
        for (std::size_t field = 0; field < cells.size(); ++field) {
            if (intWidths[field] == 0)
                continue;
            if (field > 0)
                line.append(kColumnGap, ' ');
            const std::string text = CutToWidth(cells[field], intWidths[field]);
            const std::string blanks(intWidths[field] - DisplayWidth(text), ' ');
            line += blnNumbers[field] ? blanks + text : text + blanks;
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
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
        return Line(rules);
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
        if (blnColour)
            objOut << style << line << "\x1b[0m\n";
        else
            objOut << line << '\n';
    }

    bool blnColour = false;
    bool blnCount = true;
    std::ostream& objOut;
    Cells strNames;
    std::vector<bool> blnNumbers;
    std::vector<int> intWidths;
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
