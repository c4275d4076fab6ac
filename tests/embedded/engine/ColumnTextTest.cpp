#include "embedded/engine/ColumnText.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

namespace {

ColumnInfo Column(const std::string& name, SqlType type)
{
    ColumnInfo column;
    column.name = name;
    column.type = type;
    return column;
}

TEST(ColumnText, GivesBackWhatWasWritten)
{
    std::vector<ColumnInfo> columns = {
        Column("AutoID", {TypeKind::Int, 0, 0, 0}),
        Column("资金|占用\\额\n", {TypeKind::Decimal, 0, 38, 6}),
        Column("cInvCode", {TypeKind::Nvarchar, 20, 0, 0}),
        Column("memo", {TypeKind::Nvarchar, kMaxLength, 0, 0}),
        Column("leer", {TypeKind::Varchar, 1, 0, 0}),
    };
    columns[0].nullable = false;
    columns[0].identity = true;
    columns[1].defaultSql = "CAST(0.5 AS DECIMAL(38,6))";
    columns[2].facts = {true, true};
    columns[3].facts = {true, false};
    columns[4].defaultSql = "";

    const auto read = ReadColumns(WriteColumns(columns));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const ColumnInfo& a = columns[i];
        const ColumnInfo& b = (*read)[i];
        EXPECT_EQ(a.name, b.name);
        EXPECT_EQ(a.type, b.type) << a.name;
        EXPECT_EQ(a.nullable, b.nullable) << a.name;
        EXPECT_EQ(a.identity, b.identity) << a.name;
        EXPECT_EQ(a.facts, b.facts) << a.name;
        EXPECT_EQ(a.defaultSql, b.defaultSql) << a.name;
    }
}

TEST(ColumnText, HasOneReadableLineAColumn)
{
    ColumnInfo column = Column("cInvCode", {TypeKind::Nvarchar, 20, 0, 0});
    column.nullable = false;
    column.facts = {true, true};
    column.defaultSql = "'x'";
    EXPECT_EQ(WriteColumns({column, Column("f", {TypeKind::Float, 0, 0, 0})}),
              "kavelin 1\ncInvCode|nvarchar(20)|nbc|='x'\nf|float||");
}

TEST(ColumnText, RefusesWhatItDidNotWrite)
{
    for (const char* text : {"", "a comment", "kavelin 2\na|int||", "kavelin 1\na|int", "kavelin 1\na|blob||",
                             "kavelin 1\na|int(4)||", "kavelin 1\na|nvarchar||", "kavelin 1\na|decimal(5)||",
                             "kavelin 1\na|nvarchar(x)||"})
        EXPECT_FALSE(ReadColumns(text)) << text;
}

}  // namespace

}  // namespace kavelin::embedded
