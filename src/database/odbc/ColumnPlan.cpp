#include "database/odbc/ColumnPlan.h"

#include "frame/Text.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <string_view>

namespace kavelin::odbc {

namespace {

// Types that only the drivers for an SQL Server have.
constexpr int kVariantCode = -150, kXmlCode = -152, kTimeCode = -154, kDateTimeOffsetCode = -155;

enum class Shape {
    Bare,       // int
    Length,     // nvarchar(60), nvarchar(max)
    Precision,  // decimal(38,2)
    Fraction,   // datetime2(3)
};

struct TypeRow {
    std::string_view name;
    Storage storage;
    Shape shape;
    std::size_t longest = 0;  // where the type itself bounds its text or bytes
};

constexpr std::size_t kGuidText = 36, kTimeText = 16, kOffsetText = 34, kRowVersionBytes = 8;

constexpr TypeRow kTypes[] = {
    {"bit", Storage::Bit, Shape::Bare},
    {"tinyint", Storage::Integer, Shape::Bare},
    {"smallint", Storage::Integer, Shape::Bare},
    {"int", Storage::Integer, Shape::Bare},
    {"bigint", Storage::Integer, Shape::Bare},
    {"real", Storage::Real, Shape::Bare},
    {"float", Storage::Real, Shape::Bare},
    {"decimal", Storage::Decimal, Shape::Precision},
    {"numeric", Storage::Decimal, Shape::Precision},
    {"money", Storage::Decimal, Shape::Bare},
    {"smallmoney", Storage::Decimal, Shape::Bare},
    {"date", Storage::Date, Shape::Bare},
    {"datetime", Storage::Date, Shape::Bare},
    {"smalldatetime", Storage::Date, Shape::Bare},
    {"datetime2", Storage::Date, Shape::Fraction},
    {"time", Storage::Text, Shape::Fraction, kTimeText},
    {"datetimeoffset", Storage::Text, Shape::Fraction, kOffsetText},
    {"char", Storage::Text, Shape::Length},
    {"varchar", Storage::Text, Shape::Length},
    {"nchar", Storage::Text, Shape::Length},
    {"nvarchar", Storage::Text, Shape::Length},
    {"text", Storage::Text, Shape::Bare},
    {"ntext", Storage::Text, Shape::Bare},
    {"xml", Storage::Text, Shape::Bare},
    {"sql_variant", Storage::Text, Shape::Bare},
    {"uniqueidentifier", Storage::Text, Shape::Bare, kGuidText},
    {"binary", Storage::Binary, Shape::Length},
    {"varbinary", Storage::Binary, Shape::Length},
    {"image", Storage::Binary, Shape::Bare},
    {"timestamp", Storage::Binary, Shape::Bare, kRowVersionBytes},
};

struct CodeRow {
    int code;
    std::string_view name;  // in kTypes
};

constexpr CodeRow kCodes[] = {
    {SQL_BIT, "bit"},
    {SQL_TINYINT, "tinyint"},
    {SQL_SMALLINT, "smallint"},
    {SQL_INTEGER, "int"},
    {SQL_BIGINT, "bigint"},
    {SQL_REAL, "real"},
    {SQL_FLOAT, "float"},
    {SQL_DOUBLE, "float"},
    {SQL_NUMERIC, "decimal"},
    {SQL_DECIMAL, "decimal"},
    {SQL_TYPE_DATE, "date"},
    {SQL_DATE, "date"},
    {SQL_TYPE_TIMESTAMP, "datetime"},
    {SQL_TIMESTAMP, "datetime"},
    {SQL_TYPE_TIME, "time"},
    {SQL_TIME, "time"},
    {kTimeCode, "time"},
    {kDateTimeOffsetCode, "datetimeoffset"},
    {SQL_CHAR, "char"},
    {SQL_VARCHAR, "varchar"},
    {SQL_LONGVARCHAR, "text"},
    {SQL_WCHAR, "nchar"},
    {SQL_WVARCHAR, "nvarchar"},
    {SQL_WLONGVARCHAR, "ntext"},
    {SQL_GUID, "uniqueidentifier"},
    {SQL_BINARY, "binary"},
    {SQL_VARBINARY, "varbinary"},
    {SQL_LONGVARBINARY, "image"},
    {kVariantCode, "sql_variant"},
    {kXmlCode, "xml"},
};

const TypeRow* RowNamed(std::string_view name)
{
    for (const TypeRow& row : kTypes)
        if (EqualsNoCase(row.name, name))
            return &row;
    return nullptr;
}

const TypeRow& RowOf(const DescribedColumn& column, const ServerFacts& server)
{
    if (server.isSqlServer) {
        // "int identity", "decimal() identity" of a driver; the bare word is the type.
        const std::string_view word =
            std::string_view(column.typeName).substr(0, column.typeName.find_first_of(" ("));
        if (const TypeRow* row = RowNamed(word))
            return *row;
    }
    for (const CodeRow& row : kCodes)
        if (row.code == column.sqlType)
            return *RowNamed(row.name);
    // Whatever it is, a driver can write it as text.
    return *RowNamed("ntext");
}

// Servers tell of `max` by a length of 0 or by one that no column can have.
bool IsUnlimited(const DescribedColumn& column, const TypeRow& row)
{
    constexpr std::size_t kMostWide = 4000, kMost = 8000;
    return column.size == 0 || column.size > (row.name.starts_with('n') ? kMostWide : kMost);
}

}  // namespace

ColumnPlan PlanFor(const DescribedColumn& column, const ServerFacts& server)
{
    const TypeRow& row = RowOf(column, server);
    ColumnPlan plan;
    plan.name = column.name;
    plan.type = row.name;
    plan.storage = row.storage;
    plan.longest = row.longest;
    switch (row.shape) {
        case Shape::Bare: break;
        case Shape::Length: {
            const bool unlimited = IsUnlimited(column, row);
            plan.type += unlimited ? "(max)" : "(" + std::to_string(column.size) + ")";
            plan.longest = unlimited ? 0 : column.size;
            break;
        }
        case Shape::Precision:
            plan.type += "(" + std::to_string(column.size) + "," + std::to_string(column.digits) + ")";
            break;
        case Shape::Fraction: plan.type += "(" + std::to_string(column.digits) + ")"; break;
    }
    if (!server.isSqlServer)
        plan.longest = 0;
    return plan;
}

}  // namespace kavelin::odbc
