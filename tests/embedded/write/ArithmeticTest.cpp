#include "embedded/write/Build.h"
#include "embedded/write/Duck.h"
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Writer.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

using namespace build;

namespace {

constexpr auto kAdd = ArithmeticOp::Add;
constexpr auto kSubtract = ArithmeticOp::Subtract;
constexpr auto kMultiply = ArithmeticOp::Multiply;
constexpr auto kDivide = ArithmeticOp::Divide;
const std::string kByZero = "8134 Divide by zero error encountered.";

struct Case {
    std::string left;
    SqlType leftType;
    ArithmeticOp op;
    std::string right;
    SqlType rightType;
    SqlType type;
    std::string expected;
};

// The result and its type in DuckDB, of two columns.
std::string Computed(Duck& duck, const Case& c)
{
    duck.Run("CREATE OR REPLACE TABLE t (a " + DuckType(c.leftType) + ", b " + DuckType(c.rightType) + ")");
    duck.Run("INSERT INTO t VALUES (" + c.left + ", " + c.right + ")");
    const std::string written =
        Writer().Value(*Compute(Column("a", c.leftType), c.op, Column("b", c.rightType), c.type));
    const std::string type = duck.Run("SELECT typeof(" + written + ") FROM t AS s1");
    if (c.expected.find(' ') == std::string::npos) {
        EXPECT_EQ(type, DuckType(c.type)) << written;
    }
    return duck.Run("SELECT CAST(" + written + " AS VARCHAR) FROM t AS s1");
}

void Check(const std::vector<Case>& cases)
{
    Duck duck;
    for (const Case& c : cases)
        EXPECT_EQ(Computed(duck, c), c.expected)
            << c.left << " " << DuckType(c.leftType) << " and " << c.right << " " << DuckType(c.rightType);
}

}  // namespace

TEST(WriteArithmetic, T17CutsAQuotientOfWholeNumbersTowardZero)
{
    Check({
        {"7", kInt, kDivide, "2", kInt, kInt, "3"},
        {"-7", kInt, kDivide, "2", kInt, kInt, "-3"},
        {"7", kInt, kDivide, "-2", kInt, kInt, "-3"},
        {"7", kInt, kDivide, "0", kInt, kInt, kByZero},
        {"NULL", kInt, kDivide, "2", kInt, kInt, "NULL"},
        {"7", kInt, kDivide, "NULL", kInt, kInt, "NULL"},
        {"2147483647", kInt, kAdd, "1", kInt, kInt,
         "8115 Arithmetic overflow error converting expression to data type int."},
        {"3", kInt, kMultiply, "-4", kInt, kInt, "-12"},
    });
}

TEST(WriteArithmetic, X53ComputesTinyintsAsInts)
{
    Check({
        {"9", kTinyint, kSubtract, "2", kTinyint, kTinyint, "7"},
        {"3", kTinyint, kMultiply, "4", kTinyint, kTinyint, "12"},
        {"9", kTinyint, kDivide, "2", kTinyint, kTinyint, "4"},
        {"1", kTinyint, kSubtract, "2", kTinyint, kTinyint,
         "8115 Arithmetic overflow error converting expression to data type tinyint."},
    });
    EXPECT_EQ(Writer().Value(*Expression(BoundNegation{Column("a", kTinyint)}, kInt)),
              "(-CAST(\"s1\".\"a\" AS INTEGER))");
}

TEST(WriteArithmetic, T18DividesByZeroForNoNumericType)
{
    Check({
        {"1.5", kFloat, kDivide, "0", kFloat, kFloat, kByZero},
        {"1.5", kMoney, kDivide, "0", kMoney, kMoney, kByZero},
        {"1.5", Decimal(10, 2), kDivide, "0", Decimal(10, 2), Decimal(23, 13), kByZero},
        {"3", kFloat, kDivide, "4", kFloat, kFloat, "0.75"},
    });
    EXPECT_EQ(Writer().Value(*Compute(Column("a", kFloat), kDivide,
                                      Convert(Number(1234), kFloat, ConversionKind::Explicit), kFloat)),
              "(\"s1\".\"a\" / CAST(1234 AS DOUBLE))");
}

