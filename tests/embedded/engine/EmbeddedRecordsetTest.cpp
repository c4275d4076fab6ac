#include "embedded/engine/EmbeddedRecordset.h"

#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

namespace {

std::unique_ptr<Recordset> Open(EmbeddedConnection& connection, const std::string& sql, CursorType type)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, type, LockType::ReadOnly);
}

TEST(EmbeddedRecordset, GivesValuesByTheColumnsType)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute(
        "create table T (b bit, t tinyint, s smallint, i int, g bigint, m money, d decimal(38,6), "
        "e decimal(5,2), "
        "f float, dt datetime, c nvarchar(30))\r\n"
        "insert into T values (1, 255, -3, 7, 5000000000, -0.05, 12.5, 1.25, 1.5, "
        "'2008-07-31 14:30:00.123', N'直运')\r\n"
        "insert into T (i) values (null)");
    const auto rows = Open(*connection, "select * from T order by i desc", CursorType::Static);
    const char* types[] = {"bit",           "tinyint",      "smallint", "int",      "bigint",      "money",
                           "decimal(38,6)", "decimal(5,2)", "float",    "datetime", "nvarchar(30)"};
    ASSERT_EQ(rows->FieldCount(), 11);
    for (int field = 0; field < 11; ++field)
        EXPECT_EQ(rows->FieldType(field), types[field]);

    using namespace std::chrono;
    const DateTime date = sys_days(year(2008) / 7 / 31) + hours(14) + minutes(30) + milliseconds(123);
    const Value wanted[] = {Value(true),
                            Value(255),
                            Value(-3),
                            Value(7),
                            Value(std::int64_t{5'000'000'000}),
                            Value(Decimal(-500, 4)),
                            Value(Decimal(12'500'000, 6)),
                            Value(Decimal(125, 2)),
                            Value(1.5),
                            Value(date),
                            Value("直运")};
    for (int field = 0; field < 11; ++field)
        EXPECT_EQ(rows->Field(field), wanted[field]) << types[field];
    EXPECT_EQ(rows->Field("DT"), Value(date));
    EXPECT_EQ(rows->Field(5).As<Decimal>()->Scale(), 4);
    rows->MoveNext();
    for (int field = 0; field < 11; ++field)
        EXPECT_TRUE(rows->Field(field).IsNull()) << types[field];
}

TEST(EmbeddedRecordset, StandsOnItsFirstRowAndCanBeginAgainIfStatic)
{
    const TestAccount account;
    const auto connection = account.Connect();
    const auto rows = Open(*connection, "select 1 as a union select 2 order by a", CursorType::Static);
    EXPECT_EQ(rows->RecordCount(), 2);
    EXPECT_EQ(rows->Field("A"), Value(1));
    rows->MoveNext();
    EXPECT_EQ(rows->Field(0), Value(2));
    rows->MoveNext();
    EXPECT_TRUE(rows->Eof());
    EXPECT_THROW(rows->Field(0), Error);
    EXPECT_THROW(rows->MoveNext(), Error);
    rows->MoveFirst();
    EXPECT_EQ(rows->Field(0), Value(1));
    EXPECT_THROW(rows->Field(1), Error);
    EXPECT_THROW(rows->Field("b"), Error);

    const auto forward = Open(*connection, "select 1 as a", CursorType::ForwardOnly);
    EXPECT_EQ(forward->RecordCount(), -1);
    EXPECT_THROW(forward->MoveFirst(), Error);
}

TEST(EmbeddedRecordset, KeepsItsRowsWhileOtherStatementsRun)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int, b nvarchar(40))\r\ninsert into T values (1, 'x'), (2, 'y')");
    for (int i = 0; i < 12; ++i)
        connection->Execute("insert into T select a + 1, b + '.' from T");
    const auto rows = Open(*connection, "select a, b from T order by a, b", CursorType::Static);
    EXPECT_EQ(rows->RecordCount(), 8192);
    connection->Execute("update T set a = 0\r\ndrop table T");
    std::int64_t sum = 0;
    for (; !rows->Eof(); rows->MoveNext())
        sum += *rows->Field(0).As<std::int64_t>();
    // Each round adds every row once more, by one greater: 4096 * 3 at first, 12 times half of 8192.
    EXPECT_EQ(sum, 4096 * 3 + 12 * 4096);
    rows->MoveFirst();
    EXPECT_EQ(rows->Field(1), Value("x"));
}

TEST(EmbeddedRecordset, ClosesWithItsConnection)
{
    const TestAccount account;
    const auto connection = account.Connect();
    const auto rows = Open(*connection, "select 1 as a", CursorType::Static);
    const auto other = Open(*connection, "select 1 as a", CursorType::Static);
    other->Close();
    other->Close();
    EXPECT_THROW(other->Eof(), Error);
    connection->Close();
    EXPECT_THROW(rows->Field(0), Error);
    // The file is free although a record set is still held.
    EXPECT_NO_THROW(std::filesystem::remove(account.Path()));
}

}  // namespace

}  // namespace kavelin::embedded
