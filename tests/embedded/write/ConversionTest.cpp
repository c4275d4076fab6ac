#include "embedded/write/Build.h"
#include "embedded/write/Conversion.h"
#include "embedded/write/Duck.h"
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Writer.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

using namespace build;

namespace {

// The value `from` of a column of the first type, converted to the second.
std::string Converted(Duck& duck, const std::string& value, const SqlType& from, const SqlType& to,
                      ConversionKind kind)
{
    duck.Run("CREATE OR REPLACE TABLE t (x " + DuckType(from) + ")");
    duck.Run("INSERT INTO t VALUES (" + value + ")");
    const std::string written = Writer().Value(*Convert(Column("x", from), to, kind));
    return duck.Run("SELECT CAST(" + written + " AS VARCHAR) FROM t AS s1");
}

struct Case {
    std::string value;
    SqlType from, to;
    std::string expected;
    ConversionKind kind = ConversionKind::Explicit;
};

void Check(const std::vector<Case>& cases)
{
    Duck duck;
    for (const Case& c : cases)
        EXPECT_EQ(Converted(duck, c.value, c.from, c.to, c.kind), c.expected)
            << c.value << " " << DuckType(c.from) << " to " << DuckType(c.to);
}

}  // namespace

TEST(WriteConversion, T22CutsFloatAndDecimalButRoundsMoneyToWholeNumbers)
{
    Check({
        {"2.7", kFloat, kInt, "2"},
        {"-2.7", kFloat, kInt, "-2"},
        {"2.5", Decimal(10, 2), kInt, "2"},
        {"-2.99", Decimal(10, 2), kInt, "-2"},
        {"12345678901234567890123456.9", Decimal(38, 6), Decimal(38, 0), "12345678901234567890123457"},
        {"7", Decimal(10, 0), kInt, "7"},
        {"2.5", kMoney, kInt, "3"},
        {"-2.5", kMoney, kInt, "-3"},
        {"2.4999", kMoney, kSmallint, "2"},
        {"NULL", kFloat, kInt, "NULL"},
        {"200", kInt, kTinyint, "200"},
        {"TRUE", kBit, kInt, "1"},
        {"255", kTinyint, kInt, "255"},
    });
}

TEST(WriteConversion, T22RoundsHalvesAwayFromZeroToDecimalAndMoney)
{
    Check({
        {"2.345", Decimal(10, 3), Decimal(38, 2), "2.35"},
        {"-2.345", Decimal(10, 3), Decimal(38, 2), "-2.35"},
        {"0.125", kFloat, Decimal(38, 2), "0.13"},
        {"1.23455", kFloat, kMoney, "1.2346"},
        {"2.3450", kMoney, Decimal(38, 2), "2.35"},
        {"1.00005", Decimal(10, 5), kMoney, "1.0001"},
        {"7", kInt, Decimal(38, 6), "7.000000"},
        {"7", kInt, kMoney, "7.0000"},
        {"TRUE", kBit, kMoney, "1.0000"},
        {"1.5", kMoney, kFloat, "1.5"},
        {"1.50", Decimal(10, 2), kFloat, "1.5"},
        {"NULL", kMoney, Decimal(38, 2), "NULL"},
    });
}

TEST(WriteConversion, MakesBitsOfNumbersThatAreNotZero)
{
    Check({
        {"2", kInt, kBit, "true"},
        {"0", kTinyint, kBit, "false"},
        {"-0.5", kFloat, kBit, "true"},
        {"0.0000", kMoney, kBit, "false"},
        {"NULL", kInt, kBit, "NULL"},
        {"' 2 '", Nvarchar(5), kBit, "true"},
        {"'0'", Nvarchar(5), kBit, "false"},
        {"''", Nvarchar(5), kBit, "false"},
        {"'True'", Nvarchar(5), kBit, "true"},
        {"'no'", Nvarchar(5), kBit,
         "245 Conversion failed when converting the nvarchar value 'no' to data type bit."},
    });
}

