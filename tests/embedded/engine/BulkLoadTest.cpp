#include "embedded/engine/BulkLoad.h"

#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/TestAccount.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace kavelin::embedded {

namespace {

using Row = std::vector<Value>;

std::optional<BulkLoadError> ErrorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const BulkLoadError& error) {
        return error;
    }
    return std::nullopt;
}

class BulkLoadTest : public ::testing::Test {
  protected:
    BulkLoadTest() : objHandle(OpenAccount(objAccount.Path())), objConnection(objAccount.Connect())
    {
        objConnection->Execute(
            "create table T (n int identity(1,1), c nvarchar(5) not null, i tinyint, m money, "
            "d decimal(5,2), f float, "
            "dt datetime, b bit not null default (1))\r\n"
            "create table VosSystem..P (cAcc_ID nvarchar(10), iYear smallint)");
    }

    std::string Rows(const std::string& sql) { return ShowRows(*objConnection, sql); }

    TestAccount objAccount;
    std::shared_ptr<EmbeddedAccount> objHandle;
    std::unique_ptr<EmbeddedConnection> objConnection;
};

TEST_F(BulkLoadTest, LoadsSeveralTablesAndNumbersAndDefaults)
{
    BulkLoad load(*objHandle);
    BulkTable* table = &load.Open("t", {"I", "c"});
    table->Append(Row{Value(7), Value("a")});
    table->Append(Row{Value::Null(), Value("b")});
    table = &load.Open("vossystem..P", {"cAcc_ID", "iYear"});
    table->Append(Row{Value("001"), Value(2008)});
    table = &load.Open("T", {"n", "c", "b"});
    table->Append(Row{Value(10), Value("c"), Value(false)});
    EXPECT_EQ(Rows("select count(*) from T"), "0\n");
    load.Commit();

    EXPECT_EQ(Rows("select n, c, i, b from T order by n"),
              "1 | a | 7 | 1\n2 | b | NULL | 1\n10 | c | NULL | 0\n");
    EXPECT_EQ(Rows("select cAcc_ID, iYear from vossystem..P"), "001 | 2008\n");
    objConnection->Execute("insert into T (c) values ('d')");
    EXPECT_EQ(Rows("select max(n) from T"), "11\n");
}

TEST_F(BulkLoadTest, FillsSeveralTablesBesideOneAnother)
{
    objConnection->Execute("create table L (n int, c nvarchar(5))");
    BulkLoad load(*objHandle);
    BulkTable& heads = load.Open("T", {"c"});
    BulkTable& lines = load.Open("L", {"n", "c"});
    for (int i = 1; i <= 5000; ++i) {
        if (i % 5 == 1)
            heads.Append(Row{Value(std::to_string(i))});
        lines.Append(Row{Value(i), Value(std::to_string(i))});
    }
    load.Commit();
    EXPECT_EQ(Rows("select count(*), max(n) from L"), "5000 | 5000\n");
    EXPECT_EQ(Rows("select count(*), max(n) from T"), "1000 | 1000\n");
    EXPECT_EQ(Rows("select T.n, T.c from T inner join L on L.c = T.c where L.n = 4991"), "999 | 4991\n");
}

TEST_F(BulkLoadTest, LeavesNothingWithoutCommit)
{
    {
        BulkLoad load(*objHandle);
        BulkTable* table = &load.Open("T", {"c"});
        table->Append(Row{Value("a")});
        table = &load.Open("VosSystem..P", {"iYear"});
        table->Append(Row{Value(2008)});
    }
    EXPECT_EQ(Rows("select count(*) from T"), "0\n");
    EXPECT_EQ(Rows("select count(*) from vossystem..P"), "0\n");
}

TEST_F(BulkLoadTest, TakesTextsForEveryType)
{
    BulkLoad load(*objHandle);
    BulkTable* table = &load.Open("T", {"c", "i", "m", "d", "f", "dt", "b"});
    table->Append(Row{Value("a"), Value("255"), Value("-0.00005"), Value("1.255"), Value("1e3"),
                      Value("2008-7-31 14:30"), Value("0")});
    table->Append(Row{Value(12), Value(true), Value(1.5), Value(Decimal(-1005, 3)), Value(Decimal(25, 1)),
                      Value(DateTime(std::chrono::sys_days(std::chrono::year(2008) / 7 / 1))),
                      Value("True")});
    table->Append(Row{Value("abcde  "), Value(), Value(std::int64_t{3}), Value(2.125), Value(3),
                      Value::Null(), Value(2)});
    load.Commit();
    EXPECT_EQ(Rows("select c, i, m, d, f, dt, b from T order by n"),
              "a | 255 | -0.0001 | 1.26 | 1000 | 2008-07-31 14:30:00 | 0\n"
              "12 | 1 | 1.5000 | -1.01 | 2.5 | 2008-07-01 | 1\n"
              "abcde | NULL | 3.0000 | 2.13 | 3 | NULL | 1\n");
}