TEST(WriteArithmetic, X19CutsAQuotientOfDecimalsAtItsScale)
{
    const SqlType wide = Decimal(38, 6);
    Check({
        // decimal(38,10): p1-s1+s2 = 38 is over 32, so the scale is 6
        {"1.67574", Decimal(38, 10), kDivide, "10000", Decimal(38, 10), wide, "0.000167"},
        {"-2", wide, kDivide, "3", wide, wide, "-0.666666"},
        {"820", wide, kDivide, "10", wide, wide, "82.000000"},
        {"1", wide, kDivide, "-3", Decimal(38, 2), wide, "-0.333333"},
        {"123456789012345.678901", wide, kDivide, "1", wide, wide, "123456789012345.678901"},
        {"NULL", wide, kDivide, "3", wide, wide, "NULL"},
        // decimal(2,0) by decimal(38,6): i = 2 + 6 = 8, scale 30
        {"10", Decimal(2, 0), kDivide, "2.5", wide, Decimal(38, 30), "4.000000000000000000000000000000"},
        {"10", Decimal(2, 0), kDivide, "3", wide, Decimal(38, 30), "3.333333333333333333333333333333"},
        // decimal(10,2) by decimal(5,1): scale max(6, 2+5+1) = 8, precision 10-2+1+8 = 17
        {"1.00", Decimal(10, 2), kDivide, "0.7", Decimal(5, 1), Decimal(17, 8), "1.42857142"},
        {"20", kMoney, kDivide, "3", kMoney, kMoney, "6.6666"},
        {"-20", kMoney, kDivide, "3", kMoney, kMoney, "-6.6666"},
    });
}

TEST(WriteArithmetic, CutsAQuotientNoFurtherThanTheRoundingBehindItLooks)
{
    Duck duck;
    const auto share = [](const std::string& dividend) {
        return Writer().Value(*Convert(
            Compute(Literal(dividend, Decimal(4, 0)), kDivide, Column("b", Decimal(38, 6)), Decimal(38, 28)),
            Decimal(38, 2), ConversionKind::Explicit));
    };
    duck.Run("CREATE TABLE t (b DECIMAL(38,6))");
    duck.Run("INSERT INTO t VALUES (3), (8), (0.000001)");
    // 1000/3 = 333.33, 1000/8 = 125.00, 1000/0.000001 = 10^9
    EXPECT_EQ(duck.Run("SELECT " + share("1000") + " FROM t AS s1"), "333.33;125.00;1000000000.00");
    // 0.015 is rounded away from zero
    duck.Run("DELETE FROM t");
    duck.Run("INSERT INTO t VALUES (200)");
    EXPECT_EQ(duck.Run("SELECT " + share("3") + " FROM t AS s1"), "0.02");
}

TEST(WriteArithmetic, X21RoundsAProductToItsScale)
{
    Check({
        {"1.5", Decimal(38, 6), kMultiply, "2.25", Decimal(38, 2), Decimal(38, 6), "3.375000"},
        {"0.123457", Decimal(38, 6), kMultiply, "0.05", Decimal(38, 2), Decimal(38, 6), "0.006173"},
        {"1.25", Decimal(5, 2), kMultiply, "2.5", Decimal(5, 1), Decimal(11, 3), "3.125"},
        {"0.12345678901234567890", Decimal(38, 20), kMultiply, "2", Decimal(38, 20), Decimal(38, 6),
         "0.246914"},
        {"99999999999999999999", Decimal(38, 6), kMultiply, "99999999999999999999", Decimal(38, 6),
         Decimal(38, 6), "8115 Arithmetic overflow error converting expression to data type numeric."},
    });
}

TEST(WriteArithmetic, T19KeepsMoneyAtFourDigits)
{
    Check({
        {"1.5", kMoney, kAdd, "2.25", kMoney, kMoney, "3.7500"},
        {"1.5", kMoney, kSubtract, "2.25", kMoney, kMoney, "-0.7500"},
        {"1.2345", kMoney, kMultiply, "0.5", kMoney, kMoney, "0.6173"},
        {"NULL", kMoney, kAdd, "2.25", kMoney, kMoney, "NULL"},
    });
    EXPECT_EQ(Writer().Value(
                  *Compute(Convert(Literal("-1", kInt), kMoney), kMultiply, Column("a", kMoney), kMoney)),
              "CAST(((-1) * \"s1\".\"a\") AS DECIMAL(19,4))");
}