TEST(WriteConversion, E10NamesTheTypeThatOverflows)
{
    const std::string converting = "8115 Arithmetic overflow error converting ";
    Check({
        {"300", kInt, kTinyint, converting + "expression to data type tinyint."},
        {"-1", kInt, kTinyint, converting + "expression to data type tinyint."},
        {"70000", kInt, kSmallint, converting + "expression to data type smallint."},
        {"1e12", kFloat, kInt, converting + "expression to data type int."},
        {"3000000000", kBigint, kInt, converting + "expression to data type int."},
        {"9999999999.99", Decimal(20, 2), kInt, converting + "expression to data type int."},
        {"1e30", kFloat, kMoney, converting + "expression to data type money."},
        {"123.45", Decimal(10, 2), Decimal(4, 2), converting + "expression to data type numeric."},
        {"1e30", kFloat, Decimal(10, 2), converting + "expression to data type numeric."},
        {"'1000'", Nvarchar(9), Decimal(5, 2), converting + "nvarchar to data type numeric."},
    });
}

TEST(WriteConversion, T11AndE7ReadTextsAsNumbers)
{
    const std::string failed = "245 Conversion failed when converting the nvarchar value '";
    Check({
        {"'12'", Nvarchar(20), kInt, "12"},
        {"' -12 '", Nvarchar(20), kInt, "-12"},
        {"'+7'", Nvarchar(20), kInt, "7"},
        {"''", Nvarchar(20), kInt, "0"},
        {"'  '", Nvarchar(20), kInt, "0"},
        {"NULL", Nvarchar(20), kInt, "NULL"},
        {"'1.5'", Nvarchar(20), kInt, failed + "1.5' to data type int."},
        {"'2008.07'", Nvarchar(20), kTinyint, failed + "2008.07' to data type tinyint."},
        {"'it''s'", Nvarchar(20), kInt, failed + "it's' to data type int."},
        {"'99999999999'", Nvarchar(20), kInt,
         "248 The conversion of the nvarchar value '99999999999' overflowed an int column."},
        {"'300'", Varchar(20), kTinyint,
         "244 The conversion of the varchar value '300' overflowed an INT1 column."
         " Use a larger integer column."},
        {"' 1.5e2 '", Nvarchar(20), kFloat, "150.0"},
        {"''", Nvarchar(20), kFloat, "0.0"},
        {"'infinity'", Nvarchar(20), kFloat, "8114 Error converting data type nvarchar to float."},
        {"'1_000'", Nvarchar(20), kFloat, "8114 Error converting data type nvarchar to float."},
        {"'1.005'", Nvarchar(20), Decimal(38, 2), "1.01"},
        {"'.5'", Nvarchar(20), Decimal(38, 2), "0.50"},
        {"''", Nvarchar(20), Decimal(38, 2), "8114 Error converting data type nvarchar to numeric."},
        {"'1e3'", Nvarchar(20), Decimal(38, 2), "8114 Error converting data type nvarchar to numeric."},
        {"'1,234.5'", Nvarchar(20), kMoney, "1234.5000"},
        {"''", Nvarchar(20), kMoney, "0.0000"},
        {"'x'", Nvarchar(20), kMoney,
         "235 Cannot convert a char value to money. The char value has incorrect syntax."},
    });
}

TEST(WriteConversion, T5AndT8ReadTextsAsDates)
{
    const std::string july = "2008-07-01 00:00:00";
    const std::string failed =
        "241 Conversion failed when converting date and/or time from character string.";
    Check({
        {"'2008-07-01'", Nvarchar(30), kDatetime, july},
        {"'2008-7-1'", Nvarchar(30), kDatetime, july},
        {"'2008/7/1'", Nvarchar(30), kDatetime, july},
        {"'2008.7.1'", Nvarchar(30), kDatetime, july},
        {"'20080701'", Nvarchar(30), kDatetime, july},
        {"' 2008-07-01 '", Nvarchar(30), kDatetime, july},
        {"'2008-07-01 9:05'", Nvarchar(30), kDatetime, "2008-07-01 09:05:00"},
        {"'20080701 10:20:30'", Nvarchar(30), kDatetime, "2008-07-01 10:20:30"},
        {"'2008.7.1 10:20:30.123'", Nvarchar(30), kDatetime, "2008-07-01 10:20:30.123"},
        {"''", Nvarchar(30), kDatetime, "1900-01-01 00:00:00"},
        {"NULL", Nvarchar(30), kDatetime, "NULL"},
        {"'200871'", Nvarchar(30), kDatetime, failed},
        {"'2008-07.01'", Nvarchar(30), kDatetime, failed},
        {"'infinity'", Nvarchar(30), kDatetime, failed},
        {"'2008-13-01'", Nvarchar(30), kDatetime,
         "242 The conversion of a nvarchar data type to a datetime data type"
         " resulted in an out-of-range value."},
        {"2", kInt, kDatetime, "1900-01-03 00:00:00"},
        {"1.5", kFloat, kDatetime, "1900-01-02 12:00:00"},
        {"TIMESTAMP '1900-01-02 12:00:00'", kDatetime, kInt, "2"},
        {"TIMESTAMP '1900-01-02 11:59:00'", kDatetime, kInt, "1"},
        {"TIMESTAMP '1900-01-02 12:00:00'", kDatetime, kFloat, "1.5"},
    });
}

