#include "embedded/bind/BindSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

struct Case {
    std::string_view condition, expected;
};

void ExpectAll(std::initializer_list<Case> cases)
{
    for (const Case& c : cases)
        EXPECT_EQ(BoundWhere(c.condition), c.expected) << c.condition;
}

TEST(BindConditions, T4T5ATextLiteralBesideADateIsADate)
{
    ExpectAll({
        {"dKeepDate>='2008-01-01'", "(s1.dKeepDate >= '2008-01-01 00:00:00.000':datetime)"},
        {"dKeepDate<= N'2008-07-31 '", "(s1.dKeepDate <= '2008-07-31 00:00:00.000':datetime)"},
        {"dKeepDate = '2008-7-1'", "(s1.dKeepDate = '2008-07-01 00:00:00.000':datetime)"},
        {"dKeepDate = '2008/7/1'", "(s1.dKeepDate = '2008-07-01 00:00:00.000':datetime)"},
        {"dKeepDate = '2008.07.01'", "(s1.dKeepDate = '2008-07-01 00:00:00.000':datetime)"},
        {"dKeepDate = '20080701'", "(s1.dKeepDate = '2008-07-01 00:00:00.000':datetime)"},
        {"dKeepDate = ' 2008-07-01 09:05'", "(s1.dKeepDate = '2008-07-01 09:05:00.000':datetime)"},
        {"dKeepDate = '2008-07-01 23:59:59'", "(s1.dKeepDate = '2008-07-01 23:59:59.000':datetime)"},
        {"dKeepDate = '2008-07-01 23:59:59.999'", "(s1.dKeepDate = '2008-07-02 00:00:00.000':datetime)"},
        {"dKeepDate = '2008-07-01 23:59:59.998'", "(s1.dKeepDate = '2008-07-01 23:59:59.997':datetime)"},
        {"dKeepDate Between N'2008-01-01' And '2008-07-31'",
         "(s1.dKeepDate between '2008-01-01 00:00:00.000':datetime and '2008-07-31 00:00:00.000':datetime)"},
        {"dKeepDate > 1", "(s1.dKeepDate > '1900-01-02 00:00:00.000':datetime)"},
    });
}

TEST(BindConditions, T7ATextExpressionBesideDatesIsConverted)
{
    EXPECT_EQ(BoundWhere("(select top 1 cMemo from Stock) between dKeepDate and dVouDate"),
              "(convert((select top 1 s2.cMemo as cMemo from account.Stock s2) as datetime) between "
              "s1.dKeepDate and "
              "s1.dVouDate)");
}

TEST(BindConditions, T8TheEmptyTextIsTheFirstDay)
{
    ExpectAll({{"dKeepDate>=''", "(s1.dKeepDate >= '1900-01-01 00:00:00.000':datetime)"}});
}

TEST(BindConditions, T9ATextLiteralBesideANumberIsOneOfItsType)
{
    ExpectAll({
        {"iPzID='2'", "(s1.iPzID = 2:int)"},
        {"iMonth Between N'1' And '12'", "(s1.iMonth between 1:tinyint and 12:tinyint)"},
        {"iMonth < '3'", "(s1.iMonth < 3:tinyint)"},
        {"iQuantity >= N'1.5'", "(s1.iQuantity >= 1.5:float)"},
        {"iQuantity >= '1e+3'", "(s1.iQuantity >= 1e3:float)"},
        {"iPrice = ' 1,234.56785 '", "(s1.iPrice = 1234.5679:money)"},
        {"iCost = '-.5'", "(s1.iCost = -0.500000:decimal(38,6))"},
        {"iPzID in ('05', '6')", "(s1.iPzID in (5:int, 6:int))"},
    });
}

TEST(BindConditions, T10ATextColumnBesideANumberIsConverted)
{
    ExpectAll({
        {"cWhCode = iPzID", "(convert(s1.cWhCode as int) = s1.iPzID)"},
        {"cWhCode = 1", "(convert(s1.cWhCode as int) = 1:int)"},
        {"cWhCode in ('05', '5')", "(s1.cWhCode in ('05':varchar(2), '5':varchar(1)))"},
    });
}

TEST(BindConditions, T11TheEmptyTextIsZeroButForDecimals)
{
    ExpectAll({
        {"iPzID = ''", "(s1.iPzID = 0:int)"},
        {"iQuantity = ' '", "(s1.iQuantity = 0:float)"},
        {"iPrice = ''", "(s1.iPrice = 0:money)"},
        {"bRdFlag = ''", "(s1.bRdFlag = false:bit)"},
        {"iCost = ''", "8114: Error converting data type varchar to numeric."},
    });
}

