#include "embedded/write/Build.h"
#include "embedded/write/Duck.h"
#include "embedded/write/DuckErrors.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

using namespace build;

namespace {

const SqlType kText = Nvarchar(10);

ObjectInfo NewTable(const std::string& name, std::vector<ColumnInfo> columns)
{
    return {Database::Account, ObjectKind::Table, name, "\"" + name + "\"", std::move(columns)};
}

ColumnInfo Of(const std::string& name, const SqlType& type)
{
    ColumnInfo column;
    column.name = name;
    column.type = type;
    return column;
}

void MakeLedger(Duck& duck)
{
    duck.Run("CREATE TABLE t (k VARCHAR, n INTEGER, m DECIMAL(19,4))");
    duck.Run("INSERT INTO t VALUES ('b', 3, 1.5), ('a', 1, 2.5), ('c', 2, 4)");
}

BoundSelect FromLedger(int number = 1)
{
    BoundSelect select = From(TableNamed("t", number));
    Item(select, "k", Column("k", kText, {}, number));
    Item(select, "n", Column("n", kInt, {}, number));
    return select;
}

}  // namespace

TEST(WriteStatements, S1GivesRowsWithTheirColumns)
{
    BoundRows rows{QueryOf(FromLedger()), {{"k", kText}, {"n", kInt}}};
    const StatementPlan plan = Write(std::move(rows));
    ASSERT_TRUE(plan.rows);
    EXPECT_EQ(plan.rows->size(), 2U);
    EXPECT_FALSE(plan.countsRows);
    EXPECT_TRUE(plan.changes.empty());
    EXPECT_EQ(plan.steps,
              std::vector<std::string>{R"(SELECT "s1"."k" AS "k", "s1"."n" AS "n" FROM "t" AS "s1")"});
}

TEST(WriteStatements, S2MakesTheTableWithItsTypesAndThenItsRows)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect select = FromLedger();
    Item(select, "half", Literal("0.5", Decimal(1, 1)));
    Item(select, "nothing", Null());
    Item(select, "tiny", Convert(Number(7), kTinyint, ConversionKind::Explicit));
    const StatementPlan plan =
        Write(BoundSelectInto{NewTable("w", {Of("k", kText), Of("n", kInt), Of("half", Decimal(1, 1)),
                                             Of("nothing", kInt), Of("tiny", kTinyint)}),
                              OrderedBy(QueryOf(std::move(select)), 1)});
    EXPECT_TRUE(plan.countsRows);
    EXPECT_EQ(plan.steps.at(0), R"(CREATE TABLE "w" ("k" VARCHAR, "n" INTEGER, "half" DECIMAL(1,1),)"
                                R"( "nothing" INTEGER, "tiny" UTINYINT))");
    EXPECT_EQ(duck.Run(plan), "3");
    EXPECT_EQ(duck.Run("SELECT * FROM w"), "a|1|.5|NULL|7;c|2|.5|NULL|7;b|3|.5|NULL|7");
    ASSERT_EQ(plan.changes.size(), 1U);
    EXPECT_EQ(std::get<TableMade>(plan.changes[0]).object.columns.size(), 5U);
}

TEST(WriteStatements, S4AndS6MakeAnEmptyTableOfTheConnection)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect select = FromLedger();
    select.top = 0;
    ObjectInfo made = NewTable("#w", {Of("k", kText), Of("n", kInt)});
    made.database = Database::Connection;
    const StatementPlan plan = Write(BoundSelectInto{std::move(made), QueryOf(std::move(select))});
    EXPECT_EQ(plan.steps.at(0), R"(CREATE TEMP TABLE "#w" ("k" VARCHAR, "n" INTEGER))");
    EXPECT_EQ(duck.Run(plan), "0");
    EXPECT_EQ(duck.Run("SELECT count(*) FROM \"#w\""), "0");
}

TEST(WriteStatements, S7NumbersTheRowsOfASelectIntoByItsOrder)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect select = From(TableNamed("t"));
    Item(select, "cNo", Expression(BoundIdentity{}, kInt, false));
    Item(select, "k", Column("k", kText));
    const StatementPlan plan =
        Write(BoundSelectInto{NewTable("w", {Of("cNo", kInt), Of("k", kText)}),
                              OrderedBy(QueryOf(std::move(select)), Column("m", kMoney), true)});
    EXPECT_EQ(duck.Run(plan), "3");
    EXPECT_EQ(duck.Run("SELECT * FROM w"), "1|c;2|a;3|b");
}