TEST(WriteConversion, A11WritesNumbersAndDatesAsTexts)
{
    Check({
        {"TIMESTAMP '2008-07-01'", kDatetime, Nvarchar(60), "Jul  1 2008 12:00AM",
         ConversionKind::Assignment},
        {"TIMESTAMP '2008-12-31 13:05:00'", kDatetime, Nvarchar(60), "Dec 31 2008  1:05PM"},
        {"TIMESTAMP '2008-12-09 23:59:00'", kDatetime, Nvarchar(11), "Dec  9 2008"},
        {"TIMESTAMP '2008-07-01 10:20:30.123'", kDatetime, Nvarchar(10), "2008-07-01",
         ConversionKind::Style121},
        {"TIMESTAMP '2008-07-01 10:20:30.123'", kDatetime, Nvarchar(7), "2008-07", ConversionKind::Style121},
        {"TIMESTAMP '2008-07-01 10:20:30.123'", kDatetime, Nvarchar(30), "2008-07-01 10:20:30.123",
         ConversionKind::Style121},
        {"2008", kInt, Nvarchar(4), "2008"},
        {"12345", kInt, Nvarchar(4),
         "8115 Arithmetic overflow error converting expression to data type nvarchar."},
        {"12345", kInt, Varchar(4), "*"},
        {"-12", kInt, Nvarchar(50), "-12"},
        {"7", kTinyint, Nvarchar(2), "7"},
        {"TRUE", kBit, Nvarchar(2), "1"},
        {"1.5", Decimal(10, 4), Nvarchar(20), "1.5000"},
        {"-0.05", Decimal(10, 2), Nvarchar(20), "-0.05"},
        {"0.5", Decimal(1, 1), Nvarchar(20), "0.5"},
        {"1234.5678", kMoney, Nvarchar(30), "1234.57"},
        {"1234.5", kFloat, Nvarchar(30), "1234.5"},
        {"1234567", kFloat, Nvarchar(30), "1.23457e+006"},
        {"0.1", kFloat, Nvarchar(30), "0.1"},
        {"NULL", kFloat, Nvarchar(30), "NULL"},
        {"NULL", kDatetime, Nvarchar(30), "NULL"},
    });
}

TEST(WriteConversion, KeepsTheScaleOfALiteral)
{
    const auto text = [](const std::string& digits, const SqlType& type) {
        return "SELECT " +
               Writer().Value(*Convert(Literal(digits, type), Nvarchar(10), ConversionKind::Explicit));
    };
    Duck duck;
    EXPECT_EQ(duck.Run(text("1.5", Decimal(10, 2))), "1.50");
    EXPECT_EQ(duck.Run(text("1.50", Decimal(3, 2))), "1.50");
    EXPECT_EQ(duck.Run(text("2", kMoney)), "2.00");
    EXPECT_EQ(duck.Run(text("-0.5", Decimal(1, 1))), "-0.5");
    EXPECT_EQ(duck.Run(text("007", kInt)), "7");
}

