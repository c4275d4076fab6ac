#include "embedded/write/Build.h"
#include "embedded/write/Duck.h"
#include "embedded/write/Writer.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

using namespace build;

namespace {

const SqlType kText = Nvarchar(30);
const SqlType kSum = Decimal(38, 2);

// Rows of the ledger in small: k text, n int, d decimal(10,2), m money, f float, t tinyint.
void MakeLedger(Duck& duck)
{
    duck.Run("CREATE TABLE t (k VARCHAR, n INTEGER, d DECIMAL(10,2), m DECIMAL(19,4), f DOUBLE, t UTINYINT)");
    duck.Run(
        "INSERT INTO t VALUES ('b', 3, 1.10, 1.5, 0.5, 200), ('A', 1, 2.20, 2.5, 1.5, 100),"
        " ('B ', 2, 3.35, 4.0001, 2.5, 100), (NULL, NULL, NULL, NULL, NULL, NULL), ('a', -8, 0.01, 0, 0, 0)");
}

std::string Write(const BoundQueryPtr& query)
{
    return Writer().Query(*query);
}

BoundExprPtr Sum(const char* column, const SqlType& from, const SqlType& to)
{
    return Aggregate(AggregateKind::Sum, Column(column, from), to);
}

}  // namespace

TEST(WriteSelect, NamesSourcesByNumberAndEveryColumn)
{
    BoundSelect select = From(TableNamed("t"));
    select.top = 2;
    Item(select, "cInvCode", Column("k", kText));
    Item(select, "", Number(7));
    EXPECT_EQ(Write(OrderedBy(QueryOf(std::move(select)), 0, true)),
              R"(SELECT "s1"."k" AS "cInvCode", 7 AS "c1" FROM "t" AS "s1")"
              R"( ORDER BY lower(rtrim("s1"."k")) DESC NULLS LAST, "s1"."k" ASC NULLS FIRST LIMIT 2)");
}

TEST(WriteSelect, T32OrdersNullFirstAndTextsByTheirFold)
{
    Duck duck;
    MakeLedger(duck);
    const auto rows = [&](bool descending) {
        BoundSelect select = From(TableNamed("t"));
        Item(select, "k", Column("k", kText));
        Item(select, "n", Column("n", kInt));
        return duck.Run(
            Write(OrderedBy(OrderedBy(QueryOf(std::move(select)), 0, descending), Column("n", kInt))));
    };
    EXPECT_EQ(rows(false), "NULL|NULL;a|-8;A|1;B |2;b|3");
    EXPECT_EQ(rows(true), "B |2;b|3;a|-8;A|1;NULL|NULL");
}

TEST(WriteSelect, OrdersByNoPositionWhereAColumnIsConstant)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect select = From(TableNamed("t"));
    select.where = Equal(Column("n", kInt), Number(1));
    Item(select, "flag", Number(2));
    EXPECT_EQ(duck.Run(Write(OrderedBy(QueryOf(std::move(select)), 0))), "2");
}

TEST(WriteSelect, T23GroupsTextsByTheirFoldAndShowsOneOfThem)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect select = From(TableNamed("t"));
    select.grouped = true;
    select.groupBy.push_back(Column("k", kText));
    select.having =
        Compare(Aggregate(AggregateKind::CountRows, nullptr, kInt), ComparisonOp::Greater, Number(1));
    Item(select, "k", Key(0, kText));
    Item(select, "d", Sum("d", Decimal(10, 2), kSum));
    const std::string sql = Write(OrderedBy(QueryOf(std::move(select)), 0));
    EXPECT_EQ(sql, R"(SELECT min("s1"."k") AS "k", sum("s1"."d") AS "d" FROM "t" AS "s1")"
                   R"( GROUP BY lower(rtrim("s1"."k")) HAVING (count(*) > 1))"
                   R"( ORDER BY lower(rtrim("s1"."k")) ASC NULLS FIRST)");
    EXPECT_EQ(duck.Run(sql), "A|2.21;B |4.45");
}