TEST(BindConditions, T12ATextThatIsNoNumberIsRefused)
{
    ExpectAll({
        {"iPzID = N'x'", "245: Conversion failed when converting the nvarchar value 'x' to data type int."},
        {"iPzID = '1.5'", "245: Conversion failed when converting the varchar value '1.5' to data type int."},
        {"iMonth>= N'2008.07'",
         "245: Conversion failed when converting the nvarchar value '2008.07' to data type tinyint."},
        {"iMonth = '300'",
         "244: The conversion of the varchar value '300' overflowed an INT1 column. Use a larger integer "
         "column."},
        {"iPzID = '99999999999'",
         "248: The conversion of the varchar value '99999999999' overflowed an int column."},
        {"iQuantity = N'x'", "8114: Error converting data type nvarchar to float."},
        {"iCost = N'x'", "8114: Error converting data type nvarchar to numeric."},
        {"iPrice = N'x'", "235: Cannot convert a char value to money. The char value has incorrect syntax."},
        {"bRdFlag = N'x'", "245: Conversion failed when converting the nvarchar value 'x' to data type bit."},
        {"dKeepDate = '2008-07'",
         "241: Conversion failed when converting date and/or time from character string."},
        {"dKeepDate = N'2008-02-30'",
         "242: The conversion of a nvarchar data type to a datetime data type resulted in an out-of-range "
         "value."},
    });
}

TEST(BindConditions, T13BitsMeetNumbersAsZeroAndOne)
{
    ExpectAll({
        {"bRdFlag=1", "(s1.bRdFlag = true:bit)"},
        {"bRdFlag = 2", "(convert(s1.bRdFlag as int) = 2:int)"},
        {"isnull(bRdFlag,0)<>0", "(isnull(s1.bRdFlag, false:bit):bit <> false:bit)"},
        {"bRdFlag = iMonth", "(convert(s1.bRdFlag as tinyint) = s1.iMonth)"},
    });
}

TEST(BindConditions, T37ALiteralThatFitsLeavesTheColumnAsItIs)
{
    ExpectAll({
        {"iMonth = 07", "(s1.iMonth = 7:tinyint)"},
        {"iMonth = 07 - 1", "(convert(s1.iMonth as int) = (7:int - 1:int):int)"},
        {"iMonth = 256", "(convert(s1.iMonth as int) = 256:int)"},
        {"iMonth = -1", "(convert(s1.iMonth as int) = -1:int)"},
        {"iPzID = 0.5", "(convert(s1.iPzID as decimal(11,1)) = 0.5:decimal(11,1))"},
        {"iCost <> 0", "(s1.iCost <> 0.000000:decimal(38,6))"},
        {"iPrice > 0.00005", "(convert(s1.iPrice as decimal(20,5)) > 0.00005:decimal(20,5))"},
    });
}

TEST(BindConditions, T34AConversionInACaseIsLeftToTheRun)
{
    EXPECT_EQ(BoundValue("case when iMonth = 1 then 'x' else iPzID end"),
              "int = case when (s1.iMonth = 1:tinyint) then convert('x':varchar(1) as int) else s1.iPzID "
              "end:int");
    EXPECT_EQ(BoundValue("cast('x' as datetime)"), "datetime = cast('x':varchar(1) as datetime)");
}

TEST(BindConditions, Q9InTakesListsNullsAndQueries)
{
    ExpectAll({
        {"cWhCode in (null)", "(s1.cWhCode in (null:nvarchar(10)))"},
        {"iPzID not in (1, 2)", "(s1.iPzID not in (1:int, 2:int))"},
        {"cInvCode IN (Select cInvCode From Item Where bInCost = 1)",
         "(s1.cInvCode in (select s2.cInvCode as cInvCode from account.Item s2 where (s2.bInCost = "
         "true:bit)))"},
        {"null in (select cInvName from Item)",
         "(null:nvarchar(255) in (select s2.cInvName as cInvName from account.Item s2))"},
        {"cWhCode in (select iid from Item)",
         "(convert(s1.cWhCode as int) in (select s2.iid as iid from account.Item s2))"},
        {"iPzID in (select cInvName from Item)",
         "(s1.iPzID in (select convert(s2.cInvName as int) as cInvName from account.Item s2))"},
    });
}

TEST(BindConditions, Q10ExistsLooksInsideFirst)
{
    EXPECT_EQ(BoundWhere("not exists(select cInvName from Item where cInvCode = Stock.cInvCode and iPzID = "
                         "1)"),
              "not exists(select s2.cInvName as cInvName from account.Item s2 where ((s2.cInvCode = "
              "s1.cInvCode) "
              "and (s1.iPzID = 1:int)))");
    EXPECT_EQ(BoundWhere("exists(select * from Item)"), "exists(select 1:int from account.Item s2)");
}

TEST(BindConditions, Q12ToQ15TakeTheOtherTests)
{
    ExpectAll({
        {"cWhCode not like N'直运%'", "(s1.cWhCode not like '直运%':nvarchar(3))"},
        {"iPzID like '1%'", "(convert(s1.iPzID as nvarchar(60)) like '1%':varchar(2))"},
        {"Not cWhCode Is Null", "not (s1.cWhCode is null)"},
        {"cWhCode is not null", "(s1.cWhCode is not null)"},
        {"N'' <> N''", "('':nvarchar(1) <> '':nvarchar(1))"},
        {"1 = 2", "(1:int = 2:int)"},
        {"iPzID = null", "(s1.iPzID = null:int)"},
        {"null is null", "(null:int is null)"},
    });
}

TEST(BindConditions, Q16ASimpleCaseBecomesComparisons)
{
    EXPECT_EQ(BoundValue("case iMonth when '1' then 1 when 300 then 2 end"),
              "int = case when (s1.iMonth = 1:tinyint) then 1:int when (convert(s1.iMonth as int) = 300:int) "
              "then "
              "2:int end:int");
}

}  // namespace
}  // namespace kavelin::embedded