TEST_F(BulkLoadTest, NamesTableColumnAndRowOfAValueThatDoesNotFit)
{
    const struct {
        const char* column;
        Value value;
        int number;
    } cases[] = {
        {"c", Value("abcdef"), 8152},  {"c", Value("直运直运直运"), 8152},
        {"c", Value::Null(), 515},     {"c", Value("\xff"), 245},
        {"i", Value(256), 8115},       {"i", Value(-1), 8115},
        {"i", Value("x"), 245},        {"i", Value(1.5), 245},
        {"m", Value("x"), 235},        {"d", Value(1000), 8115},
        {"d", Value("999.995"), 8115}, {"d", Value(1e30), 8115},
        {"f", Value("x"), 8114},       {"dt", Value("x"), 241},
        {"dt", Value(5), 245},         {"dt", Value("1700-01-01"), 242},
    };
    for (const auto& c : cases) {
        BulkLoad load(*objHandle);
        const bool first = std::string(c.column) == "c";
        BulkTable* table = first ? &load.Open("T", {"c"}) : &load.Open("T", {"c", c.column});
        const Row good = first ? Row{Value("a")} : Row{Value("a"), Value::Null()};
        const Row bad = first ? Row{c.value} : Row{Value("a"), c.value};
        table->Append(good);
        const auto error = ErrorOf([&] { table->Append(bad); });
        ASSERT_TRUE(error) << c.column << c.number;
        EXPECT_EQ(error->Table(), "T");
        EXPECT_EQ(error->Column(), c.column);
        EXPECT_EQ(error->Row(), 2);
        EXPECT_EQ(error->Get().lngNumber, c.number) << error->what();
        EXPECT_NE(std::string(error->what()).find(std::string("Table T, row 2, column ") + c.column + ": "),
                  std::string::npos);
    }
    EXPECT_EQ(Rows("select count(*) from T"), "0\n");
}

TEST_F(BulkLoadTest, RefusesUnknownTablesAndColumnsAndRowsOfAnotherLength)
{
    BulkLoad load(*objHandle);
    EXPECT_THROW(load.Open("missing", {"a"}), DatabaseError);
    EXPECT_THROW(load.Open("T", {"c", "missing"}), DatabaseError);
    BulkTable* table = &load.Open("T", {"c"});
    const auto error = ErrorOf([&] { table->Append(Row{Value("a"), Value("b")}); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Get().lngNumber, 213);
}

TEST_F(BulkLoadTest, FindsAKeyThatComesTwice)
{
    objConnection->Execute("create table K (k int primary key)");
    BulkLoad load(*objHandle);
    BulkTable* table = &load.Open("K", {"k"});
    table->Append(Row{Value(1)});
    table->Append(Row{Value(1)});
    try {
        load.Commit();
        ADD_FAILURE();
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Get().lngNumber, 2627) << error.what();
    }
    EXPECT_EQ(Rows("select count(*) from K"), "0\n");
}

TEST_F(BulkLoadTest, LearnsWhatTheTextsAreLike)
{
    objConnection->Execute(
        "create table F (a nvarchar(9), b nvarchar(9), c nvarchar(9), d nvarchar(9), e nvarchar(9))");
    BulkLoad load(*objHandle);
    BulkTable* table = &load.Open("F", {"a", "b", "c", "d", "e"});
    table->Append(Row{Value("A1"), Value("a1"), Value("A1 "), Value("直运A"), Value("É")});
    table->Append(Row{Value("B-2"), Value("B2"), Value("B2"), Value::Null(), Value("")});
    load.Commit();
    const std::vector<ObjectInfo> objects = objHandle->Objects(Database::Account);
    const TextFacts wanted[] = {{true, true}, {true, false}, {false, true}, {true, true}, {true, false}};
    ASSERT_EQ(objects.front().name, "F");
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(objects.front().columns[i].facts, wanted[i]) << objects.front().columns[i].name;
    EXPECT_EQ(Rows("select count(*) from F where a = 'a1' and b = 'A1' and c = 'a1' and d = N'直运a'"),
              "1\n");
}

// What was learned of the first table was lost when a second one followed in the same load.
TEST_F(BulkLoadTest, LearnsWhatTheTextsOfEveryTableAreLike)
{
    objConnection->Execute("create table F (a nvarchar(9))\r\ncreate table G (a nvarchar(9))");
    {
        BulkLoad load(*objHandle);
        BulkTable* table = &load.Open("F", {"a"});
        table->Append(Row{Value("5.5kW ")});
        table = &load.Open("G", {"a"});
        table->Append(Row{Value("A1")});
        load.Commit();
    }
    for (const ObjectInfo& object : objHandle->Objects(Database::Account)) {
        if (object.name == "F" || object.name == "G") {
            const TextFacts wanted = object.name == "F" ? TextFacts{} : TextFacts{true, true};
            EXPECT_EQ(object.columns[0].facts, wanted) << object.name;
        }
    }
    EXPECT_EQ(Rows("select count(*) from F where a = '5.5KW'"), "1\n");
}

TEST_F(BulkLoadTest, LoadsMoreRowsThanOneChunkHolds)
{
    objConnection->Execute("create table tempdb..L (n int, c nvarchar(20))");
    BulkLoad load(*objHandle);
    BulkTable* table = &load.Open("tempdb..L", {"n", "c"});
    for (int i = 1; i <= 10000; ++i)
        table->Append(Row{Value(i), i % 3 == 0 ? Value::Null() : Value("text number " + std::to_string(i))});
    load.Commit();
    // Of 1 to 10,000 there are 3,333 that 3 divides.
    EXPECT_EQ(Rows("select count(*), sum(n), count(c) from tempdb..L"), "10000 | 50005000 | 6667\n");
    EXPECT_EQ(Rows("select c from tempdb..L where n = 9998"), "text number 9998\n");
}

}  // namespace

}  // namespace kavelin::embedded