TEST(WriteStatements, NumbersTheRowsOfADistinctAfterIt)
{
    Duck duck;
    duck.Run("CREATE TABLE t (k VARCHAR)");
    duck.Run("INSERT INTO t VALUES ('b'), ('B '), ('a')");
    BoundSelect select = From(TableNamed("t"));
    select.distinct = true;
    Item(select, "no", Expression(BoundIdentity{10, 5}, kInt, false));
    Item(select, "k", Column("k", kText));
    EXPECT_EQ(duck.Run(Write(BoundSelectInto{NewTable("w", {Of("no", kInt), Of("k", kText)}),
                                             OrderedBy(QueryOf(std::move(select)), 1)})),
              "2");
    EXPECT_EQ(duck.Run("SELECT * FROM w"), "10|a;15|B ");
}

TEST(WriteStatements, T31NumbersInsertedRowsOnFromTheHighest)
{
    Duck duck;
    MakeLedger(duck);
    duck.Run("CREATE TABLE w (ino INTEGER, k VARCHAR)");
    const auto insert = [] {
        BoundSelect select = From(TableNamed("t"));
        Item(select, "x", Column("k", kText));
        BoundInsert statement{"\"w\"", {"k"}, "ino", OrderedBy(QueryOf(std::move(select)), 0), {}, {}};
        return Write(std::move(statement));
    };
    EXPECT_EQ(duck.Run(insert()), "3");
    EXPECT_EQ(duck.Run(insert()), "3");
    EXPECT_EQ(duck.Run("SELECT * FROM w"), "1|a;2|b;3|c;4|a;5|b;6|c");

    BoundInsert values{"\"w\"", {"k"}, "ino", nullptr, {}, {}};
    for (const char* text : {"x", "y"}) {
        values.values.emplace_back();
        values.values.back().push_back(Text(text));
    }
    EXPECT_EQ(duck.Run(Write(std::move(values))), "2");
    EXPECT_EQ(duck.Run("SELECT * FROM w WHERE ino > 6"), "7|x;8|y");
}

TEST(WriteStatements, NumbersTheFirstRowsOnlyWhereTheInsertTakesATop)
{
    Duck duck;
    MakeLedger(duck);
    duck.Run("CREATE TABLE w (ino INTEGER, k VARCHAR)");
    BoundSelect select = From(TableNamed("t"));
    select.top = 2;
    Item(select, "x", Column("k", kText));
    EXPECT_EQ(duck.Run(Write(BoundInsert{
                  "\"w\"", {"k"}, "ino", OrderedBy(QueryOf(std::move(select)), 0, true), {}, {}})),
              "2");
    EXPECT_EQ(duck.Run("SELECT * FROM w"), "1|c;2|b");
}

TEST(WriteStatements, S12InsertsIntoATableFromItself)
{
    Duck duck;
    MakeLedger(duck);
    BoundInsert statement{"\"t\"", {"k", "n"}, {}, QueryOf(FromLedger()), {}, {}};
    statement.weakened = NewTable("t", {Of("k", kText)});
    const StatementPlan plan = Write(std::move(statement));
    EXPECT_EQ(plan.steps.at(0),
              R"(INSERT INTO "t" ("k", "n") SELECT "s1"."k" AS "c0", "s1"."n" AS "c1" FROM "t" AS "s1")");
    EXPECT_EQ(duck.Run(plan), "3");
    EXPECT_EQ(duck.Run("SELECT count(*), count(m) FROM t"), "6|3");
    EXPECT_EQ(std::get<ColumnsChanged>(plan.changes.at(0)).name, "t");
}

TEST(WriteStatements, InsertsSeveralRowsOfValues)
{
    Duck duck;
    MakeLedger(duck);
    BoundInsert statement{"\"t\"", {"k", "m"}, {}, nullptr, {}, {}};
    for (const char* text : {"it's", "y"}) {
        statement.values.emplace_back();
        statement.values.back().push_back(Text(text));
        statement.values.back().push_back(Null(kMoney));
    }
    EXPECT_EQ(duck.Run(Write(std::move(statement))), "2");
    EXPECT_EQ(duck.Run("SELECT * FROM t WHERE n IS NULL"), "it's|NULL|NULL;y|NULL|NULL");
}

TEST(WriteStatements, S17UpdatesOneTableInPlaceFromItsOldValues)
{
    Duck duck;
    MakeLedger(duck);
    BoundUpdate statement{
        .duckName = "\"t\"", .target = 1, .assignments = {}, .from = {}, .where = nullptr, .weakened = {}};
    statement.from.push_back(TableNamed("t"));
    statement.assignments.push_back({"n", Convert(Column("m", kMoney), kInt)});
    statement.assignments.push_back({"m", Convert(Column("n", kInt), kMoney)});
    statement.where = Equal(Column("k", kText), Text("A"));
    const StatementPlan plan = Write(std::move(statement));
    EXPECT_EQ(plan.steps.at(0).substr(0, 24), R"(UPDATE "t" AS "s1" SET ")");
    EXPECT_EQ(duck.Run(plan), "1");
    EXPECT_EQ(duck.Run("SELECT * FROM t WHERE k = 'a'"), "a|3|1.0000");
}