TEST(WriteSelect, GroupsFoldedTextsPlainly)
{
    BoundSelect select = From(TableNamed("t"));
    select.grouped = true;
    select.groupBy.push_back(Column("k", kText, kFolded));
    Item(select, "k", Key(0, kText, kFolded));
    EXPECT_EQ(Write(QueryOf(std::move(select))),
              R"(SELECT "s1"."k" AS "k" FROM "t" AS "s1" GROUP BY "s1"."k")");
}

TEST(WriteSelect, GroupsByRepeatedExpressions)
{
    Duck duck;
    MakeLedger(duck);
    const auto sign = [] {
        return When(Compare(Column("n", kInt), ComparisonOp::Less, Number(0)), Text("minus"), Text("plus"),
                    kText);
    };
    BoundSelect select = From(TableNamed("t"));
    select.grouped = true;
    select.groupBy.push_back(sign());
    Item(select, "sign", Key(0, kText));
    Item(select, "rows", Aggregate(AggregateKind::CountRows, nullptr, kInt));
    EXPECT_EQ(duck.Run(Write(OrderedBy(QueryOf(std::move(select)), 1))), "minus|1;plus|4");
}

TEST(WriteSelect, T29GivesAggregatesTheirTypes)
{
    Duck duck;
    MakeLedger(duck);
    const struct {
        BoundExprPtr aggregate;
        std::string expected;
    } cases[] = {
        // 1.5 + 2.5 + 4.0001 + 0
        {Sum("m", kMoney, kMoney), "8.0001|DECIMAL(19,4)"},
        {Sum("d", Decimal(10, 2), kSum), "6.66|DECIMAL(38,2)"},
        {Sum("n", kInt, kInt), "-2|INTEGER"},
        {Sum("t", kTinyint, kInt), "400|INTEGER"},
        {Sum("f", kFloat, kFloat), "4.5|DOUBLE"},
        // 8.0001 / 4 = 2.000025, cut; 6.66 / 4 = 1.665; -2 / 4 = -0.5, cut
        {Aggregate(AggregateKind::Avg, Column("m", kMoney), kMoney), "2.0000|DECIMAL(19,4)"},
        {Aggregate(AggregateKind::Avg, Column("d", Decimal(10, 2)), Decimal(38, 6)),
         "1.665000|DECIMAL(38,6)"},
        {Aggregate(AggregateKind::Avg, Column("n", kInt), kInt), "0|INTEGER"},
        {Aggregate(AggregateKind::Avg, Column("f", kFloat), kFloat), "1.125|DOUBLE"},
        {Aggregate(AggregateKind::Max, Column("t", kTinyint), kTinyint), "200|UTINYINT"},
        {Aggregate(AggregateKind::Min, Column("k", kText), kText), "A|VARCHAR"},
        {Aggregate(AggregateKind::Max, Column("k", kText), kText), "b|VARCHAR"},
        {Aggregate(AggregateKind::Count, Column("k", kText), kInt), "4|INTEGER"},
        {Aggregate(AggregateKind::Count, Column("k", kText), kInt, true), "2|INTEGER"},
        {Aggregate(AggregateKind::CountRows, nullptr, kInt), "5|INTEGER"},
        {Aggregate(AggregateKind::Sum, Column("t", kTinyint), kInt, true), "300|INTEGER"},
    };
    for (const auto& c : cases) {
        const std::string written = Writer().Value(*c.aggregate);
        EXPECT_EQ(duck.Run("SELECT " + written + ", typeof(" + written + ") FROM t AS s1"), c.expected)
            << written;
        const std::string nothing = c.expected.substr(c.expected.find('|'));
        EXPECT_EQ(duck.Run("SELECT " + written + ", typeof(" + written + ") FROM t AS s1 WHERE FALSE"),
                  (written.find("count(") == 5 ? "0" : "NULL") + nothing);
    }
}

TEST(WriteSelect, SumsMoneyWithItsCastBehindTheSum)
{
    const auto difference = [] {
        return Compute(Column("m", kMoney), ArithmeticOp::Subtract, Column("m", kMoney), kMoney);
    };
    EXPECT_EQ(Writer().Value(*Aggregate(AggregateKind::Sum, difference(), kMoney)),
              R"(CAST(sum(("s1"."m" - "s1"."m")) AS DECIMAL(19,4)))");
    EXPECT_EQ(Writer().Value(*Convert(Aggregate(AggregateKind::Sum, Column("m", kMoney), kMoney), kSum,
                                      ConversionKind::Explicit)),
              R"(coalesce(CAST(TRY_CAST(sum("s1"."m") AS DECIMAL(18,4)) AS DECIMAL(38,2)), )"
              R"(CAST(sum("s1"."m") AS DECIMAL(38,2))))");
}

