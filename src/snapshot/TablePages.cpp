#include "snapshot/TablePages.h"

#include "frame/Statement.h"
#include "snapshot/Literal.h"

#include <utility>

namespace kavelin::snapshot {

namespace {

// " where a and b" of those that are not empty.
std::string Where(std::initializer_list<std::string> conditions)
{
    std::string where;
    for (const std::string& condition : conditions)
        if (!condition.empty())
            where += (where.empty() ? " where " : " and ") + condition;
    return where;
}

std::string InBrackets(const std::string& condition)
{
    return condition.empty() ? "" : "(" + condition + ")";
}

std::string Compared(const PagedTable& table, const char* with, const Value& value)
{
    return value.IsNull() ? "" : table.pageColumn + with + Literal(value);
}

}  // namespace

std::string SelectPageEnd(const PagedTable& table, const Value& after, std::int64_t rows)
{
    const std::string where = Where({InBrackets(table.condition), Compared(table, " > ", after),
                                     after.IsNull() ? table.pageColumn + " is not null" : ""});
    return JoinLines({
        "select max(page.pageKey)",
        "  from (select top " + std::to_string(rows) + " " + table.pageColumn + " as pageKey",
        "          from " + table.name + where,
        "         order by " + table.pageColumn + ") page",
    });
}

std::string SelectPage(const PagedTable& table, const Value& after, const Value& end)
{
    std::string columns;
    for (const std::string& column : table.columns)
        columns += (columns.empty() ? "" : ", ") + column;
    const std::string where = end.IsNull()
                                  ? Where({InBrackets(table.condition), table.pageColumn + " is null"})
                                  : Where({InBrackets(table.condition), Compared(table, " > ", after),
                                           Compared(table, " <= ", end)});
    return JoinLines({
        "select " + columns,
        "  from " + table.name + where,
    });
}

TablePages::TablePages(Connection& connection, PagedTable table, std::int64_t rows)
    : cnnSource(connection), objTable(std::move(table)), lngRows(rows)
{
}

std::unique_ptr<Recordset> TablePages::Open(const std::string& sql)
{
    return cnnSource.OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

std::unique_ptr<Recordset> TablePages::Next()
{
    if (!std::exchange(blnBegun, true))
        return Open(SelectPage(objTable, Value::Null(), Value::Null()));
    const Value end = Open(SelectPageEnd(objTable, varAfter, lngRows))->Field(0);
    if (end.IsNull())
        return nullptr;
    auto page = Open(SelectPage(objTable, varAfter, end));
    varAfter = end;
    return page;
}

}  // namespace kavelin::snapshot