TEST(WriteStatements, S22UpdatesWithSubqueriesOnTheTargetItself)
{
    Duck duck;
    MakeLedger(duck);
    // update t set m = 100 - (select sum(m) from t where k <> 'c') where k = 'c'
    BoundSelect rest = From(TableNamed("t", 2));
    rest.grouped = true;
    rest.where = Compare(Column("k", kText, {}, 2), ComparisonOp::NotEqual, Text("c"));
    Item(rest, "", Aggregate(AggregateKind::Sum, Column("m", kMoney, {}, 2), kMoney));
    BoundUpdate statement{
        .duckName = "\"t\"", .target = 1, .assignments = {}, .from = {}, .where = nullptr, .weakened = {}};
    statement.from.push_back(TableNamed("t"));
    statement.assignments.push_back(
        {"m", Compute(Convert(Number(100), kMoney), ArithmeticOp::Subtract,
                      Expression(BoundScalarSubquery{QueryOf(std::move(rest))}, kMoney), kMoney)});
    statement.where = Equal(Column("k", kText), Text("c"));
    EXPECT_EQ(duck.Run(Write(std::move(statement))), "1");
    EXPECT_EQ(duck.Run("SELECT m FROM t WHERE k = 'c'"), "96.0000");
}

TEST(WriteStatements, S18UpdatesFromAJoinAndLeavesWhatItDoesNotFind)
{
    const auto update = [](JoinKind kind) {
        BoundUpdate statement{.duckName = "\"t\"",
                              .target = 1,
                              .assignments = {},
                              .from = {},
                              .where = nullptr,
                              .weakened = {}};
        statement.from.push_back(Joined(kind, TableNamed("t"), TableNamed("u", 2),
                                        Equal(Column("k", kText), Column("k", kText, {}, 2))));
        statement.assignments.push_back({"n", Column("v", kInt, {}, 2)});
        return Write(std::move(statement));
    };
    for (const auto& [kind, expected] :
         {std::pair(JoinKind::Inner, "a|7;b|3;c|2"), {JoinKind::Left, "a|7;b|NULL;c|NULL"}}) {
        Duck duck;
        MakeLedger(duck);
        duck.Run("CREATE TABLE u (k VARCHAR, v INTEGER)");
        duck.Run("INSERT INTO u VALUES ('A ', 7), ('a', 7)");
        EXPECT_EQ(duck.Run(update(kind)), kind == JoinKind::Inner ? "1" : "3");  // T33: a is found twice
        EXPECT_EQ(duck.Run("SELECT k, n FROM t ORDER BY k"), expected);
    }
}

TEST(WriteStatements, S24AndS26Delete)
{
    Duck duck;
    MakeLedger(duck);
    duck.Run("CREATE TABLE u (k VARCHAR)");
    duck.Run("INSERT INTO u VALUES ('A'), ('a')");
    BoundDelete joined{.duckName = "\"t\"", .target = 1, .from = {}, .where = nullptr};
    joined.from.push_back(Joined(JoinKind::Inner, TableNamed("t"), TableNamed("u", 2),
                                 Equal(Column("k", kText), Column("k", kText, {}, 2))));
    EXPECT_EQ(duck.Run(Write(std::move(joined))), "1");

    BoundDelete plain{.duckName = "\"t\"", .target = 1, .from = {}, .where = nullptr};
    plain.from.push_back(TableNamed("t"));
    plain.where = Equal(Column("n", kInt), Number(2));
    EXPECT_EQ(duck.Run(Write(std::move(plain))), "1");
    EXPECT_EQ(duck.Run("SELECT k FROM t"), "b");
}

