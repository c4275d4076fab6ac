#include "database/odbc/RowReader.h"

#include "database/odbc/CellReader.h"
#include "database/odbc/Utf16.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <string>

namespace kavelin::odbc {

namespace {

SQLUSMALLINT NumberOf(std::size_t column)
{
    return static_cast<SQLUSMALLINT>(column + 1);
}

std::string TypeNameOf(const StatementRun& run, std::size_t column)
{
    std::u16string name(256, u'\0');
    SQLSMALLINT bytes = 0;
    const SQLRETURN result =
        SQLColAttributeW(run.Get(), NumberOf(column), SQL_DESC_TYPE_NAME, name.data(),
                         static_cast<SQLSMALLINT>(name.size() * sizeof(char16_t)), &bytes, nullptr);
    return SQL_SUCCEEDED(result) ? FromUtf16(name.c_str()) : std::string();
}

ColumnPlan Describe(const StatementRun& run, std::size_t column)
{
    std::u16string name(1024, u'\0');
    SQLSMALLINT length = 0, type = 0, digits = 0, nullable = 0;
    SQLULEN size = 0;
    run.Check(SQLDescribeColW(run.Get(), NumberOf(column), reinterpret_cast<SQLWCHAR*>(name.data()),
                              static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &digits,
                              &nullable));
    DescribedColumn described;
    described.name = FromUtf16(name.c_str());
    described.sqlType = type;
    described.typeName = TypeNameOf(run, column);
    described.size = size;
    described.digits = digits;
    return PlanFor(described, run.Server());
}

void Add(const StatementRun& run, ResultRows& rows, std::size_t column, const void* buffer, std::size_t bytes)
{
    if (!AddCell(rows.columns[column], rows.plans[column], buffer, bytes))
        run.Fail("A value of the column '" + rows.plans[column].name +
                     "' is no decimal number of at most 38 digits.",
                 "22003");
}

// Room for some rows, which the driver fills at once. Bound to the statement while it lives.
class RowBlock {
  public:
    RowBlock(StatementRun& run, ResultRows& rows) : objRun(run), objRows(rows)
    {
        constexpr std::size_t kBlockBytes = 4 << 20, kMostRows = 1000;
        std::size_t rowBytes = 0;
        for (const ColumnPlan& plan : rows.plans)
            rowBytes += FormOf(plan).bytes + sizeof(SQLLEN);
        intRows = std::clamp<std::size_t>(kBlockBytes / rowBytes, 1, kMostRows);

        if (!Set(SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(intRows)))
            intRows = 1;
        lstStates.resize(intRows, SQL_ROW_NOROW);
        objRun.Check(SetOrError(SQL_ATTR_ROWS_FETCHED_PTR, &intFetched));
        objRun.Check(SetOrError(SQL_ATTR_ROW_STATUS_PTR, lstStates.data()));

        lstColumns.resize(rows.plans.size());
        for (std::size_t i = 0; i < lstColumns.size(); ++i) {
            const CellForm form = FormOf(rows.plans[i]);
            BoundColumn& column = lstColumns[i];
            column.form = form;
            column.content.resize(form.bytes * intRows);
            column.lengths.resize(intRows);
            objRun.Check(SQLBindCol(objRun.Get(), NumberOf(i), form.type, column.content.data(),
                                    static_cast<SQLLEN>(form.bytes), column.lengths.data()));
        }
    }

    ~RowBlock()
    {
        SQLFreeStmt(objRun.Get(), SQL_UNBIND);
        Set(SQL_ATTR_ROWS_FETCHED_PTR, nullptr);
        Set(SQL_ATTR_ROW_STATUS_PTR, nullptr);
        Set(SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(std::uintptr_t{1}));
    }
    RowBlock(const RowBlock&) = delete;
    RowBlock& operator=(const RowBlock&) = delete;

    // Fetches the next rows and adds them; false when there are no more.
    bool Fetch()
    {
        intFetched = 0;
        const SQLRETURN result = SQLFetch(objRun.Get());
        objRun.Check(result);
        if (result == SQL_NO_DATA)
            return false;
        // A row alone may have failed while the call as a whole did not.
        for (std::size_t row = 0; row < intFetched; ++row)
            if (lstStates[row] == SQL_ROW_ERROR)
                objRun.Check(SQL_ERROR);
        for (std::size_t i = 0; i < lstColumns.size(); ++i)
            for (std::size_t row = 0; row < intFetched; ++row)
                AddValue(i, row);
        objRows.count += intFetched;
        return true;
    }

