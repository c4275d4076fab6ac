#include "embedded/bind/BindSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

struct Case {
    std::string_view expression, expected;
};

TEST(BindTypes, T1JoinsTextsAndAddsNumbers)
{
    const Case cases[] = {
        {"cWhCode + ' ' + cast(iPzID as nvarchar(10))", "nvarchar(21)"},
        {"'a' + 'bc'", "varchar(3)"},
        {"iPzID + iMonth", "int"},
        {"iPzID + '5'", "int"},
        {"cMemo + 1", "int"},
        {"convert(nvarchar(4), iYear) + convert(nvarchar(4), iMonth)", "nvarchar(8)"},
        {"cWhCode + null", "nvarchar(20)"},
        {"null + 1", "int"},
        {"null + null", "int"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TypeOfValue(c.expression), c.expected) << c.expression;
}

TEST(BindTypes, T3DatetimesSubtractedAreDays)
{
    EXPECT_EQ(BoundValue("cast(cast('2008-07-31' as datetime)-dKeepDate as int)+0.5"),
              "decimal(12,1) = (convert(cast(days('2008-07-31 00:00:00.000':datetime - s1.dKeepDate) as int) "
              "as "
              "decimal(10,0)) + 0.5:decimal(1,1)):decimal(12,1)");
    EXPECT_EQ(TypeOfValue("dKeepDate - 1"), "datetime");
    EXPECT_EQ(TypeOfValue("'2008-01-01' - dKeepDate"), "float");
}

TEST(BindTypes, T14CaseHasTheHighestTypeOfItsBranches)
{
    const Case cases[] = {
        {"case when iMonth = 1 then cast(null as nvarchar(4)) else iQuantity end", "float"},
        {"case when iMonth = 1 then iPrice else cast(null as float) end", "float"},
        {"case when iMonth = 1 then 1 else iCost/iCost end", "decimal(38,6)"},
        {"case when iMonth = 1 then 0 else convert(decimal(38,2), iCost) end", "decimal(38,2)"},
        {"case when iMonth = 1 then iPrice else cast(iPrice as decimal(34,8)) end", "decimal(34,8)"},
        {"case when iMonth = 1 then iPrice else 0 end", "money"},
        {"case iMonth when 1 then iQuantity else 0 end", "float"},
        {"case when iMonth = 1 then 'ab' else N'abc' end", "nvarchar(3)"},
        {"case when iMonth = 1 then null else dKeepDate end", "datetime"},
        {"case when iMonth = 1 then bRdFlag else 2 end", "int"},
        {"case when iMonth = 1 then 0.25 else 100 end", "decimal(12,2)"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TypeOfValue(c.expression), c.expected) << c.expression;
    EXPECT_EQ(BoundValue("case when iMonth = 1 then null end"),
              "8133: At least one of the results of a CASE must be an expression "
              "other "
              "than the NULL constant.");
}

TEST(BindTypes, T15IsnullHasTheTypeOfItsFirstArgument)
{
    const Case cases[] = {
        {"isnull(iPzID, N'')", "int not null = isnull(s1.iPzID, 0:int):int"},
        {"isnull(iQuantity, 0)", "float not null = isnull(s1.iQuantity, 0:float):float"},
        {"isnull(iPrice, 0)", "money not null = isnull(s1.iPrice, 0:money):money"},
        {"isnull(bRdFlag, 0)", "bit not null = isnull(s1.bRdFlag, false:bit):bit"},
        {"isnull(cWhCode, N'12345678901')",
         "nvarchar(10) not null = isnull(s1.cWhCode, '1234567890':nvarchar(10)):nvarchar(10)"},
        {"isnull(cWhCode, cMemo)",
         "nvarchar(10) = isnull(s1.cWhCode, cast(s1.cMemo as nvarchar(10))):nvarchar(10)"},
        {"isnull(null, iPzID)", "int = isnull(null:int, s1.iPzID):int"},
        {"isnull(cWhCode, iPzID)",
         "nvarchar(10) = isnull(s1.cWhCode, cast(s1.iPzID as nvarchar(10))):nvarchar(10)"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(BoundValue(c.expression), c.expected) << c.expression;
}

TEST(BindTypes, T17ToT20TakeTheHigherNumber)
{
    const Case cases[] = {
        {"iPzID / 2", "int"},
        {"iMonth + iYear", "smallint"},
        {"iMonth + 1", "int"},
        {"-1*iPrice - isnull(iPrice, 0)", "money"},
        {"iPrice / iQuantity", "float"},
        {"iPrice * iPrice", "money"},
        {"iPrice * 0.5", "decimal(21,5)"},
        {"iQuantity * iCost", "float"},
        {"bRdFlag * 2", "int"},
        {"-iMonth", "smallint"},
        {"1e3 * iPzID", "float"},
        {"abs(iPrice)", "money"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TypeOfValue(c.expression), c.expected) << c.expression;
}

TEST(BindTypes, T21DecimalsFollowTheRulesOfPrecisionAndScale)
{
    const Case cases[] = {
        {"iCost / iCost", "decimal(38,6)"},
        {"iCost / iCost - 1", "decimal(38,6)"},
        {"(iCost / iCost - 1) * 100", "decimal(38,6)"},
        {"iRate * iRate", "decimal(38,4)"},
        {"iQuantity * iRate", "float"},
        {"iCost * iRate", "decimal(38,6)"},
        {"sum(iCost) / cast(30 as decimal(38,2))", "decimal(38,6)"},
        {"100 - sum(iRate)", "decimal(38,2)"},
        {"10 / iRate", "decimal(38,34)"},
        {"iPzID + 0.5", "decimal(12,1)"},
        {"cast(1.67574 as decimal(38,10)) / 10000", "decimal(38,10)"},
        {"cast(1 as decimal(9,2)) + cast(1 as decimal(5,4))", "decimal(12,4)"},
        {"cast(1 as decimal(9,2)) * cast(1 as decimal(5,4))", "decimal(15,6)"},
        {"cast(1 as decimal(9,2)) / cast(1 as decimal(5,4))", "decimal(19,8)"},
        {"cast(1 as decimal(38,30)) + cast(1 as decimal(38,2))", "decimal(38,2)"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TypeOfValue(c.expression), c.expected) << c.expression;
}

TEST(BindTypes, T29AggregatesWidenTheirArguments)
{
    const Case cases[] = {
        {"sum(iPrice)", "money"},
        {"sum(iCost)", "decimal(38,6)"},
        {"sum(iQuantity)", "float"},
        {"sum(iMonth)", "int"},
        {"avg(iQuantity)", "float"},
        {"avg(iPrice)", "money"},
        {"avg(iRate)", "decimal(38,6)"},
        {"avg(iPzID)", "int"},
        {"max(iMonth)", "tinyint"},
        {"min(cWhCode)", "nvarchar(10)"},
        {"count(*)", "int"},
        {"count(distinct cWhCode)", "int"},
        {"max(dKeepDate)", "datetime"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TypeOfValue(c.expression), c.expected) << c.expression;
}

TEST(BindTypes, T38ALiteralBesideADecimalCountsByItsDigits)
{
    EXPECT_EQ(BoundValue("100 - iCost"), "decimal(38,6) = (100:decimal(3,0) - s1.iCost):decimal(38,6)");
    EXPECT_EQ(BoundValue("iPzID * iRate"),
              "decimal(38,2) = (convert(s1.iPzID as decimal(10,0)) * s1.iRate):decimal(38,2)");
    EXPECT_EQ(TypeOfValue("cast(7 as decimal(9,2)) * 3"), "decimal(11,2)");
    EXPECT_EQ(TypeOfValue("cast(7 as decimal(9,2)) * convert(int, 3)"), "decimal(20,2)");
}

TEST(BindTypes, F2TypesAreReadWithTheirDefaults)
{
    const Case cases[] = {
        {"cast(cMemo as nvarchar)", "nvarchar(30)"},
        {"cast(cMemo as nvarchar (5))", "nvarchar(5)"},
        {"cast(cMemo as varchar(max))", "varchar(max)"},
        {"cast(1 as decimal)", "decimal(18,0)"},
        {"cast(1 as numeric(5))", "decimal(5,0)"},
        {"cast(1 as decimal(38, 6))", "decimal(38,6)"},
        {"cast(1 as float(53))", "float"},
        {"cast(1 as real)", "float"},
        {"cast(null as money)", "money"},
        {"cast(1 as bigint)", "bigint"},
        {"cast('1' as int)", "int"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TypeOfValue(c.expression), c.expected) << c.expression;
}

TEST(BindTypes, T22ALiteralCastToADecimalHasAllItsPlaces)
{
    EXPECT_EQ(BoundValue("cast(cast(1.5 as decimal(10,2)) as nvarchar(10))"),
              "nvarchar(10) trimmed caseless = '1.50':nvarchar(10)");
    EXPECT_EQ(BoundValue("cast(0.125 as decimal(10,2))"),
              "decimal(10,2) = cast(0.125:decimal(3,3) as decimal(10,2))");
    EXPECT_EQ(BoundValue("cast(2.7 as int)"), "int = cast(2.7:decimal(2,1) as int)");
    EXPECT_EQ(BoundValue("cast(0 as float)"), "float = 0:float");
    EXPECT_EQ(BoundValue("cast('abc' as nvarchar(2))"), "nvarchar(2) trimmed = 'ab':nvarchar(2)");
}

TEST(BindTypes, F4Style121WritesTheDateAsDigits)
{
    EXPECT_EQ(BoundValue("convert(nvarchar(10), dKeepDate, 121)"),
              "nvarchar(10) trimmed caseless = style121(s1.dKeepDate as nvarchar(10))");
    EXPECT_EQ(BoundValue("convert(nvarchar(10), iPzID)"),
              "nvarchar(10) trimmed caseless = cast(s1.iPzID as nvarchar(10))");
}

TEST(BindTypes, FactsOfTextsFollowTheExpression)
{
    const Case cases[] = {
        {"cInvCode", "nvarchar(60) not null trimmed caseless = s1.cInvCode"},
        {"cWhCode", "nvarchar(10) = s1.cWhCode"},
        {"'A '", "varchar(2) not null caseless = 'A ':varchar(2)"},
        {"N'直运a'", "nvarchar(3) not null trimmed = '直运a':nvarchar(3)"},
        {"left(cInvCode, 2)", "nvarchar(2) caseless = left(s1.cInvCode, 2:int):nvarchar(2)"},
        {"isnull(cInvCode, N'')",
         "nvarchar(60) not null trimmed caseless = isnull(s1.cInvCode, '':nvarchar(1)):nvarchar(60)"},
        {"max(cInvCode)", "nvarchar(60) trimmed caseless = max(s1.cInvCode):nvarchar(60)"},
        {"cMemo + 'A'", "nvarchar(201) trimmed = (s1.cMemo || 'A':varchar(1)):nvarchar(201)"},
        {"DBO.UDF_GetLocaleID()", "nvarchar(10) trimmed = locale('zh-CN':nvarchar(10)):nvarchar(10)"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(BoundValue(c.expression), c.expected) << c.expression;
}

}  // namespace
}  // namespace kavelin::embedded
