#include "database/odbc/ColumnPlan.h"

#include <gtest/gtest.h>

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace kavelin::odbc {
namespace {

TEST(PlanFor, GivesTransactSqlsNameOfAnSqlServersType)
{
    const struct {
        DescribedColumn column;
        std::string_view type;
        Storage storage;
        std::size_t longest;
    } cases[] = {
        {{"c", SQL_BIT, "bit", 1, 0}, "bit", Storage::Bit, 0},
        {{"c", SQL_TINYINT, "tinyint", 3, 0}, "tinyint", Storage::Integer, 0},
        {{"c", SQL_INTEGER, "int identity", 10, 0}, "int", Storage::Integer, 0},
        {{"c", SQL_DECIMAL, "money", 19, 4}, "money", Storage::Decimal, 0},
        {{"c", SQL_NUMERIC, "numeric", 38, 2}, "numeric(38,2)", Storage::Decimal, 0},
        {{"c", SQL_DECIMAL, "decimal() identity", 18, 0}, "decimal(18,0)", Storage::Decimal, 0},
        {{"c", SQL_FLOAT, "float", 53, 0}, "float", Storage::Real, 0},
        {{"c", SQL_TYPE_TIMESTAMP, "datetime", 23, 3}, "datetime", Storage::Date, 0},
        {{"c", SQL_TYPE_TIMESTAMP, "smalldatetime", 16, 0}, "smalldatetime", Storage::Date, 0},
        {{"c", SQL_TYPE_TIMESTAMP, "datetime2", 27, 7}, "datetime2(7)", Storage::Date, 0},
        {{"c", SQL_WVARCHAR, "nvarchar", 60, 0}, "nvarchar(60)", Storage::Text, 60},
        {{"c", SQL_WVARCHAR, "nvarchar", 4000, 0}, "nvarchar(4000)", Storage::Text, 4000},
        {{"c", SQL_WVARCHAR, "nvarchar", 0, 0}, "nvarchar(max)", Storage::Text, 0},
        {{"c", SQL_WLONGVARCHAR, "nvarchar", 1073741823, 0}, "nvarchar(max)", Storage::Text, 0},
        {{"c", SQL_VARCHAR, "varchar", 8000, 0}, "varchar(8000)", Storage::Text, 8000},
        {{"c", SQL_WLONGVARCHAR, "ntext", 1073741823, 0}, "ntext", Storage::Text, 0},
        {{"c", SQL_GUID, "uniqueidentifier", 36, 0}, "uniqueidentifier", Storage::Text, 36},
        {{"c", SQL_VARBINARY, "varbinary", 16, 0}, "varbinary(16)", Storage::Binary, 16},
        {{"c", SQL_BINARY, "timestamp", 8, 0}, "timestamp", Storage::Binary, 8},
        {{"c", -150, "sql_variant", 8000, 0}, "sql_variant", Storage::Text, 0},
        {{"c", SQL_WVARCHAR, "OwnType", 20, 0}, "nvarchar(20)", Storage::Text, 20},
    };
    for (const auto& c : cases) {
        const ColumnPlan plan = PlanFor(c.column, {true});
        EXPECT_EQ(plan.type, c.type);
        EXPECT_EQ(plan.storage, c.storage) << c.type;
        EXPECT_EQ(plan.longest, c.longest) << c.type;
        EXPECT_EQ(plan.name, "c");
    }
}

TEST(PlanFor, GoesByOdbcsCodeOnAnyOtherServerAndTrustsNoLength)
{
    const struct {
        DescribedColumn column;
        std::string_view type;
        Storage storage;
    } cases[] = {
        {{"c", SQL_INTEGER, "int4", 10, 0}, "int", Storage::Integer},
        {{"c", SQL_DOUBLE, "float8", 15, 0}, "float", Storage::Real},
        {{"c", SQL_NUMERIC, "numeric", 12, 3}, "decimal(12,3)", Storage::Decimal},
        {{"c", SQL_TYPE_TIMESTAMP, "timestamp", 26, 6}, "datetime", Storage::Date},
        {{"c", SQL_WVARCHAR, "varchar", 60, 0}, "nvarchar(60)", Storage::Text},
        {{"c", SQL_WLONGVARCHAR, "text", 8190, 0}, "ntext", Storage::Text},
        {{"c", 9999, "odd", 4, 0}, "ntext", Storage::Text},
    };
    for (const auto& c : cases) {
        const ColumnPlan plan = PlanFor(c.column, {false});
        EXPECT_EQ(plan.type, c.type);
        EXPECT_EQ(plan.storage, c.storage) << c.type;
        EXPECT_EQ(plan.longest, 0u) << c.type;
    }
}

}  // namespace
}  // namespace kavelin::odbc