TEST(WriteStatements, S14ToS16MakeAndChangeTables)
{
    Duck duck;
    ObjectInfo table =
        NewTable("j", {Of("单据日期", kDatetime), Of("bRdFlag", kBit), Of("iPrice", Decimal(38, 6))});
    table.columns[1].defaultSql = "FALSE";
    table.primaryKey = {"单据日期"};
    BoundCreateTable create{table};
    EXPECT_EQ(duck.Run(Write(std::move(create))), "");
    EXPECT_EQ(duck.Run("INSERT INTO j (\"单据日期\") VALUES (TIMESTAMP '2008-07-01')"), "1");
    EXPECT_EQ(duck.Run("INSERT INTO j (\"单据日期\") VALUES (TIMESTAMP '2008-07-01')"),
              "2627 Violation of PRIMARY KEY constraint. Cannot insert duplicate key.");

    table.columns.push_back(Of("a", kFloat));
    table.columns.push_back(Of("b", kText));
    const StatementPlan add = Write(BoundAddColumns{table, {"a", "b"}});
    EXPECT_EQ(add.steps.size(), 2U);
    EXPECT_EQ(duck.Run(add), "");
    EXPECT_EQ(std::get<ColumnsChanged>(add.changes.at(0)).columns.size(), 5U);
    table.columns[3].type = kDatetime;
    duck.Run("DELETE FROM j");
    EXPECT_EQ(duck.Run(Write(BoundAlterColumn{table, "A"})), "");
    EXPECT_EQ(duck.Run("SELECT string_agg(column_type, ' ') FROM (DESCRIBE j)"),
              "TIMESTAMP BOOLEAN DECIMAL(38,6) TIMESTAMP VARCHAR");
}

TEST(WriteStatements, MakesViewsAndDropsWhatIsNamed)
{
    Duck duck;
    MakeLedger(duck);
    ObjectInfo view = NewTable("w", {Of("k", kText), Of("n", kInt)});
    const StatementPlan create = Write(BoundCreateView{view, QueryOf(FromLedger())});
    EXPECT_EQ(duck.Run(create), "");
    EXPECT_EQ(std::get<TableMade>(create.changes.at(0)).object.kind, ObjectKind::View);
    EXPECT_EQ(duck.Run("SELECT count(*) FROM w"), "3");

    view.kind = ObjectKind::View;
    const StatementPlan drop = Write(BoundDrop{{view, NewTable("t", {})}});
    EXPECT_EQ(drop.steps, (std::vector<std::string>{"DROP VIEW \"w\"", "DROP TABLE \"t\""}));
    EXPECT_EQ(duck.Run(drop), "");
    EXPECT_EQ(std::get<TableDropped>(drop.changes.at(1)).name, "t");
}

TEST(WriteStatements, KeepsUniqueIndexesOnly)
{
    Duck duck;
    MakeLedger(duck);
    EXPECT_TRUE(Write(BoundCreateIndex{"\"t\"", "ix", false, {Of("k", kText)}}).steps.empty());
    EXPECT_EQ(duck.Run(Write(BoundCreateIndex{"\"t\"", "ix", true, {Of("k", kText)}})), "");
    for (const char* key : {"'a'", "'A '"})
        EXPECT_EQ(duck.Run(std::string("INSERT INTO t (k) VALUES (") + key + ")"),
                  "2601 Cannot insert duplicate key row in object with unique index.");
}

TEST(WriteStatements, KeysOfTextsKnowNoCaseAndNoTrailingBlanks)
{
    Duck duck;
    ObjectInfo table = NewTable("k", {Of("n", kInt), Of("code", kText)});
    table.primaryKey = {"n", "code"};
    EXPECT_EQ(duck.Run(Write(BoundCreateTable{table})), "");
    EXPECT_EQ(duck.Run("INSERT INTO k VALUES (1, 'a1'), (2, 'A1'), (1, 'a2')"), "3");
    for (const char* code : {"'a1'", "'A1 '", "'A2'"})
        EXPECT_EQ(duck.Run(std::string("INSERT INTO k VALUES (1, ") + code + ")"),
                  "2627 Violation of PRIMARY KEY constraint. Cannot insert duplicate key.");
    EXPECT_EQ(duck.Run("UPDATE k SET n = 1 WHERE n = 2"),
              "2627 Violation of PRIMARY KEY constraint. Cannot insert duplicate key.");
}

TEST(SqlErrorOfDuck, TakesNumbersOffAndNamesWhatItKnows)
{
    const struct {
        std::string message;
        int number;
        std::string text;
    } cases[] = {
        {"Invalid Input Error: [8134] Divide by zero error encountered.", 8134,
         "Divide by zero error encountered."},
        {"Invalid Input Error: [245] value 'a\nError: [1] b' to int", 245, "value 'a\nError: [1] b' to int"},
        {"Out of Range Error: Overflow in addition of INT32 (2147483647 + 1)!", 8115,
         "Arithmetic overflow error converting expression to data type int."},
        {"Catalog Error: Table with name x does not exist!\n\nLINE 1: select", 0,
         "Table with name x does not exist!"},
        {"Conversion Error: x\n\nLINE 1: 'Overflow in INT32'", 0, "x"},
        {"[x] y", 0, "[x] y"},
        {"", 0, ""},
    };
    for (const auto& c : cases) {
        const SqlMessage message = SqlErrorOfDuck(c.message);
        EXPECT_EQ(message.number, c.number) << c.message;
        EXPECT_EQ(message.text, c.text);
    }
}

}  // namespace kavelin::embedded