TEST(WriteSelect, Q2FindsDistinctTextsByTheirFold)
{
    Duck duck;
    MakeLedger(duck);
    const auto distinct = [](TextFacts facts) {
        BoundSelect select = From(TableNamed("t"));
        select.distinct = true;
        Item(select, "k", Column("k", kText, facts));
        return OrderedBy(QueryOf(std::move(select)), 0, true);
    };
    EXPECT_EQ(Write(distinct(kFolded)),
              R"(SELECT DISTINCT "s1"."k" AS "k" FROM "t" AS "s1" ORDER BY 1 DESC NULLS LAST)");
    EXPECT_EQ(duck.Run(Write(distinct({}))), "B ;A;NULL");
}

TEST(WriteSelect, Q21UnitesSelectsWithOrderByAnItem)
{
    Duck duck;
    MakeLedger(duck);
    const auto unite = [](std::vector<bool> all, const std::vector<std::string>& texts) {
        auto query = std::make_unique<BoundQuery>();
        for (const std::string& text : texts) {
            BoundSelect select;
            Item(select, "a", Text(text));
            query->selects.push_back(std::move(select));
        }
        query->unionAll = std::move(all);
        return OrderedBy(std::move(query), 0);
    };
    EXPECT_EQ(duck.Run(Write(unite({false, false}, {"x", "X ", "a"}))), "a;X ");
    EXPECT_EQ(duck.Run(Write(unite({true, true}, {"x", "x", "a"}))), "a;x;x");
    EXPECT_EQ(duck.Run(Write(unite({false, true}, {"x", "x", "x"}))), "x;x");
    EXPECT_EQ(duck.Run(Write(unite({true, false}, {"x", "x", "X"}))), "X");
}

TEST(WriteSelect, Q1TakesTheFirstOfADistinctAfterIt)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect select = From(TableNamed("t"));
    select.distinct = true;
    select.top = 2;
    Item(select, "k", Column("k", kText));
    EXPECT_EQ(duck.Run(Write(OrderedBy(QueryOf(std::move(select)), 0, true))), "B ;A");
}

TEST(WriteSelect, Q3JoinsInnerLeftAndOnConstants)
{
    Duck duck;
    MakeLedger(duck);
    duck.Run("CREATE TABLE u (k VARCHAR, v INTEGER)");
    duck.Run("INSERT INTO u VALUES ('B', 5)");
    BoundSelect select = From(Joined(JoinKind::Left,
                                     Joined(JoinKind::Left, TableNamed("t"), TableNamed("u", 2),
                                            Equal(Column("k", kText), Column("k", kText, {}, 2))),
                                     TableNamed("u", 3), Equal(Number(1), Number(2))));
    Item(select, "n", Column("n", kInt));
    Item(select, "v", Column("v", kInt, {}, 2));
    Item(select, "w", Column("v", kInt, {}, 3));
    EXPECT_EQ(duck.Run(Write(OrderedBy(QueryOf(std::move(select)), 0))),
              "NULL|NULL|NULL;-8|NULL|NULL;1|NULL|NULL;2|5|NULL;3|5|NULL");
}

TEST(WriteSelect, Q9LooksForATextInAQueryByItsFold)
{
    Duck duck;
    MakeLedger(duck);
    duck.Run("CREATE TABLE u (k VARCHAR)");
    duck.Run("INSERT INTO u VALUES ('B')");
    const auto in = [&](bool negated, TextFacts facts) {
        BoundSelect inner = From(TableNamed("u", 2));
        Item(inner, "k", Column("k", kText, facts, 2));
        BoundSelect select = From(TableNamed("t"));
        select.where =
            Expression(BoundInQuery{Column("k", kText, facts), QueryOf(std::move(inner)), negated});
        Item(select, "n", Column("n", kInt));
        return Write(OrderedBy(QueryOf(std::move(select)), 0));
    };
    EXPECT_EQ(duck.Run(in(false, {})), "2;3");
    EXPECT_EQ(duck.Run(in(true, {})), "-8;1");
    EXPECT_NE(in(false, kFolded).find(R"(WHERE ("s1"."k" IN (SELECT "s2"."k" AS "c0" FROM "u" AS "s2")))"),
              std::string::npos)
        << in(false, kFolded);
}