TEST(WriteConversion, T27RefusesLongTextsOnAssignmentAndCutsThemElsewhere)
{
    const std::string truncated = "8152 String or binary data would be truncated.";
    Check({
        {"'abcdef'", Nvarchar(10), Nvarchar(3), "abc", ConversionKind::Explicit},
        {"'abcdef'", Nvarchar(10), Nvarchar(3), "abc", ConversionKind::Implicit},
        {"'abcdef'", Nvarchar(10), Nvarchar(3), truncated, ConversionKind::Assignment},
        {"'abc   '", Nvarchar(10), Nvarchar(3), "abc", ConversionKind::Assignment},
        {"'ab   '", Nvarchar(10), Nvarchar(3), "ab ", ConversionKind::Assignment},
        {"'收发类别'", Nvarchar(10), Nvarchar(4), "收发类别", ConversionKind::Assignment},
        {"'收发类别x'", Nvarchar(10), Nvarchar(4), truncated, ConversionKind::Assignment},
        {"'abcdef'", Nvarchar(kMaxLength), Nvarchar(3), truncated, ConversionKind::Assignment},
        {"'abcdef'", Nvarchar(10), Nvarchar(kMaxLength), "abcdef", ConversionKind::Assignment},
        {"NULL", Nvarchar(10), Nvarchar(3), "NULL", ConversionKind::Assignment},
    });
}

TEST(WriteConversion, WritesNothingBetweenTypesThatAreOneInDuckDb)
{
    const auto written = [](const SqlType& from, const SqlType& to, ConversionKind kind) {
        return Writer().Value(*Convert(Column("x", from), to, kind));
    };
    EXPECT_EQ(written(kMoney, Decimal(19, 4), ConversionKind::Implicit), "\"s1\".\"x\"");
    EXPECT_EQ(written(Varchar(3), Nvarchar(4), ConversionKind::Assignment), "\"s1\".\"x\"");
    EXPECT_EQ(written(kFloat, kFloat, ConversionKind::Explicit), "\"s1\".\"x\"");
    EXPECT_EQ(written(Decimal(38, 2), Decimal(38, 2), ConversionKind::Explicit), "\"s1\".\"x\"");
}

TEST(WriteConversion, T28RefusesNullWhereTheColumnDoes)
{
    Duck duck;
    duck.Run("CREATE TABLE t (x INTEGER)");
    duck.Run("INSERT INTO t VALUES (1), (NULL)");
    Writer writer("IA_Journal", "INSERT");
    const std::string refusing = writer.Value(*Assign(Column("x", kInt), kInt, false, "bRdFlag"));
    EXPECT_EQ(
        duck.Run("SELECT " + refusing + " FROM t AS s1"),
        "515 Cannot insert the value NULL into column 'bRdFlag', table 'IA_Journal'; column does not allow "
        "nulls. INSERT fails.");
    EXPECT_EQ(duck.Run("SELECT " + refusing + " FROM t AS s1 WHERE x = 1"), "1");
    EXPECT_EQ(writer.Value(*Assign(Column("x", kInt), kInt, true, "c")), "\"s1\".\"x\"");
    EXPECT_EQ(writer.Value(*Assign(Number(5), kInt, false, "c")), "5");
}

TEST(WriteConversion, T34ForgivesTextsBesideOtherConditionsOnly)
{
    Duck duck;
    duck.Run("CREATE TABLE t (n VARCHAR, v VARCHAR)");
    duck.Run("INSERT INTO t VALUES ('START', '2008-07-01'), ('OTHER', 'yes')");
    const auto isLate = [] {
        return Compare(Convert(Column("v", Nvarchar(30)), kDatetime), ComparisonOp::Greater,
                       Literal("2008-01-01 00:00:00.000", kDatetime));
    };
    const std::string count = "SELECT count(*) FROM t AS s1 WHERE ";
    EXPECT_EQ(duck.Run(count + Writer().Clause(
                                   *Both(Equal(Column("n", Nvarchar(9), kFolded), Text("start")), isLate()))),
              "1");
    EXPECT_EQ(duck.Run(count + Writer().Clause(*isLate())),
              "241 Conversion failed when converting date and/or time from character string.");
}

TEST(WriteConversion, GrowsEvenlyWithNesting)
{
    Duck duck;
    duck.Run("CREATE TABLE t (x INTEGER)");
    duck.Run("INSERT INTO t VALUES (7), (-3)");
    BoundExprPtr nested = Column("x", kInt);
    for (int level = 0; level < 30; ++level)
        nested = Convert(Convert(std::move(nested), Nvarchar(4), ConversionKind::Explicit), kInt);
    const std::string written = Writer().Value(*nested);
    EXPECT_LT(written.size(), 40000U);
    EXPECT_EQ(duck.Run("SELECT " + written + " FROM t AS s1"), "7;-3");
}

}  // namespace kavelin::embedded