  private:
    struct BoundColumn {
        CellForm form;
        std::vector<char> content;
        std::vector<SQLLEN> lengths;
    };

    SQLRETURN SetOrError(SQLINTEGER attribute, SQLPOINTER value)
    {
        return SQLSetStmtAttrW(objRun.Get(), attribute, value, 0);
    }

    bool Set(SQLINTEGER attribute, SQLPOINTER value) { return SQL_SUCCEEDED(SetOrError(attribute, value)); }

    void AddValue(std::size_t index, std::size_t row)
    {
        const BoundColumn& column = lstColumns[index];
        const SQLLEN length = column.lengths[row];
        if (length == SQL_NULL_DATA) {
            objRows.columns[index].AddNull();
            return;
        }
        const std::size_t room = column.form.bytes - column.form.terminator;
        if (length < 0 || static_cast<std::size_t>(length) > room)
            objRun.Fail(
                "A value of the column '" + objRows.plans[index].name + "' is longer than the driver said.",
                "22001");
        Add(objRun, objRows, index, column.content.data() + row * column.form.bytes,
            static_cast<std::size_t>(length));
    }

    StatementRun& objRun;
    ResultRows& objRows;
    std::size_t intRows = 1;
    SQLULEN intFetched = 0;
    std::vector<SQLUSMALLINT> lstStates;
    std::vector<BoundColumn> lstColumns;
};

// Asks for the values of the row that the statement stands on.
class RowCells {
  public:
    RowCells(StatementRun& run, ResultRows& rows) : objRun(run), objRows(rows), lstBuffer(4096) {}

    bool Fetch()
    {
        const SQLRETURN result = SQLFetch(objRun.Get());
        objRun.Check(result);
        if (result == SQL_NO_DATA)
            return false;
        for (std::size_t i = 0; i < objRows.plans.size(); ++i)
            AddValue(i);
        ++objRows.count;
        return true;
    }

  private:
    // The value may be longer than the buffer, and then comes in pieces.
    void AddValue(std::size_t index)
    {
        const CellForm form = FormOf(objRows.plans[index]);
        std::size_t bytes = 0;
        for (;;) {
            const std::size_t room = lstBuffer.size() - bytes;
            SQLLEN length = 0;
            const SQLRETURN result = SQLGetData(objRun.Get(), NumberOf(index), form.type,
                                                lstBuffer.data() + bytes, static_cast<SQLLEN>(room), &length);
            objRun.Check(result);
            if (result == SQL_NO_DATA)  // the last piece just filled the buffer
                break;
            if (length == SQL_NULL_DATA) {
                objRows.columns[index].AddNull();
                return;
            }
            const std::size_t usable = room - form.terminator;
            if (length >= 0 && static_cast<std::size_t>(length) <= usable) {
                bytes += static_cast<std::size_t>(length);
                break;
            }
            bytes += usable;
            const std::size_t rest = length == SQL_NO_TOTAL ? 0 : static_cast<std::size_t>(length) - usable;
            lstBuffer.resize(std::max(lstBuffer.size() * 2, bytes + rest + form.terminator));
        }
        Add(objRun, objRows, index, lstBuffer.data(), bytes);
    }

    StatementRun& objRun;
    ResultRows& objRows;
    std::vector<char> lstBuffer;
};

}  // namespace

ResultRows ReadRows(StatementRun& run)
{
    ResultRows rows;
    const auto count = static_cast<std::size_t>(run.ColumnCount());
    for (std::size_t i = 0; i < count; ++i) {
        rows.plans.push_back(Describe(run, i));
        rows.columns.emplace_back(rows.plans.back().storage);
    }

    const bool bounded =
        std::ranges::all_of(rows.plans, [](const ColumnPlan& plan) { return FormOf(plan).bytes > 0; });
    if (bounded) {
        RowBlock block(run, rows);
        while (block.Fetch()) {
        }
    } else {
        RowCells cells(run, rows);
        while (cells.Fetch()) {
        }
    }
    return rows;
}

}  // namespace kavelin::odbc