TEST(WriteArithmetic, AddsDecimalsWithoutACastWhereDuckDbAgrees)
{
    Check({
        {"1.5", Decimal(12, 2), kAdd, "2.25", Decimal(10, 4), Decimal(15, 4), "3.7500"},
        {"100", Decimal(3, 0), kSubtract, "99.25", Decimal(38, 2), Decimal(38, 2), "0.75"},
        // the scale gives way: min(6, 38 - 36)
        {"1.123456", Decimal(38, 6), kAdd, "1", Decimal(38, 2), Decimal(38, 2), "2.12"},
    });
    EXPECT_EQ(Writer().Value(
                  *Compute(Column("a", Decimal(12, 2)), kAdd, Column("b", Decimal(10, 4)), Decimal(15, 4))),
              "(\"s1\".\"a\" + \"s1\".\"b\")");
}

TEST(WriteArithmetic, CastsAChainOfMoneyOnce)
{
    const auto orZero = [](const char* name) {
        return IsNull(Column(name, kMoney), Convert(Number(0), kMoney));
    };
    const BoundExprPtr chain =
        Compute(Compute(orZero("a"), kAdd, orZero("b"), kMoney), kSubtract, orZero("c"), kMoney);
    EXPECT_EQ(Writer().Value(*chain),
              "CAST(((coalesce(\"s1\".\"a\", CAST(0 AS DECIMAL(19,4)))"
              " + coalesce(\"s1\".\"b\", CAST(0 AS DECIMAL(19,4))))"
              " - coalesce(\"s1\".\"c\", CAST(0 AS DECIMAL(19,4)))) AS DECIMAL(19,4))");
}

TEST(WriteArithmetic, T3RoundsADifferenceOfDatesToDays)
{
    Duck duck;
    const auto days = [] {
        return Expression(BoundDayDifference{Column("a", kDatetime), Column("b", kDatetime)}, kFloat);
    };
    duck.Run("CREATE TABLE t (a TIMESTAMP, b TIMESTAMP)");
    duck.Run(
        "INSERT INTO t VALUES (TIMESTAMP '2008-07-31', TIMESTAMP '2008-07-01'),"
        " (TIMESTAMP '2008-07-02 18:00:00', TIMESTAMP '2008-07-01'),"
        " (TIMESTAMP '2008-07-01', TIMESTAMP '2008-07-02 18:00:00'), (NULL, TIMESTAMP '2008-07-01')");
    EXPECT_EQ(duck.Run("SELECT " + Writer().Value(*Convert(days(), kInt, ConversionKind::Explicit)) +
                       " FROM t AS s1"),
              "30;2;-2;NULL");
    EXPECT_EQ(duck.Run("SELECT " + Writer().Value(*days()) + " FROM t AS s1"), "30.0;1.75;-1.75;NULL");
    const BoundExprPtr later = Compute(Column("b", kDatetime), kAdd, Literal("1.5", kFloat), kDatetime);
    EXPECT_EQ(duck.Run("SELECT " + Writer().Value(*later) + " FROM t AS s1 LIMIT 1"), "2008-07-02 12:00:00");
}

TEST(WriteArithmetic, GrowsEvenlyWithNestedQuotients)
{
    Duck duck;
    duck.Run("CREATE TABLE t (a DOUBLE)");
    duck.Run("INSERT INTO t VALUES (2)");
    BoundExprPtr nested = Column("a", kFloat);
    for (int level = 0; level < 60; ++level)  // 2/2 = 1, 2/1 = 2, ...
        nested = Compute(Column("a", kFloat), kDivide, std::move(nested), kFloat);
    const std::string written = Writer().Value(*nested);
    EXPECT_LT(written.size(), 20000U);
    EXPECT_EQ(duck.Run("SELECT " + written + " FROM t AS s1"), "2.0");
}

}  // namespace kavelin::embedded