TEST(WriteSelect, Q7AndE12TakeOneValueOfASubquery)
{
    Duck duck;
    MakeLedger(duck);
    const auto first = [](std::optional<std::int64_t> top) {
        BoundSelect inner = From(TableNamed("t", 2));
        inner.top = top;
        Item(inner, "n", Column("n", kInt, {}, 2));
        BoundSelect select;
        Item(select, "n",
             Expression(BoundScalarSubquery{OrderedBy(QueryOf(std::move(inner)), 0, true)}, kInt));
        return Write(QueryOf(std::move(select)));
    };
    EXPECT_EQ(duck.Run(first(1)), "3");
    EXPECT_EQ(duck.Run(first(std::nullopt)).substr(0, 45), "512 Subquery returned more than 1 value. This");
}

TEST(WriteSelect, Q10TestsExistenceOfCorrelatedRows)
{
    Duck duck;
    MakeLedger(duck);
    BoundSelect inner = From(TableNamed("t", 2));
    inner.where = Both(Equal(Column("k", kText, {}, 2), Column("k", kText)),
                       Compare(Column("n", kInt, {}, 2), ComparisonOp::Less, Column("n", kInt)));
    BoundSelect select = From(TableNamed("t"));
    select.where = Expression(BoundNot{Expression(BoundExists{QueryOf(std::move(inner))})});
    Item(select, "n", Column("n", kInt));
    EXPECT_EQ(duck.Run(Write(OrderedBy(QueryOf(std::move(select)), 0))), "NULL;-8;2");
}

TEST(WriteSelect, Q8DividesByASubqueryBesideAggregates)
{
    Duck duck;
    MakeLedger(duck);
    const auto total = [] {
        BoundSelect inner = From(TableNamed("t", 2));
        inner.grouped = true;
        Item(inner, "", Aggregate(AggregateKind::Sum, Column("m", kMoney, {}, 2), kMoney));
        return Convert(Expression(BoundScalarSubquery{QueryOf(std::move(inner))}, kMoney), kFloat,
                       ConversionKind::Explicit);
    };
    BoundSelect select = From(TableNamed("t"));
    select.grouped = true;
    select.groupBy.push_back(Column("k", kText));
    Item(select, "k", Key(0, kText));
    const SqlType share = Decimal(38, 2);
    Item(select, "share",
         When(Equal(total(), Literal("0", kFloat)), Convert(Number(0), share),
              Convert(Compute(Compute(Convert(Sum("m", kMoney, kMoney), kFloat), ArithmeticOp::Divide,
                                      total(), kFloat),
                              ArithmeticOp::Multiply, Convert(Number(100), kFloat), kFloat),
                      share, ConversionKind::Explicit),
              share));
    // 2.5 and 5.5001 of 8.0001
    EXPECT_EQ(duck.Run(Write(OrderedBy(QueryOf(std::move(select)), 0))), "NULL|NULL;A|31.25;B |68.75");
}

TEST(WriteSelect, S1WritesDerivedTables)
{
    BoundSelect inner = From(TableNamed("t", 2));
    inner.distinct = true;
    Item(inner, "n", Column("n", kInt, {}, 2));
    BoundSelect select =
        From(std::make_unique<BoundSource>(BoundSource{BoundDerived{1, QueryOf(std::move(inner))}}));
    Item(select, "n", Column("n", kInt));
    EXPECT_EQ(Write(QueryOf(std::move(select))),
              R"(SELECT "s1"."n" AS "n" FROM (SELECT DISTINCT "s2"."n" AS "n" FROM "t" AS "s2") AS "s1")");
}

TEST(WriteSelect, TakesFunctionsOfTheLanguage)
{
    Duck duck;
    duck.Run("CREATE TABLE t (k VARCHAR, d TIMESTAMP, m DECIMAL(19,4))");
    duck.Run("INSERT INTO t VALUES ('直运销售', TIMESTAMP '2008-07-31', -1.5), (NULL, NULL, NULL)");
    const auto call = [&](BoundFunctionKind kind, std::vector<BoundExprPtr> arguments, const SqlType& type) {
        BoundFunction function{kind, std::move(arguments)};
        return duck.Run("SELECT " + Writer().Value(*Expression(std::move(function), type)) + " FROM t AS s1");
    };
    const auto one = [](BoundExprPtr argument) {
        std::vector<BoundExprPtr> arguments;
        arguments.push_back(std::move(argument));
        return arguments;
    };
    std::vector<BoundExprPtr> left = one(Column("k", kText));
    left.push_back(Number(2));
    EXPECT_EQ(call(BoundFunctionKind::Left, std::move(left), Nvarchar(2)), "直运;NULL");
    EXPECT_EQ(call(BoundFunctionKind::Year, one(Column("d", kDatetime)), kInt), "2008;NULL");
    EXPECT_EQ(call(BoundFunctionKind::Month, one(Column("d", kDatetime)), kInt), "7;NULL");
    EXPECT_EQ(call(BoundFunctionKind::Day, one(Column("d", kDatetime)), kInt), "31;NULL");
    EXPECT_EQ(call(BoundFunctionKind::Abs, one(Column("m", kMoney)), kMoney), "1.5000;NULL");
    EXPECT_EQ(call(BoundFunctionKind::LocaleId, one(Text("zh-CN")), kText), "zh-CN;zh-CN");
    duck.Run("SET VARIABLE kavelin_locale = 'en-US'");
    EXPECT_EQ(call(BoundFunctionKind::LocaleId, {}, kText), "en-US;en-US");
    EXPECT_EQ(duck.Run("SELECT " + Writer().Value(*IsNull(Column("m", kMoney), Convert(Number(0), kMoney))) +
                       " FROM t AS s1"),
              "-1.5000;0.0000");
}

TEST(WriteSelect, F9LooksForObjectsInTheDatabaseThatTheNameGives)
{
    const auto identifier = [](const std::string& name) {
        BoundFunction function{BoundFunctionKind::ObjectId, {}};
        function.arguments.push_back(Text(name));
        return Writer().Value(*Expression(std::move(function), kInt));
    };
    EXPECT_EQ(identifier("Tempdb..[IA_X]"),
              R"((SELECT "id" FROM "tempdb"."main"."sysobjects" WHERE lower("name") = 'ia_x'))");
    EXPECT_EQ(identifier("x"), R"((SELECT "id" FROM "work"."main"."sysobjects" WHERE lower("name") = 'x'))");
    EXPECT_EQ(identifier("VosSystem..y"),
              R"((SELECT "id" FROM "work"."main"."sysobjects_system" WHERE lower("name") = 'y'))");
}

// Row by row else: DuckDB hashes a left join only by values of one side each.
TEST(WriteSelect, Q3JoinsWithinWhatALeftJoinAsksOfTheLeftRowBesideAnEquality)
{
    const auto written = [](BoundExprPtr more) {
        BoundSelect select =
            From(Joined(JoinKind::Left, TableNamed("t", 1), TableNamed("t", 2),
                        Both(Equal(Column("n", kInt, {}, 1), Column("n", kInt, {}, 2)), std::move(more))));
        Item(select, "n", Column("n", kInt, {}, 2));
        return Write(QueryOf(std::move(select)));
    };
    const auto isSeven = [](int source) { return Equal(Column("t", kInt, {}, source), Number(7)); };
    const std::string within = R"( FROM "t" AS "s1" LEFT JOIN LATERAL (SELECT * FROM "t" AS "s2" WHERE )";

    EXPECT_NE(written(isSeven(1)).find(within), std::string::npos) << written(isSeven(1));
    EXPECT_NE(written(isSeven(1)).find(R"() AS "s2" ON TRUE)"), std::string::npos);
    EXPECT_EQ(written(isSeven(2)).find("LATERAL"), std::string::npos) << "of the right row alone";
    EXPECT_EQ(written(isSeven(3)).find("LATERAL"), std::string::npos) << "of a row around";
}

}  // namespace kavelin::embedded
